// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/chosen_students.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {

void AddStudents(Command& command, std::vector<std::string>& ids) {
  command.AddOption("--student", ids, "a student's ID; may be given again").OneValueEach();
}

std::string TakeStudents(const std::vector<std::string>& ids, std::vector<i16>& students) {
  const Class& c = Current();
  students.clear();
  if (ids.empty())
    for (int i = 1; i <= c.NumStudents; ++i) students.push_back(static_cast<i16>(i));
  for (const std::string& wanted : ids) {
    const auto id = CodePageFromUtf8(wanted);
    int found = 0;
    for (int i = 1; id && i <= c.NumStudents && found == 0; ++i)
      if (Trim(c.Students[static_cast<std::size_t>(i)].id) == Trim(*id)) found = i;
    if (found == 0) return "no student has the ID " + wanted;
    const auto student = static_cast<i16>(found);
    if (std::find(students.begin(), students.end(), student) == students.end())
      students.push_back(student);
  }
  return {};
}

}  // namespace tallyroll
