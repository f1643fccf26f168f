// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmDatt.h"

#include "attendance/summary_periods.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {

frmDatt::frmDatt() : Portal("frmDatt") {
  Caption = "Delete Attendance Portal";
  HelpContext = 400;
  delete_.Caption = "&Delete";
  exitbt.Caption = "E&xit";
}

void frmDatt::Declare(ControlTable& table) {
  table.Add("list1", list1);
  table.Add("delete", delete_).Click([this] { delete_Click(); });
  table.Add("exitbt", exitbt).Click([this] { exitbt_Click(); });
}

void frmDatt::Load() {
  FillList();
  SetFocus(list1);
}

void frmDatt::FillList() {
  const Class& c = Current();
  list1.List.clear();
  list1.ListIndex = -1;
  for (int k = 1; k <= c.NumSummaries; ++k) {
    const AttendanceSummary& summary = c.Summaries[static_cast<std::size_t>(k)];
    list1.List.push_back(summary.title + "\t" + summary.code);
  }
}

void frmDatt::delete_Click() {
  if (list1.ListIndex < 0) {
    ShowMessage("You must select an attendance summary to delete or press Exit.");
    return;
  }
  const int chosen = list1.ListIndex + 1;
  const std::string& title = Current().Summaries[static_cast<std::size_t>(chosen)].title;
  const MessageRequest question{.text = "Delete " + std::string(TrimRight(title)) + "?",
                                .title = "Delete Portal",
                                .buttons = BoxButtons::kOkCancel,
                                .icon = BoxIcon::kQuestion,
                                .second_is_default = true};
  if (Platform().MessageBox(question) != BoxAnswer::kOk) return;
  DeleteSummary(chosen);
  FillList();
}

void frmDatt::exitbt_Click() {
  ClassWindow().EnableClassMenus(true);
  Unload();
}

}  // namespace tallyroll
