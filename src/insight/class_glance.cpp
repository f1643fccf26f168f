// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/class_glance.h"

#include "averages/engine/arithmetic.h"
#include "averages/explained/look_at_average.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

constexpr std::int64_t kHundredth = 100, kHalfHundredth = 50;  // of a Currency

Currency ToHundredths(Currency value) {
  const std::int64_t raised = value.scaled() + kHalfHundredth;
  const std::int64_t rest = ((raised % kHundredth) + kHundredth) % kHundredth;
  return Currency::FromScaled(raised - rest);
}

std::optional<Currency> MeanOf(const std::vector<std::optional<Currency>>& averages) {
  try {
    Currency sum;
    int count = 0;
    for (const std::optional<Currency>& each : averages) {
      if (!each) continue;
      sum += *each;
      ++count;
    }
    if (count == 0) return std::nullopt;
    return ToHundredths(Currency::FromDouble(Divided(sum.ToDouble(), count)));
  } catch (const RunTimeError&) {  // averages beyond all scores have no mean
    return std::nullopt;
  }
}

}  // namespace

bool HasMethod(i16 method) {
  return method >= 0 && method <= 3;
}

std::string_view WordsOfMethod(i16 method) {
  switch (method) {
    case 0:
      return "Weights for grades";
    case 1:
      return "Weights for types";
    case 2:
      return "Points";
    case 3:
      return "Points and types";
    default:
      return "No method yet";
  }
}

ClassGlance LookAtClass() {
  const Class& c = Current();
  ClassGlance glance;
  glance.description = Trim(c.description);
  glance.students = c.NumStudents;
  glance.grades = GradeCount(c);
  glance.method = c.Method;
  glance.averages.resize(static_cast<std::size_t>(c.NumStudents) + 1);
  if (!HasMethod(c.Method)) return glance;
  for (int s = 1; s <= c.NumStudents; ++s) {
    const auto i = static_cast<std::size_t>(s);
    if (!HasMarkThatCounts(c.Students[i])) continue;
    StudentAverage average;
    if (!LookAtAverage(static_cast<i16>(s), average)) glance.averages[i] = average.exact;
  }
  glance.average = MeanOf(glance.averages);
  return glance;
}

RankInClass RankOf(const ClassGlance& glance, int student) {
  const auto i = static_cast<std::size_t>(student);
  if (student < 1 || i >= glance.averages.size() || !glance.averages[i]) return {};
  RankInClass rank{.place = 1};
  for (const std::optional<Currency>& each : glance.averages) {
    if (!each) continue;
    ++rank.of;
    if (*each > *glance.averages[i]) ++rank.place;
  }
  return rank;
}

}  // namespace tallyroll
