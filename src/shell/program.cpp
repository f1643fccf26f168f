// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program.h"

#include "platform/class_window.h"
#include "platform/portal.h"
#include "store/program_state.h"

namespace tallyroll {

void ResetProgram() {
  SetClassWindow(nullptr);
  MakePortal = nullptr;
  ResetStore();
}

}  // namespace tallyroll
