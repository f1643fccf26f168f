// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/method_reset.h"

#include "base/text.h"
#include "grades/marks.h"
#include "platform/class_window.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kByItems = 0;
constexpr i16 kByTypes = 1;
constexpr i16 kByPoints = 2;
constexpr i16 kByPointsAndTypes = 3;

void GradesChanged(bool same_types_in_use) {
  const i16 method = Current().Method;
  if (method == kByPoints) return;
  const bool weighs_types = method == kByTypes || method == kByPointsAndTypes;
  if (weighs_types && same_types_in_use) return;
  ForgetMethod();
}

}  // namespace

bool TypeInUse(std::string_view typecode, int except) {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& instrument = c.Instruments[static_cast<std::size_t>(i)];
    if (i != except && Trim(instrument.typecode) == Trim(typecode)) return true;
  }
  return false;
}

void ForgetMethod() {
  Current().Method = kNoMethod;
  Current().AverageSettings.clear();
  ClassWindow().EnableEntry("mnuprtgrade", false);
  ClassWindow().EnableEntry("mnuoptions", false);
}

void GradeAdded(bool type_was_in_use) {
  GradesChanged(type_was_in_use);
}

void GradeDeleted(bool type_still_in_use) {
  GradesChanged(type_still_in_use);
}

// An item keeps its own weight whatever its type.
void GradeTypeChanged(bool same_types_in_use) {
  if (Current().Method == kByItems || same_types_in_use) return;
  GradesChanged(false);
}

}  // namespace tallyroll
