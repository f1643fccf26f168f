// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/rows/row_fields.h"

#include <optional>

#include "attendance/daily_codes.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + PlainNumberText(number);
}

std::string IsoDate(double serial) {
  const CivilDate date = DateOfSerial(serial);
  return PadLeft(PlainNumberText(date.year), 4) + "-" + TwoDigits(date.month) + "-" +
         TwoDigits(date.day);
}

// A text that is no date stands as it is: it is the teacher's.
std::string DateOfGrade(const Instrument& grade, DateOrder order) {
  const std::string text(Trim(grade.testdate));
  const std::optional<double> serial = DateFromText(text, order);
  return serial ? IsoDate(*serial) : text;
}

std::optional<Currency> ValueOf(std::string_view mark) {
  const MarkKind kind = KindOfMark(mark);
  if (kind == MarkKind::kLeftOut || mark.empty()) return std::nullopt;
  if (kind == MarkKind::kZero) return Currency();
  try {
    return GradeValue(mark);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace

void AddClass(RowPart& part, const Class& c, const std::string& file) {
  part.Path("file", file);
  part.Text("class", Trim(c.description));
  part.Text("school", Trim(c.school));
  part.Text("teacher", Trim(c.teacher));
  part.Text("period", Trim(c.timed));
}

void AddStudent(RowPart& part, const Student& student) {
  part.Text("id", Trim(student.id));
  part.Text("lastname", Trim(student.lastname));
  part.Text("firstname", Trim(student.firstname));
}

void AddContact(RowPart& part, const Student& student) {
  part.Text("email", Trim(student.email));
  part.Text("phone", Trim(student.phone));
  part.Text("parent", Trim(student.parent));
  part.Text("work", Trim(student.work));
  part.Text("address", Trim(student.address));
  part.Text("city", Trim(student.city));
  part.Text("state", Trim(student.state));
  part.Text("zip", Trim(student.zip));
  part.Text("birth", Trim(student.birth));
  part.Text("comments", Trim(student.comments));
}

void AddGrade(RowPart& part, int number, const Instrument& grade, DateOrder order) {
  part.Whole("grade", number);
  part.Text("title", Trim(grade.title));
  part.Text("code", Trim(grade.code));
  part.Text("type", Trim(grade.typecode));
  part.Whole("max", grade.mvalue);
  part.Text("date", DateOfGrade(grade, order));
}

void AddGradeRules(RowPart& part, const Instrument& grade) {
  part.Amount("weight", grade.weight);
  part.Text("lowpass", Trim(grade.lowpass));
  part.Text("drop", Trim(grade.dropyn));
  part.Text("count", Trim(grade.countflag) == "N" ? "N" : "Y");
}

void AddMark(RowPart& part, std::string_view mark) {
  part.Text("mark", Trim(mark));
  part.Amount("value", ValueOf(Trim(mark)));
}

void AddAverage(RowPart& part, const StudentAverage& outcome, bool points) {
  part.Amount("average", outcome.exact);
  part.Amount("computed", outcome.computed);
  part.Text("finalgrade", Trim(outcome.grade.number));
  part.Text("label", Trim(FinalLabels[outcome.grade.label]));
  part.Amount("earned", points ? std::optional(outcome.points.earned) : std::nullopt);
  part.Amount("possible", points ? std::optional(outcome.points.possible) : std::nullopt);
}

void AddDay(RowPart& part, const AttendanceDay& day, char code) {
  part.Text("date", IsoDate(day.date));
  part.Text("code", code == kNoMark ? "" : std::string_view(&code, 1));
}

std::string_view MarkParts::Of(std::string_view mark) {
  Made& made = made_[PlaceOf(mark)];
  if (made.end.empty() || made.mark != mark) {
    RowPart part(form_, RowPart::Place::kLater);
    AddMark(part, mark);
    made = {std::string(mark), part.text() + std::string(RowEnd(form_))};
  }
  return made.end;
}

std::size_t MarkParts::PlaceOf(std::string_view mark) {
  std::size_t place = mark.size();
  for (const char c : mark) place = place * 31 + static_cast<unsigned char>(c);
  return place % kPlaces;
}

}  // namespace tallyroll
