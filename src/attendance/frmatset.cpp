// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmatset.h"

#include <limits>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kMostDays = std::numeric_limits<i16>::max();

std::string MonthText(TermMonth month) {
  return std::string(MonthName(month.month)) + " " + PlainNumberText(month.year);
}

bool MayLose(std::string_view what) {
  return Ask(what, BoxButtons::kOkCancel, BoxIcon::kExclamation, "Note to the teacher") ==
         BoxAnswer::kOk;
}

}  // namespace

frmatset::frmatset() : Portal("frmatset") {
  Caption = "Attendance Settings Portal";
  HelpContext = 375;
  Command1.Caption = Command3.Caption = "<";
  Command2.Caption = Command4.Caption = ">";
  OKButton.Caption = "OK";
  CancelButton.Caption = "Cancel";
}

void frmatset::Declare(ControlTable& table) {
  table.Add("startlabel", startlabel);
  table.Add("Command1", Command1).Click([this] { StepStart(-1); });
  table.Add("startmonth", startmonth);
  table.Add("startyear", startyear);
  table.Add("Command2", Command2).Click([this] { StepStart(1); });
  table.Add("endlabel", endlabel);
  table.Add("Command3", Command3).Click([this] { StepEnd(-1); });
  table.Add("endmonth", endmonth);
  table.Add("endyear", endyear);
  table.Add("Command4", Command4).Click([this] { StepEnd(1); });
  table.Add("OKButton", OKButton).Click([this] { OKButton_Click(); });
  table.Add("CancelButton", CancelButton).Click([this] { QueryUnload(); });
}

void frmatset::Load() {
  ReadValues();
}

void frmatset::ReadValues() {
  choice_ = ChoiceOfClass();
  startlabel.Caption = "Original Starting Date is " + MonthText(choice_.start);
  endlabel.Caption = "Original Ending Date is " + MonthText(choice_.end);
  ShowValues();
}

void frmatset::ShowValues() {
  startmonth.Caption = MonthName(choice_.start.month);
  startyear.Caption = PlainNumberText(choice_.start.year);
  endmonth.Caption = MonthName(choice_.end.month);
  endyear.Caption = PlainNumberText(choice_.end.year);
}

void frmatset::StepStart(int by) {
  choice_.start = Stepped(choice_.start, by);
  ShowValues();
}

void frmatset::StepEnd(int by) {
  choice_.end = Stepped(choice_.end, by);
  ShowValues();
}

void frmatset::OKButton_Click() {
  const auto dates = DatesOf(choice_);
  if (!dates || dates->Days() > kMostDays) {
    ShowMessage(dates ? "A class holds no more than 32767 days of attendance"
                      : "The start date must precede the end date");
    return ReadValues();
  }
  if (Current().NumDays == 0) {
    SetUpRange(*dates);
    return Unload();
  }
  if (!MoveRange(*dates)) return ReadValues();
  AdoptRange(*dates);
  ClassWindow().EnableClassMenus(true);
  Unload();
}

// The answer to the first question covers both ends, unless the start did not come to a later
// month number. A Cancel at the second leaves the marks where the first one put them.
bool frmatset::MoveRange(const RangeDates& dates) {
  const RangeMove move = MoveTo(dates);
  if (StartsLater(choice_, move)) {
    if (!MayLose("You are starting at a later month; the information for the earlier month(s) will "
                 "be lost."))
      return false;
    MoveMarksToLaterStart(move);
  }
  if (EndsEarlier(choice_, move) && choice_.start.month <= move.old_first.month &&
      !MayLose("You are ending at an earlier month; the information for the later month(s) will "
               "be lost."))
    return false;
  if (StartsEarlier(choice_, move)) MoveMarksToEarlierStart(move);
  return true;
}

}  // namespace tallyroll
