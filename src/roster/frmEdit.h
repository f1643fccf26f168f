// SPDX-License-Identifier: GPL-3.0-or-later
// frmEdit: the Edit Portal. It changes the fields of students picked from a list.
#pragma once

#include "roster/student_form.h"

namespace tallyroll {

// OpenState: CurrentStudent is shown, 0 leaves the pick to the teacher.
inline constexpr int kEditStudent = 25;
inline constexpr int kEditAtComment = 27;  // the same, and the focus goes to the comment

struct frmEdit : StudentForm {
  frmEdit();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  ListBox List1;                // a line a student, in the order of the class
  TextBox& comment = comments;  // its name in this Portal
  CommandButton copy, paste, PREVIOUS, nextt, exit, cancel;

  void List1_Change();
  void TabStrip1_Change();
  void copy_Click();
  void paste_Click();
  void PREVIOUS_Click();
  void nextt_Click();
  void exit_Click();
  void cancel_Click();

 private:
  bool StoreShown();
  void Show(int position);
  void MoveTo(int position);
  void FocusComment();

  bool at_comment_ = false;  // opened to write comments
};

}  // namespace tallyroll
