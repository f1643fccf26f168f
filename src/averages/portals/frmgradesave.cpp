// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmgradesave.h"

#include <cmath>

#include "averages/average_settings.h"
#include "averages/rounding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_file.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLongestCode = 3;
constexpr Currency kNotInUse = Currency::FromScaled(2'0000);

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + PlainNumberText(number);
}

// "9/1/2026 14:05". A full minute may lie a hair below itself, so whole seconds are taken first.
std::string DateAndTimeText(double now) {
  constexpr double kSecondsOfDay = 24 * 60 * 60;
  const double seconds = std::round(now * kSecondsOfDay);
  const double day = std::floor(seconds / kSecondsOfDay);
  const int minutes = static_cast<int>(seconds - day * kSecondsOfDay) / 60;
  return DateText(day, Platform().ShortDateOrder()) + " " + TwoDigits(minutes / 60) + ":" +
         TwoDigits(minutes % 60);
}

// The final grade of each student as a mark. An error leaves the students as they were.
AverageError FinalMarks(std::vector<ShortText>& marks) {
  Class& c = Current();
  const TypeSums type_weights = c.TypeWeights;
  const Currency exact = ExactAverage;
  std::vector<ShortText> before;
  for (int i = 1; i <= c.NumStudents; ++i)
    before.emplace_back(MarkOf(c.Students[static_cast<std::size_t>(i)], 0));
  AverageError error;
  for (int i = 1; i <= c.NumStudents && !error; ++i) {
    CurrentStudent = static_cast<i16>(i);
    StudentAverage average;
    error = AverageStudent(average);
    marks.push_back(average.grade.mark);
  }
  if (!error) return error;
  c.TypeWeights = type_weights;
  ExactAverage = exact;
  for (std::size_t i = 1; i <= before.size(); ++i)
    if (!c.Students[i].Marks.empty()) c.Students[i].Marks[0] = before[i - 1];
  return error;
}

}  // namespace

frmgradesave::frmgradesave() : Portal("frmgradesave") {
  Caption = "Save Grade Portal";
  HelpContext = 540;
  title.MaxLength = static_cast<int>(kLongestText);
  code.MaxLength = kLongestCode;
  save.Caption = "&Save";
  cancel.Caption = "&Cancel";
}

void frmgradesave::Declare(ControlTable& table) {
  table.Add("title", title);
  table.Add("code", code);
  table.Add("save", save).Click([this] { save_Click(); });
  table.Add("cancel", cancel).Click([this] { Unload(); });
}

void frmgradesave::save_Click() {
  if (Trim(title.Text).empty() || Trim(code.Text).empty()) {
    ShowMessage("You must fill in both a Title and a 3 character code.", BoxIcon::kCritical);
    return SetFocusAndSelect(Trim(title.Text).empty() ? title : code);
  }
  if (Current().NumInstruments == kMostGrades)
    return static_cast<void>(ShowMessage(kNoMoreGrades, BoxIcon::kCritical));
  Platform().SetWaitCursor(true);
  std::vector<ShortText> marks;
  const AverageError error = FinalMarks(marks);
  if (!error) AddGrade(marks);
  Platform().SetWaitCursor(false);
  if (error) return static_cast<void>(ShowMessage(AverageErrorText(error), BoxIcon::kCritical));
  Unload();
}

// The marks are those that the screen showed: the new grade takes no part in them.
void frmgradesave::AddGrade(const std::vector<ShortText>& marks) {
  Class& c = Current();
  const int last = ++c.NumInstruments;
  ReDimPreserve(c.Instruments, last);
  ReDimPreserve(c.Weights, last);
  ReDimPreserve(c.InstrumentUse, last);
  Instrument& grade = c.Instruments.back();
  grade.title = title.Text;
  grade.code = code.Text;
  grade.mvalue = 100;
  grade.lowpass = "65";
  grade.dropyn = "N";
  grade.testdate = DateAndTimeText(Platform().Now());
  grade.typecode = "A ";
  grade.countflag = "N";
  if (c.Method > 1) c.InstrumentUse.back() = kNotInUse;
  for (std::size_t i = 1; i <= marks.size(); ++i) {
    ReDimPreserve(c.Students[i].Marks, last, ShortText(kNewMark));
    c.Students[i].Marks.back() = marks[i - 1];
  }
  SaveChangedClass();
  if (c.Changed == kFalse)
    ClassWindow().ShowStatus("The averages stand as " + grade.title + ". " + SavedText(c.FileName));
  if (c.AverageWork2 == 2 && (c.Method == 1 || c.Method == 3)) c.AverageWork2 = 0;
  if (c.AverageWork1 == 2 && c.Method != 1) c.AverageWork1 = 0;
  CurrentStudent = static_cast<i16>(last);
  ClassWindow().showform3();
}

}  // namespace tallyroll
