// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/change_preview.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/portal.h"

namespace tallyroll {
namespace {

constexpr i16 kLastMethod = 3;

struct PreviewedAverage {
  bool has = false;
  Currency exact;
  FinalGrade grade;
};

// A class without a method has no averages yet.
std::vector<PreviewedAverage> AveragesNow() {
  std::vector<PreviewedAverage> averages(static_cast<std::size_t>(Current().NumStudents) + 1);
  if (Current().Method < 0 || Current().Method > kLastMethod) return averages;
  for (i16 s = 1; s <= Current().NumStudents; ++s) {
    CurrentStudent = s;
    StudentAverage average;
    if (AverageStudent(average)) continue;
    averages[static_cast<std::size_t>(s)] = {true, average.exact, average.grade};
  }
  return averages;
}

}  // namespace

std::vector<ChangedAverage> PreviewedChange;

bool ChangedAverage::GradeChanges() const {
  return had != has || grade_before.Text() != grade_after.Text();
}

std::vector<ChangedAverage> AveragesOfChange(const std::function<void()>& as_before,
                                             const std::function<void()>& change) {
  const Class kept = Current();
  const i16 student = CurrentStudent;
  const Currency exact = ExactAverage;
  as_before();
  const std::vector<PreviewedAverage> before = AveragesNow();
  Current() = kept;
  change();
  const std::vector<PreviewedAverage> after = AveragesNow();
  Current() = kept;
  CurrentStudent = student;
  ExactAverage = exact;
  std::vector<ChangedAverage> changed;
  for (std::size_t s = 1; s < before.size() && s < after.size(); ++s)
    changed.push_back({static_cast<i16>(s), before[s].has, after[s].has, before[s].exact,
                       after[s].exact, before[s].grade, after[s].grade});
  std::stable_partition(changed.begin(), changed.end(),
                        [](const ChangedAverage& each) { return each.GradeChanges(); });
  return changed;
}

void PreviewChange(const std::function<void()>& as_before, const std::function<void()>& change) {
  PreviewedChange = AveragesOfChange(as_before, change);
  ShowPortal("frmchange");
  PreviewedChange.clear();
}

}  // namespace tallyroll
