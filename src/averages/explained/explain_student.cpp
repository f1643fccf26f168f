// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/explain_student.h"

#include "platform/portal.h"
#include "platform/surroundings.h"

namespace tallyroll {

void ShowExplanation(i16 student) {
  if (student < 1 || student > Current().NumStudents)
    return (void)ShowMessage("You must first select a student");
  const i16 before = CurrentStudent;
  const int mode = OpenState;
  CurrentStudent = student;
  OpenState = kExplainStudent;
  ShowPortal("frmexplain");
  CurrentStudent = before;
  OpenState = mode;
}

}  // namespace tallyroll
