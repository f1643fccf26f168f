// SPDX-License-Identifier: GPL-3.0-or-later
// frmAdd: the Add Student Portal. It adds students to the class one after another.
#pragma once

#include <optional>
#include <string>

#include "roster/student_clipboard.h"
#include "roster/student_form.h"

namespace tallyroll {

// Position walks from NumStudents + 1, which has no record yet, back among the students and forward
// again. What was stored stays stored: cancel only withdraws the record in progress.
struct frmAdd : StudentForm {
  frmAdd();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Label where;      // the how manyth student of which class
  ListBox entered;  // the students as they were entered
  CommandButton PREVIOUS, nextt, addclip, Exitt, cancel;

  std::string ClipRead;  // the clipboard's text that was read last

  // Position has its record in the class.
  bool RecordExists() const;
  // Makes the record of the next student; it counts as begun until it is stored.
  void NewStudentRecord();

  void entered_Change();
  void PREVIOUS_Click();
  void nextt_Click();
  void addclip_Click();
  void Exitt_Click();
  void cancel_Click();

 private:
  bool KeepStudent();
  void GoTo(int position);
  bool LeaveStudent();
  void ShowWhere();
  void WithdrawBegun();

  bool begun_ = false;  // the record at Position was made and not yet stored
  // The student on the form came from the clipboard, and the lists wait for the record.
  std::optional<StudentText> from_clipboard_;
};

}  // namespace tallyroll
