// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frminfo.h"

#include "averages/explained/explain_student.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"

namespace tallyroll {

frminfo::frminfo() : StudentScreen("frminfo", list1, "Codes") {
  Caption = "Show Information Portal";
  HelpContext = 570;
  mnuprevious.Caption = "&Previous";
  mnuext.Caption = "&Next";
  mnugraph.Caption = "&Graph";
  explain.Caption = "&Explain Average";
}

void frminfo::Declare(ControlTable& table) {
  table.Add("mnuprevious", mnuprevious).Click([this] { ShowPrevious(); });
  table.Add("mnuext", mnuext).Click([this] { ShowNext(); });
  table.Add("mnugraph", mnugraph).Click([this] { mnugraph_Click(); });
  DeclareList(table, "list1");
  table.Add("fullname", fullname);
  DeclareRecord(table);
  table.Add("explain", explain).Click([] { ShowExplanation(CurrentStudent); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
}

void frminfo::Load() {
  const int wanted = OpenState == kInfoOfStudent ? CurrentStudent : 0;
  StudentScreen::Load();
  if (wanted >= 1 && wanted <= Current().NumStudents) Show(wanted);
}

void frminfo::ShowMore() {
  const Student& student = Current().Students[static_cast<std::size_t>(CurrentStudent)];
  fullname.Caption =
      Trim(std::string(Trim(student.firstname)) + " " + std::string(Trim(student.lastname)));
}

// Whatever the graph does with CurrentStudent, the comment on the screen stays this student's.
void frminfo::mnugraph_Click() {
  if (CurrentStudent == 0) return (void)ShowMessage("You must first select a student");
  const i16 shown = CurrentStudent;
  ShowPortal("frmgrone");
  CurrentStudent = shown;
}

}  // namespace tallyroll
