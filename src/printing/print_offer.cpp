// SPDX-License-Identifier: GPL-3.0-or-later
// What the Printer Portal offers of the class: its dates, its grades, its attendance periods.
#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "printing/frmprintall.h"
#include "printing/reports/report_parts.h"
#include "store/program_state.h"

namespace tallyroll {

void frmprintall::LoadShown() {
  rollname.Value = NameMode == 57;
  rollid.Value = NameMode == 73;
  rollboth.Value = !rollname.Value && !rollid.Value;
}

// From the first to the last day that the class has, and today where it has none.
void frmprintall::LoadDates() {
  const Class& c = Current();
  const double today = std::floor(Platform().Now());
  std::vector<double> days, dates;
  for (std::size_t i = 1; i < c.AttendanceDays.size(); ++i)
    days.push_back(c.AttendanceDays[i].date);
  for (int i = 1; i <= GradeCount(c); ++i)
    if (const auto date = DateFromText(GradeInReport(i).testdate, Platform().ShortDateOrder()))
      dates.push_back(*date);
  if (days.empty()) days.push_back(today);
  if (dates.empty()) dates.push_back(today);
  start.Show(*std::min_element(days.begin(), days.end()));
  end.Show(*std::max_element(days.begin(), days.end()));
  datestart.Value = *std::min_element(dates.begin(), dates.end());
  dateend.Value = *std::max_element(dates.begin(), dates.end());
}

// Also after a preview, from which a grade may have been saved: it can be chosen, and what was
// chosen stays.
void frmprintall::LoadGrades() {
  onetypes.Fill();
  rolltypes.Fill();
  lsttitle.List.clear();
  for (int i = 1; i <= GradeCount(Current()); ++i)
    lsttitle.List.emplace_back(Trim(GradeInReport(i).title));
}

void frmprintall::LoadSummaries() {
  const Class& c = Current();
  for (int i = 1; i <= c.NumSummaries; ++i)
    lstatt.List.emplace_back(Trim(c.Summaries[static_cast<std::size_t>(i)].title));
}

}  // namespace tallyroll
