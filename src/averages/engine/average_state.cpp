// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/average_state.h"

#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"

namespace tallyroll {

Currency ExactAverage;

i16 TotalPossible() {
  const Class& c = Current();
  Currency points;
  for (int i = 1; i <= GradeCount(c); ++i) {
    const auto index = static_cast<std::size_t>(i);
    const Instrument& instrument = c.Instruments[index];
    const bool counts =
        index >= c.InstrumentUse.size() || c.InstrumentUse[index] != Currency::FromWhole(2);
    if (counts && Trim(instrument.typecode) != kExtraCreditCode) {
      points += Currency::FromWhole(instrument.mvalue);
    }
  }
  return points.ToWhole16();
}

void ResetAverages() {
  ExactAverage = Currency();
}

}  // namespace tallyroll
