// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/shell_state.h"

#include "platform/class_window.h"
#include "platform/month_printer.h"
#include "platform/portal.h"
#include "platform/table_printer.h"
#include "printing/month_printout.h"
#include "printing/weight_printout.h"
#include "shell/current_window.h"
#include "shell/find_sources.h"
#include "shell/portal_list.h"

namespace tallyroll {
namespace {

FrameScreen no_screen;

}  // namespace

int PendingAction = 0;
std::string RecentPick;
std::array<std::unique_ptr<Form1>, kClassSlots> ClassWindows;
std::unique_ptr<MDIForm1> FrameForm;
FrameScreen* Screen = &no_screen;

void ResetShell() {
  PendingAction = 0;
  RecentPick.clear();
  for (auto& window : ClassWindows) window.reset();
  FrameForm.reset();
  Screen = &no_screen;
  SetClassWindow(&CurrentWindow());
  MakePortal = &MakePortalByName;
  MakeFindEntries = &ProgramFindEntries;
  PrintTable = &PrintWeights;
  PrintMonth = &PrintAttendanceMonth;
}

}  // namespace tallyroll
