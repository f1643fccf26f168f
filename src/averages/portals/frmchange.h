// SPDX-License-Identifier: GPL-3.0-or-later
// frmchange: the Preview Change Portal, the averages before and after a change that is not taken
// yet.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

struct frmchange : Portal {
  frmchange();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label found;
  Grid Grid1;  // student, average and grade before and after, difference
  CommandButton exit;
};

}  // namespace tallyroll
