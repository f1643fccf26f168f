// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/form1.h"

#include <algorithm>

#include "attendance/summary_periods.h"
#include "averages/explained/explain_student.h"
#include "base/number_text.h"
#include "insight/chosen_cell.h"
#include "insight/chosen_snapshot.h"
#include "insight/frmhistory.h"
#include "platform/portal.h"
#include "platform/surroundings.h"
#include "shell/class_grid_notes.h"
#include "shell/class_menu.h"
#include "shell/class_toolbar.h"
#include "shell/shell_state.h"
#include "store/class_file.h"
#include "store/frmpassword.h"

namespace tallyroll {
namespace {

// The portals of the methods 0 to 3 by their menu entries.
std::string_view AverageEntry(i16 method) {
  switch (method) {
    case 1:
      return "mnupercent";
    case 2:
      return "mnupoints";
    case 3:
      return "mnuPointsType";
    default:
      return "mnuindweights";
  }
}

std::string_view NameModeEntry(i16 mode) {
  switch (mode) {
    case 57:
      return "mnuname";
    case 82:
      return "mnuidfirst";
    case 73:
      return "mnuid";
    default:
      return "mnunamefirst";
  }
}

}  // namespace

Form1::Form1() : menu(MakeClassMenu(*this)), Toolbar2(MakeClassToolbar(*this)) {
  Grid1.Notes = NotesOfClassGrid(*this);
  EnableClassMenus(false);
  ShowSteps();
  menu.Enable("mnuoptions", false);
  menu.Enable("mnuprtgrade", false);
}

int Form1::Slot() const {
  return static_cast<int>(LeadingNumber(Tag));
}

void Form1::Load() {
  switch (PendingAction) {
    case 9:
      OpenRecentPick();
      break;
    case 10:
    case 15:
      OpenNewClass(PendingAction);
      break;
    case 20:
      OpenByDialog();
      break;
    case 501:
      ImportText();
      break;
    case kStartFromText:
      StartFromText();
      break;
    case kTransferRoster:
      TransferRoster();
      break;
    default:
      break;
  }
  PendingAction = 0;
}

void Form1::Activate() {
  if (Tag.empty()) return;
  CurrentClass = static_cast<i16>(Slot());
  if (Current().NumStudents == 0) return;
  CheckNameMode();
  showform3();
}

void Form1::CheckNameMode() {
  for (const std::string_view entry : {"mnunamefirst", "mnuname", "mnuidfirst", "mnuid"})
    menu.Check(entry, false);
  menu.Check(NameModeEntry(NameMode), true);
}

void Form1::SetNameMode(i16 mode) {
  NameMode = mode;
  Activate();
}

// What the teacher does in a window is meant for its class, whatever another window's closing has
// left in work.
void Form1::TakeUpClass() {
  EndStatus();
  EndMarks();
  if (!Tag.empty()) CurrentClass = static_cast<i16>(Slot());
}

void Form1::ShowStatus(std::string_view text) {
  StatusText = text;
  message_stands_ = !text.empty();
  ++MessagesTold;
}

void Form1::EndStatus() {
  if (message_stands_) StatusText.clear();
  message_stands_ = false;
}

void Form1::ShowHint(std::string_view text) {
  if (!message_stands_) StatusText = text;
}

// What is clicked may destroy this window, so its handler runs from a copy.
void Form1::ClickMenu(std::string_view name) {
  if (!menu.Reachable(name)) return;
  TakeUpClass();
  const std::function<void()> click = menu[name].click;
  if (click) click();
}

void Form1::ClickTool(std::string_view key) {
  const auto button = std::find_if(Toolbar2.begin(), Toolbar2.end(),
                                   [&](const ToolButton& b) { return b.key == key; });
  if (button == Toolbar2.end() || !button->enabled) return;
  TakeUpClass();
  const std::function<void()> click = button->click;
  if (click) click();
}

void Form1::RunPortal(std::string_view portal, int open_state, AfterPortal after) {
  OpenState = open_state;
  ShowPortal(portal);
  const bool done = OpenState == kPasswordChanged;
  OpenState = 0;
  if (Tag.empty()) return;
  EnableClassMenus(true);
  showform3();
  if (after == AfterPortal::kSaveIfDone && done) SavePassword();
}

void Form1::SavePassword() {
  mnusave_Click();
  if (Current().Changed != kFalse) return;
  if (Current().PasswordSet == 1) AskToKeepMarks();
  // What the save told stays: it may name a file that was kept.
  ShowStatus(StatusText + (Current().PasswordSet == 1
                               ? " It opens with its password from now on."
                               : " It opens without a password from now on."));
}

void Form1::mnuAverage_Click() {
  menu[AverageEntry(Current().Method)].click();
}

void Form1::mnuattsumm_Click() {
  if (Current().NumSummaries < kMostSummaries)
    RunPortal("frmAtsum", 0, AfterPortal::kRefill);
  else
    ShowMessage(kNoMoreSummaries);
}

void Form1::mnuStatistic_Click() {
  CurrentStudent = 0;
  RunPortal("frmstatistic", 0, AfterPortal::kRefill);
  if (CurrentStudent > 0) RunPortal("frmgraph", 0, AfterPortal::kRefill);
}

void Form1::ExplainStudent() {
  const int student = Grid1.Row - Grid1.FixedRows + 1;
  CurrentStudent = static_cast<i16>(student <= Current().NumStudents ? student : 0);
  RunPortal("frmexplain", kExplainStudent, AfterPortal::kRefill);
}

void Form1::ShowHistoryOfStudent() {
  const int student = Grid1.Row - Grid1.FixedRows + 1;
  CurrentStudent = static_cast<i16>(student <= Current().NumStudents ? student : 0);
  RunPortal("frmhistory", kHistoryOfStudent, AfterPortal::kRefill);
}

void Form1::ShowGraphOfGrade() {
  const int grade = Grid1.Col - Grid1.FixedCols + 1;
  if (grade < 1 || grade > Current().NumInstruments)
    return (void)ShowMessage("You must choose a Testing Instrument");
  CurrentStudent = static_cast<i16>(grade);
  RunPortal("frmgraph", 0, AfterPortal::kRefill);
}

void Form1::ShowUnusual() {
  ChosenCell = {};
  RunPortal("frmunusual", 0, AfterPortal::kRefill);
  if (ChosenCell.student == 0) return;
  Grid1.Row = ChosenCell.student + Grid1.FixedRows - 1;
  Grid1.Col = ChosenCell.grade + Grid1.FixedCols - 1;
}

// The snapshot stands beside the class from then on, also while the class is worked on.
void Form1::ShowSnapshots() {
  ChosenSnapshot = {};
  RunPortal("frmsnapshots", 0, AfterPortal::kRefill);
  if (Current().Method > 3) {
    menu.Enable("mnuoptions", false);
    menu.Enable("mnuprtgrade", false);
  }
  if (ChosenSnapshot.class_path.empty()) return;
  snapshot_.Close();
  snapshot_.Show();
}

}  // namespace tallyroll
