// SPDX-License-Identifier: GPL-3.0-or-later
// frmDatt: the Delete Attendance Portal. It takes summary periods out of the class.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

struct frmDatt : Portal {
  frmDatt();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { exitbt_Click(); }

  ListBox list1;  // title and code
  CommandButton delete_, exitbt;

  void delete_Click();
  void exitbt_Click();

 private:
  void FillList();
};

}  // namespace tallyroll
