// SPDX-License-Identifier: GPL-3.0-or-later
// frmmargins: the Printer Margins Portal.
#pragma once

#include <array>
#include <string>

#include "platform/portal.h"

namespace tallyroll {

struct frmmargins : Portal {
  frmmargins();
  void Declare(ControlTable& table) override;
  void Load() override;

  // A margin in inches, the same in hundredths, and the buttons that step these.
  struct Side {
    TextBox inches;
    TextBox hundredths;  // only looked at
    CommandButton more, less;
    int steps = 0;
  };
  Frame Frame1;
  std::array<Side, 4> sides;  // top, bottom, left, right
  CommandButton OKButton, CancelButton;

  void inches_Change(Side& side);
  void step_Click(Side& side, int by);
  void OKButton_Click();

 private:
  void Refuse(Side& side);
};

}  // namespace tallyroll
