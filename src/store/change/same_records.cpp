// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/same_records.h"

#include <map>
#include <string>

#include "base/text.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

// For each record after its place before, kNowhere for a new one. Records are the same by their
// key where it stands once on both sides; with `by_place`, what is left over is the same at its
// place.
template <typename Record, typename Key>
std::vector<std::size_t> PlacesBefore(const List<Record>& before, const List<Record>& after,
                                      Key&& key, bool by_place) {
  std::map<std::string, std::vector<std::size_t>> places, places_after;
  for (std::size_t i = 1; i < before.size(); ++i) places[key(before[i])].push_back(i);
  for (std::size_t i = 1; i < after.size(); ++i) places_after[key(after[i])].push_back(i);
  std::vector<std::size_t> source(after.size(), kNowhere);
  std::vector<bool> used(before.size(), false);
  for (const auto& [name, now] : places_after) {
    const auto found = places.find(name);
    if (found == places.end()) continue;
    // Those of one key follow one another in the same order.
    for (std::size_t k = 0; k < now.size() && k < found->second.size(); ++k) {
      source[now[k]] = found->second[k];
      used[found->second[k]] = true;
    }
  }
  for (std::size_t i = 1; by_place && i < after.size() && i < before.size(); ++i) {
    if (source[i] != kNowhere || used[i]) continue;
    source[i] = i;
    used[i] = true;
  }
  return source;
}

std::map<std::string, int> CountIds(const List<Student>& students) {
  std::map<std::string, int> count;
  for (std::size_t i = 1; i < students.size(); ++i) ++count[std::string(Trim(students[i].id))];
  return count;
}

}  // namespace

SameRecords MatchRecords(const Class& before, const Class& after) {
  const auto ids_before = CountIds(before.Students), ids_after = CountIds(after.Students);
  const auto once = [](const std::map<std::string, int>& ids, const std::string& id) {
    const auto found = ids.find(id);
    return found == ids.end() || found->second == 1;
  };
  SameRecords same;
  same.students = PlacesBefore(
      before.Students, after.Students,
      [&](const Student& student) {
        const std::string id(Trim(student.id));
        const bool known = !id.empty() && once(ids_before, id) && once(ids_after, id);
        return known ? "#" + id : PlainName(student);
      },
      false);
  same.grades = PlacesBefore(
      before.Instruments, after.Instruments,
      [](const Instrument& grade) {
        return std::string(Trim(grade.title)) + '\n' + std::string(Trim(grade.code));
      },
      before.Instruments.size() == after.Instruments.size());
  return same;
}

}  // namespace tallyroll
