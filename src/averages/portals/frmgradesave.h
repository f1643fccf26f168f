// SPDX-License-Identifier: GPL-3.0-or-later
// frmgradesave: the Save Grade Portal. It stores the final grades of the class as a new grade.
#pragma once

#include <vector>

#include "averages/engine/engine.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmgradesave : Portal {
  frmgradesave();
  void Declare(ControlTable& table) override;

  TextBox title, code;
  CommandButton save, cancel;

  void save_Click();

 private:
  void AddGrade(const std::vector<ShortText>& marks);
};

}  // namespace tallyroll
