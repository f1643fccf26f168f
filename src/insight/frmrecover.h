// SPDX-License-Identifier: GPL-3.0-or-later
// frmrecover: the Recovered Work Portal. After a crash it offers what was worked on and not saved.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

struct frmrecover : Portal {
  frmrecover();
  void Declare(ControlTable& table) override;
  void Load() override;  // WorkFound
  void QueryUnload() override;

  Label found;
  Grid Grid1;  // student, grade, what, in the file, worked on
  CommandButton keep, discard;

 private:
  void keep_Click();
};

}  // namespace tallyroll
