// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/month_stepper.h"

#include "base/number_text.h"

namespace tallyroll {

MonthStepper::MonthStepper() {
  back.Caption = "<";
  forward.Caption = ">";
}

void MonthStepper::Show(double day) {
  date_ = DateOfSerial(day);
  date_.day = 1;
  month.Caption = MonthName(date_.month);
  year.Caption = PlainNumberText(date_.year);
}

void MonthStepper::Step(int months) {
  CivilDate date = date_;
  date.month += months;
  if (date.month < 1) date = {date.year - 1, 12, 1};
  if (date.month > 12) date = {date.year + 1, 1, 1};
  if (IsValidDate(date)) Show(DateSerial(date));
}

double MonthStepper::First() const {
  return DateSerial(date_);
}

}  // namespace tallyroll
