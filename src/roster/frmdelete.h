// SPDX-License-Identifier: GPL-3.0-or-later
// frmdelete: the Delete Portal. It takes a student off the roster, for good or to the clipboard.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

// CurrentStudent follows the pick; 0 is none.
struct frmdelete : Portal {
  frmdelete();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox List1;  // a line a student, in the order of the class
  Frame clipframe;
  OptionButton info;  // the clipboard takes everything
  OptionButton nid;   // the clipboard takes what a new student has
  CommandButton delete_, delclip, exit;

  void List1_Change();
  void delete_Click();
  void delclip_Click();
  void exit_Click() { Unload(); }

 private:
  void FillList();
  bool NoneChosen();
  void RemoveChosen();
};

}  // namespace tallyroll
