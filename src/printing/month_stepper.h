// SPDX-License-Identifier: GPL-3.0-or-later
// A month and its year, with a button back and one forward.
#pragma once

#include "base/date_serial.h"
#include "platform/controls.h"

namespace tallyroll {

struct MonthStepper {
  MonthStepper();

  Label month, year;
  CommandButton back, forward;

  void Show(double day);  // the month of that day
  void Step(int months);
  double First() const;  // day serial of its first day

 private:
  CivilDate date_{2000, 1, 1};
};

}  // namespace tallyroll
