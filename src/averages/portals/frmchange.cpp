// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmchange.h"

#include <algorithm>
#include <array>

#include "averages/portals/change_preview.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

struct ChangeColumn {
  std::string_view head;
  int width;
  ColumnAlign align;
};
constexpr std::array kChangeColumns = {ChangeColumn{"Student", 3000, ColumnAlign::kLeft},
                                       ChangeColumn{"Old average", 1300, ColumnAlign::kRight},
                                       ChangeColumn{"Old grade", 1900, ColumnAlign::kLeft},
                                       ChangeColumn{"New average", 1300, ColumnAlign::kRight},
                                       ChangeColumn{"New grade", 1900, ColumnAlign::kLeft},
                                       ChangeColumn{"Difference", 1200, ColumnAlign::kRight}};

std::string Counted(std::ptrdiff_t count, std::string_view what) {
  return PlainNumberText(static_cast<std::int64_t>(count)) + " " + std::string(what) +
         (count == 1 ? "" : "s");
}

std::array<std::string, kChangeColumns.size()> CellsOf(const ChangedAverage& each) {
  const auto average = [](bool has, Currency value) {
    return has ? PlainNumberText(value) : std::string("-");
  };
  const auto grade = [](bool has, const FinalGrade& final_grade) {
    return has ? std::string(Trim(final_grade.Text())) : std::string("-");
  };
  return {PlainName(Current().Students[static_cast<std::size_t>(each.student)]),
          average(each.had, each.before),
          grade(each.had, each.grade_before),
          average(each.has, each.after),
          grade(each.has, each.grade_after),
          each.had && each.has ? PlainNumberText(each.after - each.before) : std::string("-")};
}

}  // namespace

frmchange::frmchange() : Portal("frmchange") {
  Caption = "Preview Change Portal";
  HelpContext = 850;
  exit.Caption = "E&xit";
  Grid1.Notes.Of = [this](int row, int col) {
    const bool changes = Grid1.Style(row, col) == CellStyle::kInWork;
    return changes ? CellNote{CellMark::kNone, "the final grade changes"} : CellNote();
  };
}

void frmchange::Declare(ControlTable& table) {
  table.Add("found", found);
  table.Add("Grid1", Grid1);
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmchange::Load() {
  const auto count = [](bool (ChangedAverage::*changes)() const) {
    return std::count_if(PreviewedChange.begin(), PreviewedChange.end(),
                         [changes](const auto& each) { return (each.*changes)(); });
  };
  found.Caption = Counted(count(&ChangedAverage::GradeChanges), "final grade") + " and " +
                  Counted(count(&ChangedAverage::Changes), "average") +
                  " would change. Nothing is taken yet.";
  Grid1.SetSize(1 + static_cast<int>(PreviewedChange.size()),
                static_cast<int>(kChangeColumns.size()));
  Grid1.FixedCols = 1;
  for (std::size_t i = 0; i < kChangeColumns.size(); ++i) {
    const int col = static_cast<int>(i);
    Grid1.SetTextMatrix(0, col, kChangeColumns[i].head);
    Grid1.SetColWidth(col, kChangeColumns[i].width);
    Grid1.SetColAlignment(col, kChangeColumns[i].align);
  }
  int row = 0;
  for (const ChangedAverage& each : PreviewedChange) {
    ++row;
    int col = 0;
    for (const std::string& cell : CellsOf(each)) {
      Grid1.SetTextMatrix(row, col, cell);
      if (each.GradeChanges()) Grid1.SetStyle(row, col, CellStyle::kInWork);
      ++col;
    }
  }
  SetFocus(Grid1);
}

}  // namespace tallyroll
