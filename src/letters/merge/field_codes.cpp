// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/merge/field_codes.h"

#include "averages/rounding.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

const Student& StudentOf(i16 student) {
  return Current().Students[static_cast<std::size_t>(student)];
}

template <std::string Student::*kField>
std::string FieldOf(i16 student) {
  return StudentOf(student).*kField;
}

template <std::string Class::*kField>
std::string ClassFieldOf(i16 /*student*/) {
  return Current().*kField;
}

std::string TodaysDate(i16 /*student*/) {
  return DateText(Platform().Now(), Platform().ShortDateOrder());
}

// The figures of a student; the class and whoever works on it notice nothing of it.
bool FindAverage(i16 student, StudentAverage& average) {
  constexpr i16 kNoMethod = 5;
  Class& c = Current();
  if (GradeCount(c) == 0 || c.Method == kNoMethod) return false;
  List<ShortText>& marks = c.Students[static_cast<std::size_t>(student)].Marks;
  const ShortText last_grade = marks.empty() ? ShortText() : marks[0];
  const i16 before = CurrentStudent;
  CurrentStudent = student;
  const bool found = !AverageStudent(average);
  CurrentStudent = before;
  if (!marks.empty()) marks[0] = last_grade;
  return found;
}

std::string AverageOf(i16 student) {
  StudentAverage average;
  return FindAverage(student, average) ? PlainNumberText(average.exact) : std::string();
}

std::string FinalGradeOf(i16 student) {
  StudentAverage average;
  return FindAverage(student, average) ? average.grade.Text() : std::string();
}

std::string MissingGradesOf(i16 student) {
  const Class& c = Current();
  std::string titles;
  for (int i = 1; i <= GradeCount(c); ++i) {
    if (!IsMissing(TrimRight(MarkOf(StudentOf(student), i)))) continue;
    titles += titles.empty() ? "" : ", ";
    titles += Trim(c.Instruments[static_cast<std::size_t>(i)].title);
  }
  return titles.empty() ? "none" : titles;
}

using ValueOf = std::string (*)(i16 student);

struct KnownCode {
  FieldCode code;
  ValueOf value;
};

// The list and the merge spell the ID in two ways, which are one as case does not matter.
constexpr KnownCode kKnownCodes[] = {
    {{"<First Name>", "<First Name>"}, FieldOf<&Student::firstname>},
    {{"<Last Name>", "<Last Name>"}, FieldOf<&Student::lastname>},
    {{"<Parent's Name>", "<Parent's Name>"}, FieldOf<&Student::parent>},
    {{"<ID Number>", "<Id Number>"}, FieldOf<&Student::id>},
    {{"<Street Address>", "<Street Address>"}, FieldOf<&Student::address>},
    {{"<City>", "<City>"}, FieldOf<&Student::city>},
    {{"<State>", "<State>"}, FieldOf<&Student::state>},
    {{"<Zip Code>", "<Zip Code>"}, FieldOf<&Student::zip>},
    {{"<Date>", "<Date>"}, TodaysDate},
    {{"<Average>", "<Average>"}, AverageOf},
    {{"<Final Grade>", "<Final Grade>"}, FinalGradeOf},
    {{"<Missing Grades>", "<Missing Grades>"}, MissingGradesOf},
    {{"<Class>", "<Class>"}, ClassFieldOf<&Class::description>},
    {{"<Teacher>", "<Teacher>"}, ClassFieldOf<&Class::teacher>},
};

std::vector<FieldCode> AllFieldCodes() {
  std::vector<FieldCode> codes;
  for (const KnownCode& known : kKnownCodes) codes.push_back(known.code);
  return codes;
}

}  // namespace

const std::vector<FieldCode>& FieldCodes() {
  static const std::vector<FieldCode> codes = AllFieldCodes();
  return codes;
}

std::string FieldValue(const FieldCode& code, i16 student) {
  for (const KnownCode& known : kKnownCodes)
    if (known.code.code == code.code) return std::string(Trim(known.value(student)));
  return {};
}

}  // namespace tallyroll
