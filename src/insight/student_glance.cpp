// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/student_glance.h"

#include "analysis/grade_figures.h"
#include "attendance/daily_codes.h"
#include "averages/explained/look_at_average.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "insight/class_glance.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::size_t kFailingLabel = 13;  // of FinalLabels: this one and the last

// "(B/SAT/3.0)     " has the letter first.
std::string LetterOf(std::string_view label) {
  label = Trim(label);
  if (label.starts_with('(')) label.remove_prefix(1);
  return std::string(label.substr(0, label.find('/')));
}

void TakeAverage(StudentGlance& glance) {
  StudentAverage average;
  if (const AverageError error = LookAtAverage(static_cast<i16>(glance.student), average)) {
    glance.error = AverageErrorText(error);
    return;
  }
  glance.average = PlainNumberText(average.exact);
  glance.final_words = Trim(average.grade.Text());
  glance.final_grade = std::string(Trim(average.grade.number.view())) + " " +
                       LetterOf(FinalLabels[average.grade.label]);
  glance.failing = average.grade.label >= kFailingLabel;
}

GlancePoint PointOf(const Instrument& grade, int index, std::string_view mark) {
  GlancePoint point{.grade = index};
  point.passing = PercentOfMark(PassingGrade(grade), grade.mvalue);
  point.missing = IsMissing(mark);
  if (point.missing) return point;
  point.percent = PercentOfMark(mark, grade.mvalue);
  point.failing = NoteOfMark(mark, BoundsOf(grade)).mark == CellMark::kFailing;
  return point;
}

void TakeGrades(StudentGlance& glance, const Student& student) {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    const std::string_view mark = TrimRight(MarkOf(student, i));
    if (IsMissing(mark))
      glance.missing.push_back({i, std::string(mark), std::string(Trim(grade.title))});
    const bool left_out = KindOfMark(mark) == MarkKind::kLeftOut && !IsMissing(mark);
    if (left_out || Trim(grade.typecode) == kExtraCreditCode || grade.mvalue < 1) continue;
    glance.line.push_back(PointOf(grade, i, mark));
  }
}

std::string InitialsOf(const Student& student) {
  std::string initials;
  for (const std::string_view name : {Trim(student.firstname), Trim(student.lastname)})
    if (!name.empty()) initials += name.front();
  return initials;
}

}  // namespace

StudentGlance LookAtStudent(int student) {
  const Class& c = Current();
  StudentGlance glance;
  if (student < 1 || student > c.NumStudents) return glance;
  const Student& record = c.Students[static_cast<std::size_t>(student)];
  glance.student = student;
  glance.name =
      Trim(std::string(Trim(record.firstname)) + " " + std::string(Trim(record.lastname)));
  glance.initials = InitialsOf(record);
  glance.id = Trim(record.id);
  glance.has_method = HasMethod(c.Method);
  if (glance.has_method) TakeAverage(glance);
  TakeGrades(glance, record);
  glance.has_attendance = c.NumDays > 0;
  const CodeCounts counts = CountDays(record, {1, c.NumDays});
  glance.absent = counts.Absences();
  glance.late = counts.Of('L');
  return glance;
}

}  // namespace tallyroll
