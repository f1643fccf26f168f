// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmsnapshot.h"

#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "insight/chosen_snapshot.h"
#include "store/change/earlier_state.h"
#include "store/change/same_records.h"
#include "store/program_state.h"
#include "store/sort_students.h"
#include "store/student_names.h"

namespace tallyroll {

SnapshotChoice ChosenSnapshot;

namespace {

constexpr int kSnapshotNameWidth = 3360;
constexpr int kSnapshotIdWidth = 1440;
constexpr int kBeforeMarks = 2;  // columns

}  // namespace

std::string ReadSnapshot(std::int64_t number, Class& out) {
  const SnapshotBytes kept = BytesOfSnapshot(Current().FileName, number);
  if (!kept.fault.empty()) return kept.fault;
  const int error = ReadState(kept.bytes, out);
  return error == 0 ? "" : "File Error: " + PlainNumberText(error);
}

frmsnapshot::frmsnapshot() : Portal("frmsnapshot") {
  Caption = "Snapshot";
  HelpContext = 860;
  exit.Caption = "E&xit";
  Grid1.Notes.Of = [this](int row, int col) {
    const bool differs = Grid1.Style(row, col) == CellStyle::kInWork;
    return differs ? CellNote{CellMark::kNone, "differs"} : CellNote();
  };
}

void frmsnapshot::Declare(ControlTable& table) {
  table.Add("readonly", readonly);
  table.Add("Grid1", Grid1);
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmsnapshot::Load() {
  const SnapshotChoice& choice = ChosenSnapshot;
  Caption = "Snapshot";
  if (choice.class_path.empty()) {
    readonly.Caption = "No snapshot is open.";
    return SetFocus(exit);
  }
  const std::string file = choice.class_path.substr(choice.class_path.rfind('/') + 1);
  Caption = PathForDisplay(file) + " on " + NameOfSnapshot(choice.snapshot) + " (read-only)";
  Class then, other;
  std::string fault = ReadSnapshot(choice.snapshot.number, then);
  if (fault.empty() && choice.other != 0) fault = ReadSnapshot(choice.other, other);
  if (!fault.empty()) {
    readonly.Caption = "The snapshot cannot be read: " + fault + ".";
    return SetFocus(exit);
  }
  SortStudents(then);
  Fill(then, choice.other == 0 ? Current() : other);
  SetFocus(Grid1);
}

void frmsnapshot::Fill(const Class& then, const Class& other) {
  const SameRecords same = MatchRecords(other, then);
  const int grades = GradeCount(then);
  Grid1.SetRedraw(false);
  Grid1.FixedCols = kBeforeMarks;
  Grid1.SetSize(1 + then.NumStudents, kBeforeMarks + grades);
  Grid1.SetTextMatrix(0, 0, "Name");
  Grid1.SetTextMatrix(0, 1, "ID");
  Grid1.SetColWidth(0, kSnapshotNameWidth);
  Grid1.SetColWidth(1, kSnapshotIdWidth);
  for (int g = 1; g <= grades; ++g) {
    Grid1.SetTextMatrix(0, g + 1, Trim(then.Instruments[static_cast<std::size_t>(g)].title));
    Grid1.SetColAlignment(g + 1, ColumnAlign::kRight);
  }
  std::int64_t differ = 0;
  for (int s = 1; s <= then.NumStudents; ++s) {
    const Student& student = then.Students[static_cast<std::size_t>(s)];
    const std::size_t there = same.students[static_cast<std::size_t>(s)];
    Grid1.SetTextMatrix(s, 0, PlainName(student));
    Grid1.SetTextMatrix(s, 1, Trim(student.id));
    for (int g = 1; g <= grades; ++g) {
      const std::string_view mark = Trim(MarkOf(student, g));
      Grid1.SetTextMatrix(s, g + 1, mark);
      const std::size_t grade = same.grades[static_cast<std::size_t>(g)];
      const bool gone = there == kNowhere || grade == kNowhere;
      if (!gone && Trim(MarkOf(other.Students[there], static_cast<int>(grade))) == mark) continue;
      Grid1.SetStyle(s, g + 1, CellStyle::kInWork);
      ++differ;
    }
  }
  Grid1.Row = 1;
  Grid1.Col = kBeforeMarks;
  Grid1.SetRedraw(true);
  readonly.Caption =
      "Read-only: the class as it was saved. " + PlainNumberText(differ) +
      (differ == 1 ? " mark differs" : " marks differ") +
      (ChosenSnapshot.other == 0 ? " from the class as it stands" : " from the other snapshot") +
      (differ == 0 ? "." : ", marked by colour.");
}

}  // namespace tallyroll
