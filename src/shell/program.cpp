// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program.h"

#include "attendance/term_table.h"
#include "averages/engine/average_state.h"
#include "insight/chosen_cell.h"
#include "letters/mail/mail_draft.h"
#include "printing/page/print_job.h"
#include "roster/chosen_students.h"
#include "shell/shell_state.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {

void ResetProgram() {
  ResetStore();
  ResetSettings();
  ForgetChosenStudents();
  ResetAttendance();
  ResetAverages();
  ResetPrinting();
  ResetInsight();
  Draft = MailDraft();
  ResetShell();
}

}  // namespace tallyroll
