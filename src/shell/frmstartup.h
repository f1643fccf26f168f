// SPDX-License-Identifier: GPL-3.0-or-later
// frmstartup: greets the teacher when the program starts without a class file.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

struct frmstartup : Portal {
  frmstartup();
  void Declare(ControlTable& table) override;
  void Load() override;

  PictureBox Picture1;
  Label program, version, greeting;
  CommandButton Command1;
};

}  // namespace tallyroll
