// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmunusual.h"

#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "insight/chosen_cell.h"
#include "platform/class_window.h"
#include "platform/long_work.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

struct UnusualColumn {
  std::string_view head;
  int width;
};
// All of them stand beside one another on a small screen too.
constexpr std::array kUnusualColumns = {UnusualColumn{"Student", 1900},
                                        UnusualColumn{"Grade", 2280}, UnusualColumn{"Mark", 600},
                                        UnusualColumn{"What", 2450}, UnusualColumn{"Why", 5720}};

std::string FoundWords(std::size_t count) {
  if (count == 0) return "No mark of this class is unusual.";
  return PlainNumberText(static_cast<std::int64_t>(count)) +
         (count == 1 ? " mark is unusual." : " marks are unusual.");
}

}  // namespace

frmunusual::frmunusual() : Portal("frmunusual") {
  Caption = "Unusual Marks Portal";
  HelpContext = 820;
  goto_cell.Caption = "&Go to the Mark";
  exit.Caption = "E&xit";
}

void frmunusual::Declare(ControlTable& table) {
  table.Add("found", found);
  table.Add("Grid1", Grid1).DblClick([this] { goto_cell_Click(); });
  table.Add("rule", rule);
  table.Add("goto_cell", goto_cell).Click([this] { goto_cell_Click(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmunusual::Load() {
  LongWork search("Looking for unusual marks", Current().NumStudents);
  marks_ = UnusualMarks([&] { return search.Step(); });
  if (search.Cancelled()) {
    ClassWindow().ShowStatus("The search for unusual marks was cancelled.");
    return Unload();
  }
  found.Caption = FoundWords(marks_.size());
  rule.Caption = kFarRule;
  goto_cell.Enabled = !marks_.empty();
  Grid1.FixedCols = Grid1.LeftCol = 0;
  Grid1.SetSize(1 + static_cast<int>(marks_.size()), static_cast<int>(kUnusualColumns.size()));
  for (std::size_t i = 0; i < kUnusualColumns.size(); ++i) {
    Grid1.SetTextMatrix(0, static_cast<int>(i), kUnusualColumns[i].head);
    Grid1.SetColWidth(static_cast<int>(i), kUnusualColumns[i].width);
  }
  const Class& c = Current();
  int row = 0;
  for (const UnusualMark& mark : marks_) {
    ++row;
    Grid1.SetTextMatrix(row, 0, PlainName(c.Students[static_cast<std::size_t>(mark.student)]));
    Grid1.SetTextMatrix(row, 1, Trim(c.Instruments[static_cast<std::size_t>(mark.grade)].title));
    Grid1.SetTextMatrix(row, 2, mark.mark);
    Grid1.SetTextMatrix(row, 3, NameOfKind(mark.kind));
    Grid1.SetTextMatrix(row, 4, mark.told);
  }
  Grid1.Row = marks_.empty() ? 0 : 1;
  Grid1.Col = 0;
  SetFocus(Grid1);
}

void frmunusual::goto_cell_Click() {
  const int at = Grid1.Row - 1;
  if (at < 0 || static_cast<std::size_t>(at) >= marks_.size()) return;
  const UnusualMark& mark = marks_[static_cast<std::size_t>(at)];
  ChosenCell = {mark.student, mark.grade};
  Unload();
}

}  // namespace tallyroll
