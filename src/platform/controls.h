// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of a Portal as plain values. What a screen shows of them is the binder's matter.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tallyroll {

class Grid;
class PrintTarget;

struct Control {
  bool Enabled = true;
  bool Visible = true;
};

struct Label : Control {
  std::string Caption;
};

struct TextBox : Control {
  std::string Text;
  int MaxLength = 0;  // characters; 0 is no limit of the box's own, -1 lets nothing in
  int SelStart = 0;   // caret or start of the selection, in characters; follows the user
  int SelLength = 0;
};

struct CommandButton : Control {
  std::string Caption;
};

struct CheckBox : Control {
  std::string Caption;
  bool Value = false;
};

// One of a group; the form groups those that exclude one another.
struct OptionButton : Control {
  std::string Caption;
  bool Value = false;
};

struct ListBox : Control {
  std::vector<std::string> List;  // a tab parts the columns of a line
  int ListIndex = -1;             // from 0; -1 is none chosen
  bool Checks = false;            // each line has a box to tick
  std::vector<bool> Checked;      // by line, where there are boxes
  bool MultiSelect = false;       // several lines can be marked; ListIndex is where the keys stand
  std::vector<bool> Selected;     // by line, where several can be
  std::vector<int> Counts;        // by line, shown at its end; 0 and what is missing show nothing
};

struct ComboBox : Control {
  std::vector<std::string> List;
  int ListIndex = -1;
  std::string Text;            // what is typed or chosen
  const Grid* Over = nullptr;  // stands over this grid's current cell; null where the form puts it
};

// A group with a caption, switched as one.
struct Frame : Control {
  std::string Caption;
};

// Pages of which one is shown; the form holds what stands on each.
struct Pages : Control {
  int Current = 0;  // from 0
};

// Pages with tabs that the user picks.
struct TabStrip : Control {
  std::vector<std::string> Tabs;  // captions, one a page
  int Selected = 0;               // from 0
};

struct DTPicker : Control {
  double Value = 0;    // day serial
  double MinDate = 0;  // what can be picked, both days included
  double MaxDate = 0;  // 0 sets no bounds
};

// How large a sheet is shown: at its zoom, or as large as fits the room there is.
enum class SheetFit { kZoom, kWidth, kPage };

// An ornament, of which the form says which picture it is; or a sheet of paper, drawn anew whenever
// it is shown.
struct PictureBox : Control {
  std::function<void(PrintTarget& target)> Draw;  // null for an ornament
  double SheetWidth = 0, SheetHeight = 0;         // twips
  double Zoom = 1;
  SheetFit Fit = SheetFit::kZoom;
  unsigned Revision = 0;  // raised when what Draw draws has changed
};

// How far a long work has come.
struct ProgressBar : Control {
  int Value = 0;
  int Maximum = 100;
};

}  // namespace tallyroll
