// SPDX-License-Identifier: GPL-3.0-or-later
// Tables with a row a grade: what stands in their columns, on paper and as text. The heads have two
// lines. What a grade weighs, or whether it counts, comes last where the report shows it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "printing/reports/report_parts.h"

namespace tallyroll {

struct GradeColumn {
  double head, row;  // in units of the table: rows may stand a little beside their heads
  int text;          // column of a text file
  std::string_view first, second;
  std::string (*value)(int grade);
};

struct GradeColumns {
  std::span<const GradeColumn> columns;
  double use_head, use_row;  // of the weight or use
  int use_text;
};

// `unit` is what the places on paper are multiples of, in twips.
void PrintGradeHead(PrintTarget& target, const GradeColumns& table, double unit);
void PrintGradeRow(PrintTarget& target, const GradeColumns& table, double unit, int grade);

// The head with a rule below.
void WriteGradeHead(TextReport& text, const GradeColumns& table);
void WriteGradeRow(TextReport& text, const GradeColumns& table, int grade);

}  // namespace tallyroll
