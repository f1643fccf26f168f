// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/grade_clipboard.h"

#include <algorithm>
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

// The first student of each ID.
class StudentsById {
 public:
  explicit StudentsById(const Class& c) {
    for (int i = 1; i <= c.NumStudents; ++i) {
      const std::string_view id = Trim(c.Students[static_cast<std::size_t>(i)].id);
      students_.try_emplace(id, i);
      longest_ = std::max(longest_, id.size());
    }
  }

  // 0 when there is none. Texts that no ID is as long as are not looked up.
  int Find(std::string_view id) const {
    if (id.size() > longest_) return 0;
    const auto found = students_.find(id);
    return found == students_.end() ? 0 : found->second;
  }

 private:
  std::unordered_map<std::string_view, int> students_;
  std::size_t longest_ = 0;
};

// The longest ID that a comma closes is that before the last comma.
std::optional<MarkText> MarkOfLine(std::string_view line, const StudentsById& students) {
  for (std::size_t end = line.size(); end > 0;) {
    const std::size_t comma = line.rfind(',', end - 1);
    if (comma == std::string_view::npos) break;
    if (const int student = students.Find(Trim(line.substr(0, comma))))
      return MarkText{student, std::string(Trim(line.substr(comma + 1)))};
    end = comma;
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
  const StudentsById students(Current());
  for (double left = LeadingNumber(*count); left >= 1; --left) {
    const auto line = lines.Next();
    if (!line) return std::nullopt;
    if (line->find(',') == std::string_view::npos) return std::nullopt;
    if (auto mark = MarkOfLine(*line, students)) grade.marks.push_back(std::move(*mark));
  }
  return grade;
}

}  // namespace tallyroll
