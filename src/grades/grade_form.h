// SPDX-License-Identifier: GPL-3.0-or-later
// The header of a grade and the marks of all students on a Portal, and the rules that entering and
// editing share.
#pragma once

#include <optional>
#include <string>

#include "grades/live_marks.h"
#include "grades/mark_entry.h"
#include "grades/mark_notes.h"
#include "store/records.h"

namespace tallyroll {

struct GradeForm : Portal {
  explicit GradeForm(std::string_view name);

  TextBox title, code, mvalue;
  TextBox dropyn;  // "Y" or "N": a key flips it
  DTPicker testdate;
  TextBox lowpass;
  ComboBox ttypelist;  // the labels of the 26 types
  Grid Grid1;
  MarkEntry marks;
  LiveMarks live;

 protected:
  void DeclareHeader(ControlTable& table, std::string_view title_name);
  void DeclareMarks(ControlTable& table);

  virtual void HeaderChanged() {}
  virtual void MarksChanged() = 0;

  std::string_view MarkCell(int student) const;
  void SetMarkCell(int student, std::string_view mark);
  // No mark was typed, not even a blank.
  bool EveryMarkEmpty() const;
  // A required box or a mark is empty.
  bool RequiredEmpty() const;
  // The box that tells what is required, and the focus where something is missing.
  void Remind();
  // mvalue as a class holds it; nothing when it is no number, 0 or out of range, after a box and
  // with the focus.
  std::optional<i16> CheckMaximumScore(std::string_view note_title);

  void FillTypeList();
  void ChooseType(std::size_t type);  // 0 chooses none
  // The type with this code; 0 when there is none.
  std::size_t TypeOfCode(std::string_view typecode) const;
  // The first two characters of the chosen label; those of the no-type entry when none is chosen.
  std::string ChosenTypecode() const;
  std::string DateTextOfPicker() const;
  MarkBounds Bounds() const;  // of what is typed

  bool DatePicked = false;  // by the teacher, since the header was filled

 private:
  // By Return; true, as for a key that is used up.
  bool GoOnTo(TextBox& next);
  bool GoOnTo(const Control& next);
  bool mvalue_KeyPress(unsigned char key);
  void mvalue_Change();
  bool dropyn_KeyDown(Key key);
  bool dropyn_Key();
  void SelectAll(TextBox& box);
};

}  // namespace tallyroll
