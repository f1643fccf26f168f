// SPDX-License-Identifier: GPL-3.0-or-later
// frmdGrade: deletes a grade, carries one to another class, or puts the grades in another order.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

// OpenState: which of the three.
inline constexpr int kDeleteGrades = 121;
inline constexpr int kTransferGrade = 157;
inline constexpr int kOrderOfGrades = 269;

// CurrentStudent holds the Instrument chosen; 0 is none.
struct frmdGrade : Portal {
  frmdGrade();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox List1;  // a line a grade: code and title
  Frame reorderFrame;
  CommandButton up, down, delete_, transfer, exitbt;

  void delete_Click();
  void transfer_Click();
  void up_Click();
  void down_Click();
  void exitbt_Click() { Unload(); }

 private:
  void FillList();
  bool TakeChoice();
  void ChangePlaces(int i, int k);
};

}  // namespace tallyroll
