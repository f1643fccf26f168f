// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmstartup.h"

namespace tallyroll {

frmstartup::frmstartup() : Portal("frmstartup") {
  Caption = "Welcome to Tallyroll";
  HelpContext = 150;
  program.Caption = "Tallyroll";
  greeting.Caption = "Good to see you. Your classes are ready when you are.";
  Command1.Caption = "C&ontinue";
}

void frmstartup::Declare(ControlTable& table) {
  table.Add("Picture1", Picture1);
  table.Add("program", program);
  table.Add("version", version);
  table.Add("greeting", greeting);
  table.Add("Command1", Command1).Click([this] { Unload(); });
}

void frmstartup::Load() {
  version.Caption = "Version " TALLYROLL_VERSION;
}

}  // namespace tallyroll
