// SPDX-License-Identifier: GPL-3.0-or-later
// What a step is called, and what it was done to.
#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "shell/undo_steps.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

template <typename Record>
std::vector<const Record*> OnlyIn(const List<Record>& list, const List<Record>& other) {
  std::vector<const Record*> only;  // two say as much as more
  for (std::size_t i = 1; i < list.size() && only.size() < 2; ++i) {
    const bool same_place = i < other.size() && other[i] == list[i];
    if (!same_place && std::find(other.begin(), other.end(), list[i]) == other.end())
      only.push_back(&list[i]);
  }
  return only;
}

// The one grade that was added, changed or deleted; null for none and for several.
const Instrument* GradeOfStep(const Class& before, const Class& after) {
  const auto now = OnlyIn(after.Instruments, before.Instruments);
  if (now.size() == 1) return now[0];
  const auto gone = OnlyIn(before.Instruments, after.Instruments);
  return now.empty() && gone.size() == 1 ? gone[0] : nullptr;
}

// The one grade whose marks differ, where the students are the same.
const Instrument* GradeOfMarks(const Class& before, const Class& after) {
  std::size_t grade = 0;
  if (before.Students.size() != after.Students.size()) return nullptr;
  for (std::size_t s = 1; s < after.Students.size(); ++s) {
    const auto& old = before.Students[s].Marks;
    const auto& now = after.Students[s].Marks;
    if (old.size() != now.size()) return nullptr;
    for (std::size_t i = 1; i < now.size(); ++i) {
      if (old[i] == now[i] || i == grade) continue;
      if (grade != 0) return nullptr;
      grade = i;
    }
  }
  return grade > 0 && grade < after.Instruments.size() ? &after.Instruments[grade] : nullptr;
}

const Student* StudentOfStep(const Class& before, const Class& after) {
  const auto now = OnlyIn(after.Students, before.Students);
  if (now.size() == 1) return now[0];
  const auto gone = OnlyIn(before.Students, after.Students);
  return now.empty() && gone.size() == 1 ? gone[0] : nullptr;
}

std::string SubjectOf(const Class& before, const Class& after) {
  if (const Instrument* grade = GradeOfStep(before, after)) return std::string(Trim(grade->title));
  const Student* student = StudentOfStep(before, after);
  const Instrument* grade = GradeOfMarks(before, after);
  if (grade && student) return std::string(Trim(grade->title)) + ", " + PlainName(*student);
  if (grade) return std::string(Trim(grade->title));
  return student ? PlainName(*student) : std::string();
}

}  // namespace

std::string NameOfStep(std::string_view command, const Class& before, const Class& after) {
  const std::string subject = SubjectOf(before, after);
  return subject.empty() ? std::string(command) : std::string(command) + ": " + subject;
}

}  // namespace tallyroll
