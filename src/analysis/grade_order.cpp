// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/grade_order.h"

#include <algorithm>
#include <numeric>

#include "base/date_serial.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// Each key is made once.
template <typename KeyOf>
void SortByKey(std::vector<int>& grades, KeyOf key_of) {
  std::vector<std::pair<decltype(key_of(1)), int>> keyed;
  keyed.reserve(grades.size());
  for (const int grade : grades) keyed.emplace_back(key_of(grade), grade);
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), grades.begin(),
                 [](const auto& each) { return each.second; });
}

const Instrument& GradeToOrder(int grade) {
  return Current().Instruments[static_cast<std::size_t>(grade)];
}

}  // namespace

std::vector<int> GradesAsTheyStand() {
  std::vector<int> grades(static_cast<std::size_t>(GradeCount(Current())));
  std::iota(grades.begin(), grades.end(), 1);
  return grades;
}

void SortByDate(std::vector<int>& grades) {
  const DateOrder order = Platform().ShortDateOrder();
  SortByKey(grades, [order](int grade) {
    return DateFromText(Trim(GradeToOrder(grade).testdate), order).value_or(0);
  });
}

void SortByType(std::vector<int>& grades) {
  TypeCodes codes;
  MakeTypeCodes(codes);
  const TypesByCode types(codes);
  SortByKey(grades, [&types](int grade) {
    const TypeSet found = types.Of(GradeToOrder(grade).typecode);
    return found.empty() ? kGradeTypes + 1 : *found.begin();
  });
}

}  // namespace tallyroll
