// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/card_details.h"

#include "attendance/daily_codes.h"
#include "base/number_text.h"
#include "base/text.h"
#include "seating/seating_chart.h"
#include "store/program_state.h"

namespace tallyroll {

std::string CardDetails(int student, bool more) {
  const Class& c = Current();
  const Student& s = c.Students[static_cast<std::size_t>(student)];
  std::string line(Trim(CardsShowIds() ? s.lastname : s.id));
  if (!more) return line;
  if (c.NumDays > 0) line += "  A " + PlainNumberText(CountDays(s, {1, c.NumDays}).Absences());
  if (UpperBound(s.Marks) >= c.NumInstruments && c.NumInstruments > 0)
    line += "  " + std::string(Trim(s.Marks[static_cast<std::size_t>(c.NumInstruments)].view()));
  return line;
}

}  // namespace tallyroll
