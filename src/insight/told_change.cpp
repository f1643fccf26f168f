// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/told_change.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "base/text.h"
#include "grades/marks.h"
#include "store/fields.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

struct FieldWords {
  std::string_view field, words;
};
// Names of fields that a teacher would not know; the others are shown as they are.
constexpr std::array kFieldWords = {
    FieldWords{"mvalue", "maximum score"},
    FieldWords{"dropyn", "may be dropped"},
    FieldWords{"testdate", "date"},
    FieldWords{"lowpass", "lowest passing score"},
    FieldWords{"typecode", "type"},
    FieldWords{"countflag", "counts in points"},
    FieldWords{"lastname", "last name"},
    FieldWords{"firstname", "first name"},
    FieldWords{"id", "ID"},
    FieldWords{"phone", "home phone"},
    FieldWords{"work", "work phone"},
    FieldWords{"birth", "birth date"},
    FieldWords{"email", "e-mail"},
    FieldWords{"termstart", "first day of term"},
    FieldWords{"termend", "last day of term"},
    FieldWords{"timed", "time of class"},
    FieldWords{"RoundMode", "rounding"},
    FieldWords{"RoundScale", "rounding values"},
    FieldWords{"FinalGradeForm", "form of final grades"},
    FieldWords{"PasswordSet", "password"},
};

// The student of a change by ID, or by name where the ID is empty; 0 when nobody or several are.
int StudentOfChange(const NamedChange& change) {
  int found = 0;
  for (int s = 1; s <= Current().NumStudents; ++s) {
    const Student& student = Current().Students[static_cast<std::size_t>(s)];
    const bool same = change.student.empty() ? PlainName(student) == change.name
                                             : Trim(student.id) == change.student;
    if (!same) continue;
    if (found != 0) return 0;
    found = s;
  }
  return found;
}

int GradeOfChange(const NamedChange& change) {
  int found = 0;
  for (int g = 1; g <= GradeCount(Current()); ++g) {
    const Instrument& grade = Current().Instruments[static_cast<std::size_t>(g)];
    if (Trim(grade.title) != change.grade || Trim(grade.code) != change.code) continue;
    if (found != 0) return 0;
    found = g;
  }
  return found;
}

// The text of that field of a student; null for none.
std::string* TextField(Student& student, const std::string& name) {
  std::string* text = nullptr;
  ForEachField(student, [&](const char* field, auto& value) {
    if constexpr (std::is_same_v<std::remove_reference_t<decltype(value)>, std::string>) {
      if (name == field) text = &value;
    }
  });
  return text;
}

}  // namespace

std::string_view WordsOfField(std::string_view field) {
  const auto found = std::find_if(kFieldWords.begin(), kFieldWords.end(),
                                  [&](const FieldWords& each) { return each.field == field; });
  return found == kFieldWords.end() ? field : found->words;
}

std::string TakeBackChange(const NamedChange& change) {
  const int s = StudentOfChange(change);
  if (change.name.empty())
    return "Only marks and what is told of a student can be taken back here.";
  if (s == 0) return "The student is not in the class any more, or stands there twice.";
  Student& student = Current().Students[static_cast<std::size_t>(s)];
  if (change.field == kMarkField) {
    const int g = GradeOfChange(change);
    if (g == 0) return "The grade is not in the class any more, or stands there twice.";
    if (static_cast<std::size_t>(g) >= student.Marks.size()) return "The student has no such mark.";
    student.Marks[static_cast<std::size_t>(g)] = change.before;
    return {};
  }
  std::string* const field = TextField(student, change.field);
  if (!field) return "Only marks and what is told of a student can be taken back here.";
  *field = change.before;
  return {};
}

}  // namespace tallyroll
