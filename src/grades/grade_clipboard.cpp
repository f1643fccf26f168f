// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/grade_clipboard.h"

#include <array>
#include <unordered_map>
#include <utility>

#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kHeaderMark = "7z";
constexpr std::string_view kGradeMark = "8z";

constexpr std::array kHeaderLines = {&GradeHeaderText::title,    &GradeHeaderText::code,
                                     &GradeHeaderText::mvalue,   &GradeHeaderText::lowpass,
                                     &GradeHeaderText::testdate, &GradeHeaderText::dropyn,
                                     &GradeHeaderText::type};

void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += '\r';
}

void AddHeader(std::string& text, const GradeHeaderText& header) {
  for (const auto line : kHeaderLines) AddLine(text, header.*line);
}

// Another program may have cut off an empty last line, which is the type.
std::optional<GradeHeaderText> NextHeader(LineReader& lines) {
  GradeHeaderText header;
  for (const auto field : kHeaderLines) {
    const auto line = lines.Next();
    if (!line && field != &GradeHeaderText::type) return std::nullopt;
    header.*field = line.value_or("");
    if ((header.*field).size() > kLongestText) return std::nullopt;
  }
  return header;
}

using StudentsById = std::unordered_map<std::string_view, int>;

// The first student of each ID.
StudentsById FirstStudents(const Class& c) {
  StudentsById students;
  for (int i = 1; i <= c.NumStudents; ++i)
    students.try_emplace(Trim(c.Students[static_cast<std::size_t>(i)].id), i);
  return students;
}

// The longest ID that a comma closes is that before the last comma.
std::optional<MarkText> MarkOfLine(std::string_view line, const StudentsById& students) {
  for (std::size_t comma = line.rfind(','); comma != std::string_view::npos;
       comma = comma == 0 ? std::string_view::npos : line.rfind(',', comma - 1)) {
    const auto found = students.find(Trim(line.substr(0, comma)));
    if (found != students.end())
      return MarkText{found->second, std::string(Trim(line.substr(comma + 1)))};
  }
  return std::nullopt;
}

}  // namespace

bool HoldsHeader(std::string_view clipboard) {
  return clipboard.starts_with(kHeaderMark);
}

bool HoldsGrade(std::string_view clipboard) {
  return clipboard.starts_with(kGradeMark);
}

std::string HeaderOnClipboard(const GradeHeaderText& header) {
  std::string text;
  AddLine(text, kHeaderMark);
  AddHeader(text, header);
  return text;
}

std::string GradeOnClipboard(int i) {
  const Class& c = Current();
  const Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
  std::string text;
  AddLine(text, kGradeMark);
  AddHeader(text, {grade.title, grade.code, PlainNumberText(grade.mvalue), grade.lowpass,
                   grade.testdate, grade.dropyn, grade.typecode});
  AddLine(text, PlainNumberText(c.NumStudents));
  for (int k = 1; k <= c.NumStudents; ++k) {
    const Student& student = c.Students[static_cast<std::size_t>(k)];
    AddLine(text, student.id + "," + std::string(MarkOf(student, i)));
  }
  return text;
}

std::optional<GradeHeaderText> ReadHeader(std::string_view clipboard) {
  LineReader lines(clipboard);
  lines.Next();
  return NextHeader(lines);
}

std::optional<GradeText> ReadGrade(std::string_view clipboard) {
  LineReader lines(clipboard);
  lines.Next();
  const auto header = NextHeader(lines);
  const auto count = lines.Next();
  if (!header || !count) return std::nullopt;
  GradeText grade{*header, {}};
  const StudentsById students = FirstStudents(Current());
  for (double left = LeadingNumber(*count); left >= 1; --left) {
    const auto line = lines.Next();
    if (!line) return std::nullopt;
    if (line->find(',') == std::string_view::npos) return std::nullopt;
    if (auto mark = MarkOfLine(*line, students)) grade.marks.push_back(std::move(*mark));
  }
  return grade;
}

}  // namespace tallyroll
