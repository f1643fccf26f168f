// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/calendar.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kFromDates = 2;

// Indexes of AttendanceDays, both included; none when first is above last.
struct DayRange {
  int first = 1;
  int last = 0;
};

// The lowest index of that date; `otherwise` when the text is no date or the date is no day.
int IndexOfDate(const Class& c, std::string_view text, int otherwise) {
  const auto date = DateFromText(Trim(text), Platform().ShortDateOrder());
  if (!date) return otherwise;
  for (int j = 1; j <= c.NumDays; ++j) {
    if (c.AttendanceDays[static_cast<std::size_t>(j)].date == *date) return j;
  }
  return otherwise;
}

// A date outside the stored range widens the summary quietly.
DayRange RangeOf(const Class& c, const AttendanceSummary& summary) {
  return {IndexOfDate(c, summary.startdate, 1), IndexOfDate(c, summary.enddate, c.NumDays)};
}

i16 CountOf(const Student& s, DayRange range, char code) {
  const int last = std::min(range.last, UpperBound(s.DailyMarks));
  i16 count = 0;
  for (int j = range.first; j <= last; ++j) {
    if (s.DailyMarks[static_cast<std::size_t>(j)].view().front() == code) ++count;
  }
  return count;
}

std::string DetailText(const Student& s, DayRange range) {
  std::string text;
  for (const char code : {'C', 'E', 'S', 'N'})
    text += SignedNumberText(CountOf(s, range, code)) + "/";
  return text;
}

}  // namespace

std::string FirstOfMonthDate(int month, int year) {
  const std::string m = SignedNumberText(month);
  const std::string y = SignedNumberText(year);
  switch (Platform().ShortDateOrder()) {
    case DateOrder::kDayFirst:
      return "01/" + m + "/" + y;
    case DateOrder::kYearFirst:
      return y + "/" + m + "/01";
    case DateOrder::kMonthFirst:
      break;
  }
  return m + "/01/" + y;
}

void RecalculateRangeSummaries() {
  Class& c = Current();
  for (std::size_t k = 1; k <= static_cast<std::size_t>(c.NumSummaries); ++k) {
    if (c.Summaries[k].kind != kFromDates) continue;
    const DayRange range = RangeOf(c, c.Summaries[k]);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(c.NumStudents); ++i) {
      Student& s = c.Students[i];
      s.SummaryAbsent[k] = FixedText<5>(PlainNumberText(CountOf(s, range, 'A')));
      s.SummaryLate[k] = PlainNumberText(CountOf(s, range, 'L'));
      s.SummaryDetail[k] = DetailText(s, range);
    }
  }
}

}  // namespace tallyroll
