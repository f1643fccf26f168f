// SPDX-License-Identifier: GPL-3.0-or-later
// frmstudents: the Student Portal. It picks students for printing or e-mail (chosen_students.h).
#pragma once

#include <vector>

#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

struct frmstudents : Portal {
  frmstudents();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { finished_Click(); }

  ListBox orglist;    // those not chosen
  ListBox printlist;  // the choice
  CommandButton enter, remove;
  CommandButton allstudents, clear, finished;
  Label Label3;

  void enter_Click();
  void remove_Click();
  void allstudents_Click();
  void clear_Click();
  void finished_Click();

 private:
  using Places = std::vector<i16>;
  void FillLists();
  void Move(ListBox& from, Places& places, Places& to);

  Places rest_, chosen_;  // the students behind the lines of the two lists
};

}  // namespace tallyroll
