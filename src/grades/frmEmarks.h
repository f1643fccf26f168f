// SPDX-License-Identifier: GPL-3.0-or-later
// frmEmarks: the Edit Grades by Title Portal. One grade at a time, with the marks of all students.
#pragma once

#include "grades/grade_form.h"

namespace tallyroll {

// CurrentStudent holds the Instrument shown; 0 leaves the choice to the teacher. OpenState holds
// the student whose mark is in work first; 0 is the first of the class.
struct frmEmarks : GradeForm {
  frmEmarks();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  ListBox list1;   // the titles
  Pages fields;    // a sentence until a title is chosen, then its header
  Label tempdate;  // the date as its text stands, where that is no date
  CommandButton Exitt, cancel;

  bool DataChanged = false;
  i16 Mode = 1;  // of the last check: 1 clean, 2 a required field is empty, 3 mvalue was refused

  void list1_Change();
  void list1_Click();
  void Exitt_Click();
  void cancel_Click();

 protected:
  void HeaderChanged() override;
  void MarksChanged() override { DataChanged = true; }

 private:
  Instrument& Shown();
  void makefields();
  void checknew();
  bool Check();
  void Store();
  void EnableFields(bool on);
  void GoToStudent(int student);

  bool refused_ = false;   // the pick of another title
  int shown_ = 0;          // the Instrument in the fields; 0 is none
  i16 maximum_score_ = 0;  // as the last check found it
};

}  // namespace tallyroll
