// SPDX-License-Identifier: GPL-3.0-or-later
// frmoptions: the Current Weights and Rounding Summary Portal.
#pragma once

#include "platform/portal.h"

namespace tallyroll {

// OpenState: where the averages go.
inline constexpr int kForTheScreen = 82;
inline constexpr int kForThePrinter = 69;

struct frmoptions : Portal {
  frmoptions();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label method;
  Label round;
  Grid grdgrade;                 // the rounding scale in force
  Label dropabs, dis, dlt, dsl;  // left-out as lowest, no redistribution, by type, single lowest
  Grid amountgrid;               // items, for the methods by items and by points
  Grid typegrid;                 // types, for the others
  Frame pointframe;
  Label totals, extra;
  CommandButton Change1, Change2, continue_, EXIT;

  void Change1_Click();
  void Change2_Click();
  void continue_Click();

 private:
  void ShowSettings();
  void ShowScale();
  void lowframe();
  void showgrid();
  void maketypename();
  void makegridpoints();
  void showgridpoint();

  bool for_printer_ = false;
};

}  // namespace tallyroll
