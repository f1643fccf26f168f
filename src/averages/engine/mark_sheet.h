// SPDX-License-Identifier: GPL-3.0-or-later
// What an average reads: the grades of the current class beside the marks of CurrentStudent.
#pragma once

#include <string_view>

#include "averages/engine/engine.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"

namespace tallyroll {

// One grade of the student.
struct SheetRow {
  const Instrument& instrument;
  std::string_view mark;
  MarkKind kind;
  TypeSet types;

  bool IsExtraCredit() const { return types.Contains(kExtraCreditType); }
  bool MayBeDropped() const { return Trim(instrument.dropyn) == "Y"; }
  Currency Max() const { return Currency::FromWhole(instrument.mvalue); }
};

class MarkSheet {
 public:
  enum class Blanks { kTrimmed, kLeadingKept };

  // Without a student in work it throws RunTimeError{kErrorSubscript}.
  explicit MarkSheet(Blanks blanks = Blanks::kTrimmed);

  int Count() const { return count_; }
  SheetRow Row(int i) const;
  bool IsExtraCreditType(std::size_t t) const { return extra_credit_.Contains(t); }

 private:
  MarkSheet(Blanks blanks, const TypeCodes& codes);

  const Class& class_;
  const Student& student_;
  Blanks blanks_;
  int count_;
  TypesByCode types_;
  TypeSet extra_credit_;
};

// Item i of a list of the class that was perhaps never dimensioned.
inline Currency ItemOf(const List<Currency>& list, int i) {
  const auto index = static_cast<std::size_t>(i);
  return index < list.size() ? list[index] : Currency();
}

// Runs `average(totals, grade)`, which keeps the number of the grade in work in `grade`. An
// arithmetic error ends it and comes back as a value, the totals empty.
template <typename Average>
AverageError Computed(TypeTotals& totals, Average&& average) {
  int grade = 0;
  totals = TypeTotals();
  try {
    average(grade);
  } catch (const RunTimeError& fault) {
    totals = TypeTotals();
    return {fault.number, CurrentStudent, static_cast<i16>(grade)};
  }
  return {};
}

}  // namespace tallyroll
