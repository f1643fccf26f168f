// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/type_totals.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

void Erase(TypeCounts& counts, TypeSums& earned, TypeSums& maxes) {
  counts.fill(0);
  earned.fill(Currency());
  maxes.fill(Currency());
}

TypesByCode TypesOfClass() {
  TypeCodes codes;
  MakeTypeCodes(codes);
  return TypesByCode(codes);
}

}  // namespace

void ClassTotalsByType(TypeCounts& counts, TypeSums& earned, TypeSums& maxes) {
  Erase(counts, earned, maxes);
  const Class& c = Current();
  const TypesByCode types = TypesOfClass();
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& instrument = c.Instruments[static_cast<std::size_t>(i)];
    for (const std::size_t t : types.Of(instrument.typecode)) {
      ++counts[t];
      maxes[t] += Currency::FromWhole(instrument.mvalue);
    }
  }
}

int StudentTotalsByType(TypeCounts& counts, TypeSums& earned, TypeSums& maxes) {
  Erase(counts, earned, maxes);
  const Class& c = Current();
  if (CurrentStudent < 1 || CurrentStudent > UpperBound(c.Students)) return 0;
  const Student& student = c.Students[static_cast<std::size_t>(CurrentStudent)];
  const TypesByCode types = TypesOfClass();
  try {
    for (int i = 1; i <= GradeCount(c); ++i) {
      const std::string_view mark = TrimRight(MarkOf(student, i));
      if (KindOfMark(mark) == MarkKind::kLeftOut) continue;
      const Instrument& instrument = c.Instruments[static_cast<std::size_t>(i)];
      const Currency value = GradeValue(mark);
      for (const std::size_t t : types.Of(instrument.typecode)) {
        ++counts[t];
        earned[t] += value;
        maxes[t] += Currency::FromWhole(instrument.mvalue);
      }
    }
  } catch (const RunTimeError& fault) {
    Erase(counts, earned, maxes);
    return fault.number;
  }
  return 0;
}

}  // namespace tallyroll
