// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "store/program_state.h"

namespace tallyroll {

// Puts a student at the end of the class in work.
inline Student& EnrolStudent(const std::string& lastname, const std::string& firstname,
                             const std::string& id) {
  Class& c = Current();
  ++c.NumStudents;
  ReDimPreserve(c.Students, c.NumStudents);
  Student& student = c.Students.back();
  student.lastname = lastname;
  student.firstname = firstname;
  student.id = id;
  return student;
}

}  // namespace tallyroll
