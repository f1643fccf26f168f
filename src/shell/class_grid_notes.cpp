// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/class_grid_notes.h"

#include "analysis/grade_tip.h"
#include "analysis/open_classes.h"
#include "base/number_text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "shell/form1.h"

namespace tallyroll {
namespace {

constexpr int kHeadRows = 2;

// The grade of a column of the class in work; 0 is none.
int GradeOfColumn(int col) {
  const int grade = col - 1;
  return grade >= 1 && grade <= GradeCount(Current()) ? grade : 0;
}

CellNote NoteOfCell(const Form1& window, int row, int col) {
  const int grade = row < kHeadRows ? 0 : GradeOfColumn(col);
  CellNote note;
  if (grade > 0)
    note = NoteOfMark(window.Grid1.TextMatrix(row, col),
                      BoundsOf(Current().Instruments[static_cast<std::size_t>(grade)]));
  const bool came_back = window.Grid1.Style(row, col) == CellStyle::kInWork;
  if (came_back && note.words.empty()) note.words = "changed just now";
  return note;
}

std::string MaximumOf(int col) {
  const int grade = GradeOfColumn(col);
  if (grade == 0) return {};
  const Instrument& instrument = Current().Instruments[static_cast<std::size_t>(grade)];
  return "of " + PlainNumberText(instrument.mvalue);
}

std::string TipOfHead(int row, int col) {
  const int grade = GradeOfColumn(col);
  return row < kHeadRows && grade > 0 ? TipOfGrade(grade) : std::string();
}

}  // namespace

// A window that lies behind is painted too, while another class is in work.
GridNotes NotesOfClassGrid(const Form1& window) {
  const auto in_class = [&window](auto ask) {
    return [&window, ask](auto... at) -> decltype(ask(window, at...)) {
      if (window.Tag.empty()) return {};
      const InClass work(static_cast<int>(LeadingNumber(window.Tag)));
      return ask(window, at...);
    };
  };
  GridNotes notes;
  notes.Of = in_class(NoteOfCell);
  notes.Tip = in_class([](const Form1&, int row, int col) { return TipOfHead(row, col); });
  notes.BelowHead = in_class([](const Form1&, int col) { return MaximumOf(col); });
  return notes;
}

}  // namespace tallyroll
