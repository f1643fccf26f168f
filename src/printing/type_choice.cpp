// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/type_choice.h"

#include <algorithm>

#include "base/text.h"
#include "grades/type_totals.h"

namespace tallyroll {

void TypeChoice::Fill() {
  const std::vector<std::string> ticked = Ticked();
  codes_.clear();
  all.List.clear();
  TypeCodes codes;
  MakeTypeCodes(codes);
  TypeTexts labels;
  MakeTypeLabels(labels);
  TypeCounts counts;
  TypeSums none, maxes;
  ClassTotalsByType(counts, none, maxes);
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    if (counts[t] == 0) continue;
    codes_.emplace_back(Trim(codes[t]));
    all.List.emplace_back(Trim(labels[t]));
  }
  some.List = all.List;
  some.Checks = true;
  some.Checked.assign(some.List.size(), false);
  for (std::size_t i = 0; i < codes_.size(); ++i)
    some.Checked[i] = std::find(ticked.begin(), ticked.end(), codes_[i]) != ticked.end();
}

void TypeChoice::Show(bool all_types, bool some_types) {
  all.Visible = all_types;
  some.Visible = some_types;
}

std::vector<std::string> TypeChoice::Ticked() const {
  std::vector<std::string> ticked;
  for (std::size_t i = 0; i < codes_.size(); ++i)
    if (some.Checked[i]) ticked.push_back(codes_[i]);
  return ticked;
}

}  // namespace tallyroll
