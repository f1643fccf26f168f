// SPDX-License-Identifier: GPL-3.0-or-later
// The table of grade types in the grade reports: a row for each type that the class uses.
#pragma once

#include <string>
#include <vector>

#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"

namespace tallyroll {

struct TypeTotalRow {
  std::string name, code;
  int number = 0;       // grades counted
  std::string total;    // the sum of their values
  std::string maximum;  // the sum of the maximum scores
  std::string average;  // percent, two decimals; empty where nothing was counted
  std::string weight;   // in percent
};

// In reports on one student the figures are his: by the average's own count in reports with
// averages, otherwise of all his marks. In the report on the class with averages they are the
// averages' counts of all students together, otherwise the grades that the class has.
std::vector<TypeTotalRow> TypeTotalRows();

// The table as a section of a report on paper. Its figures are made for the page that shows them.
Section TypeTotalsSection(PrintTarget& target);
void WriteTypeTotals(TextReport& text);

}  // namespace tallyroll
