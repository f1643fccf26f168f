// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/average_state.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"

namespace tallyroll {

Currency ExactAverage;
std::array<std::optional<i16>, kClassSlots> TotalPossible{};

void MakeTotalPossible() {
  const Class& c = Current();
  std::optional<i16>& total = TotalPossible[static_cast<std::size_t>(CurrentClass)];
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
  try {
    total = points.ToWhole16();
  } catch (const RunTimeError&) {
    total.reset();
  }
}

void ResetAverages() {
  ExactAverage = Currency();
  TotalPossible.fill(i16{0});
}

}  // namespace tallyroll
