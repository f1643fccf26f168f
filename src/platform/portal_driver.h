// SPDX-License-Identifier: GPL-3.0-or-later
// PortalDriver: does with a Portal what a teacher does, without a screen.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/portal.h"

namespace tallyroll {

// Every act goes to the control by its declared name. An act that a teacher could not do (no such
// control, one that is disabled or hidden, a text longer than the box takes) is a complaint and
// does nothing. The Portal must be loaded.
//
// As on the screen, an act with the mouse is stopped when leaving the field before put up a box or
// asked for the focus, and opening raises no event.
class PortalDriver {
 public:
  explicit PortalDriver(Portal& portal);

  // Replaces the text of a box, character by character, so that each one raises Change.
  void Type(std::string_view box, std::string_view text);
  // Types into a rich text in the place of its selection, in one go.
  void Write(std::string_view rich_text, std::string_view text);
  // Selects in a rich text, or with no length puts the caret there.
  void SelectIn(std::string_view rich_text, int start, int length = 0);
  // Presses a button, or clicks a list or a grid.
  void Press(std::string_view button);
  // A click comes before the double click.
  void DoubleClick(std::string_view control);
  // Puts a check box or an option to this value, if it is not so already.
  void Tick(std::string_view box, bool on = true);
  // Chooses a line of a list or combo box, from 0.
  void Choose(std::string_view list, int index);
  // Marks these lines of a list and no others; the last of them is where the keys stand.
  void Mark(std::string_view list, std::initializer_list<int> lines);
  // Ticks the box of a line, from 0, or takes the tick away.
  void Check(std::string_view list, int index, bool on = true);
  // Picks a tab, from 0.
  void PickTab(std::string_view strip, int index);
  void PickDate(std::string_view picker, double serial);
  // Clicks a grid cell; one that is not fixed becomes the current one.
  void PickCell(std::string_view grid, int row, int col);
  // Drags the chosen line of a list or the current cell of a grid onto a cell, or onto a list (-1).
  void Drag(std::string_view source, std::string_view target, int row = -1, int col = -1);
  void PressKey(std::string_view control, Key key);
  void TypeKeys(std::string_view control, std::string_view characters);
  // Moves the focus: the control that had it is left, this one gets it.
  void Focus(std::string_view control);
  // The window's close box, or Escape.
  void CloseWindow();

  // What stands on the screen.
  std::string Text(std::string_view control) const;  // text of a box, caption of anything else
  bool Enabled(std::string_view control) const;
  bool Visible(std::string_view control) const;
  // The name of the control that has the focus; empty at first.
  const std::string& Focused() const { return focused_; }

  Portal& portal() { return portal_; }
  const std::vector<std::string>& Complaints() const { return complaints_; }

 private:
  ControlRow* Reach(std::string_view name, std::string_view act);
  template <typename C>
  C* As(std::string_view name, std::string_view act);
  using Event = std::function<void()> ControlRow::*;
  // One after the other, as long as the Portal is there.
  void Raise(const ControlRow& row, std::initializer_list<Event> events);
  // False when the act that moves the focus is stopped.
  bool MoveFocus(const ControlRow& row);
  void Settle();

  Portal& portal_;
  ControlTable table_;
  std::string focused_;
  std::vector<std::string> complaints_;
};

}  // namespace tallyroll
