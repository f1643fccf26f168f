// SPDX-License-Identifier: GPL-3.0-or-later
// frmunusual: the Unusual Marks Portal. It lists marks that may be slips and leads to their cells.
#pragma once

#include <vector>

#include "insight/unusual_marks.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmunusual : Portal {
  frmunusual();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label found;
  Grid Grid1;  // student, grade, mark, kind, and what is told of it
  Label rule;  // by which a mark is far from others
  CommandButton goto_cell, exit;

  void goto_cell_Click();

 private:
  std::vector<UnusualMark> marks_;
};

}  // namespace tallyroll
