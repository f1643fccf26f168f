// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/chosen_students.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct ChosenOne {
  std::string id, lastname, firstname;
  friend bool operator==(const ChosenOne&, const ChosenOne&) = default;
};

struct KeptChoice {
  i16 slot = 0;
  std::string file;
  std::vector<ChosenOne> students;
};

KeptChoice kept;

ChosenOne KnownBy(const Student& student) {
  return {std::string(Trim(student.id)), std::string(Trim(student.lastname)),
          std::string(Trim(student.firstname))};
}

// A class that was never saved has no name but its slot.
bool IsOfClassInWork(const KeptChoice& choice) {
  return choice.file == Current().FileName && (!choice.file.empty() || choice.slot == CurrentClass);
}

}  // namespace

std::vector<i16> ChosenStudents() {
  std::vector<i16> places;
  if (!IsOfClassInWork(kept)) return places;
  std::vector<ChosenOne> wanted = kept.students;
  for (i16 place = 1; place <= Current().NumStudents; ++place) {
    const ChosenOne here = KnownBy(Current().Students[static_cast<std::size_t>(place)]);
    const auto found = std::ranges::find(wanted, here);
    if (found == wanted.end()) continue;
    wanted.erase(found);
    places.push_back(place);
  }
  return places;
}

void ChooseStudents(const std::vector<i16>& places) {
  kept = {CurrentClass, Current().FileName, {}};
  for (const i16 place : places)
    if (place >= 1 && place <= Current().NumStudents)
      kept.students.push_back(KnownBy(Current().Students[static_cast<std::size_t>(place)]));
}

void ForgetChosenStudents() {
  kept = {};
}

}  // namespace tallyroll
