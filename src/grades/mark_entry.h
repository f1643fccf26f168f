// SPDX-License-Identifier: GPL-3.0-or-later
// How keys fill the cells of a grid: the typing rules of all grids that take keys.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/cell_typing.h"
#include "platform/portal.h"

namespace tallyroll {

inline constexpr std::size_t kLongestMark = 5;

// A mark as a cell has it: without the blanks behind it, and with a blank for each NUL of a damaged
// file, which no screen shows. So what looks empty is empty.
std::string ShownMark(std::string_view mark);
// What a cell of marks becomes of what was typed: upper case, five characters.
std::string TypedMark(std::string_view text);

// The cells of one column take keys. Return goes to the next row, End to the last.
class CellEntry {
 public:
  // Only cells of this column take keys; `edited` is told of each change.
  CellEntry(Grid& grid, int column, std::function<void()> edited);
  virtual ~CellEntry() = default;

  ControlRow& Declare(ControlTable& table, std::string_view grid_name);

  void NextRow();
  void LastRow();
  // Puts the current cell there; the next key replaces what it holds.
  void GoTo(int row);
  // To that row, which then counts as the row last active.
  void StartAt(int row);
  void StartOver() { StartAt(grid_.FixedRows); }
  int LastActiveRow() const { return last_active_row_; }
  // Whether the last event was a key that went on with the text of a cell. Asking forgets it.
  bool TakeGoesOn() { return std::exchange(goes_on_, false); }

 protected:
  virtual bool KeyDown(Key key);
  // What a cell becomes of what was typed.
  virtual std::string Typed(std::string text) const { return text; }

  bool HasCell() const;
  void Write(std::string_view text);

 private:
  bool KeyPress(unsigned char key);
  void Click();

  Grid& grid_;
  int column_;
  std::function<void()> edited_;
  CellTyping typing_;
  int last_active_row_ = 1;
  bool goes_on_ = false;
};

// A grid of marks: upper case, five characters, and keys and buttons for the special marks.
class MarkEntry : public CellEntry {
 public:
  MarkEntry(Portal& portal, Grid& grid, int column, std::function<void()> edited);

  CommandButton Command1, Command2, Command3, Command4;

  // The grid and behind it the four buttons.
  void Declare(ControlTable& table, std::string_view grid_name);
  // Switches the grid and the buttons as one.
  void Enable(bool on);

 protected:
  bool KeyDown(Key key) override;
  std::string Typed(std::string text) const override;

 private:
  void WriteSpecial(std::string_view mark);
  void Press(std::string_view mark);

  Portal& portal_;
  Grid& marks_;
};

}  // namespace tallyroll
