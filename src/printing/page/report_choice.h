// SPDX-License-Identifier: GPL-3.0-or-later
// What a teacher chose for a report. The Printer Portal and the command line fill it; the report
// writers read it.
#pragma once

#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

enum class TypeSort { kNone, kAllTypes, kSomeTypes };
enum class Rank { kNone, kHighToLow, kLowToHigh };
enum class Shown { kId, kName, kNameAndId };
enum class RollBookOrder { kNone, kAllTypes, kSomeTypes, kAllDates, kSomeDates };

struct ReportChoice {
  bool attendance1 = false;  // a table of the attendance summaries
  bool comment1 = false;     // the student's comment
  bool parentsig = false;    // a line for the parent's signature
  bool school = false;       // heads of the tabs 2 and 4
  bool teacher = false;
  bool printcode = false;  // a table that explains the codes

  // One student's grades: how they are sorted, and which types are wanted when only some are.
  TypeSort sort = TypeSort::kNone;
  std::vector<std::string> types;  // trimmed type codes

  Shown shown = Shown::kNameAndId;  // roll book, one grade, attendance tables
  int grade = 0;                    // Instruments index of the report on one grade
  Rank rank = Rank::kNone;          // its order
  int summary = 0;                  // Summaries index of the report on one period

  RollBookOrder roll_order = RollBookOrder::kNone;
  double date_first = 0, date_last = 0;    // day serials, for kSomeDates
  double month_first = 0, month_last = 0;  // day serials of firsts of months

  std::vector<i16> students;  // Students indices of the reports on one student, in order

  friend bool operator==(const ReportChoice&, const ReportChoice&) = default;
};

extern ReportChoice Choice;

}  // namespace tallyroll
