// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/text_export.h"

#include <algorithm>
#include <vector>

#include "base/text.h"
#include "platform/long_work.h"
#include "store/csv_columns.h"
#include "store/student_names.h"
#include "store/text/saved_text.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kWritingStudents = "Writing the students";
// No text file holds them: a reader would end the line there, or take the file for no text.
bool IsControl(char c) {
  return c >= '\0' && c < ' ' && c != '\t';
}

// One line of the text file, put together value by value.
class LineWriter {
 public:
  LineWriter(i16 mode, TextOfClass& out) : mode_(mode), separator_(SeparatorOf(mode)), out_(out) {}

  // `position` and `length` are those of formatted columns.
  void Add(std::string_view value, std::size_t position, std::size_t length) {
    const std::string kept = Kept(value);
    if (mode_ == kColumnsText)
      AddColumn(kept, position, length);
    else
      AddField(kept);
  }
  void End() {
    out_.bytes += mode_ == kColumnsText ? TrimRight(line_) : std::string_view(line_);
    out_.bytes += kLineEnd;
    line_.clear();
    first_ = true;
  }

 private:
  // The value as it can stand in a line.
  std::string Kept(std::string_view value) {
    std::string kept = WrittenIn(mode_, value);
    if (kept != value) ++out_.changed;
    return kept;
  }
  void AddColumn(const std::string& value, std::size_t position, std::size_t length) {
    if (value.size() > length) ++out_.changed;
    line_.resize(position, ' ');
    line_ += Left(value, length);
  }
  void AddField(const std::string& value) {
    const bool quoted = mode_ == kDoublesText;
    if (!first_) line_ += quoted ? ',' : separator_;
    first_ = false;
    line_ += quoted ? '"' + value + '"' : value;
  }

  i16 mode_;
  char separator_;
  TextOfClass& out_;
  std::string line_;
  bool first_ = true;
};

// A comma parts fields, so there a blank stands between the names.
std::string NameFor(i16 mode, const Student& student) {
  if (mode != kCommasText) return PlainName(student);
  return std::string(Trim(student.lastname)) + " " + std::string(Trim(student.firstname));
}

std::string_view MarkOf(const Student& student, std::size_t grade) {
  return grade < student.Marks.size() ? Trim(student.Marks[grade]) : std::string_view();
}

bool HasMarks(int what) {
  return what == kExportGrades || what == kExportGradesPlain;
}

void AddMark(LineWriter& line, std::size_t grade, std::string_view text) {
  line.Add(text, kMarksPosition + (grade - 1) * kMarkStep, kMarkLength);
}

void AddKeys(LineWriter& line, std::string_view id, std::string_view name) {
  line.Add(id, kTextFields[0].position, kTextFields[0].length);
  line.Add(name, kTextFields[1].position, kTextFields[1].length);
}

// The titles, and below them the codes. Formatted columns have room for the beginning of a title.
void AddHeaders(const Class& c, i16 mode, LineWriter& line) {
  AddKeys(line, kIdTitle, kNameTitle);
  for (std::size_t i = 1; i < c.Instruments.size(); ++i) {
    const std::string_view title = Trim(c.Instruments[i].title);
    AddMark(line, i, mode == kColumnsText ? Left(title, kMarkLength) : title);
  }
  line.End();
  AddKeys(line, "", "");
  for (std::size_t i = 1; i < c.Instruments.size(); ++i)
    AddMark(line, i, Trim(c.Instruments[i].code));
  line.End();
}

void AddLine(const Student& student, int what, i16 mode, std::size_t grades, LineWriter& line) {
  AddKeys(line, student.id, NameFor(mode, student));
  if (what == kExportInfo)
    for (std::size_t i = 2; i < kTextFields.size(); ++i)
      line.Add(student.*kTextFields[i].field, kTextFields[i].position, kTextFields[i].length);
  if (HasMarks(what))
    for (std::size_t i = 1; i <= grades; ++i) AddMark(line, i, MarkOf(student, i));
  line.End();
}

// ---- Comma-separated values ----

constexpr CsvUse kInfoUses[] = {CsvUse::kAddress,   CsvUse::kCity,      CsvUse::kState,
                                CsvUse::kZip,       CsvUse::kParent,    CsvUse::kBirth,
                                CsvUse::kHomePhone, CsvUse::kWorkPhone, CsvUse::kEmail};

// Quotes hold the end of a line, but nothing holds the other ones.
std::string WithoutControls(std::string value, TextOfClass& out) {
  const auto unfit = [](char c) { return IsControl(c) && c != '\r' && c != '\n'; };
  if (std::ranges::any_of(value, unfit)) ++out.changed;
  std::ranges::replace_if(value, unfit, ' ');
  return value;
}

void AddCsvRecord(const std::vector<std::string>& values, TextOfClass& out) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) out.bytes += ',';
    out.bytes += CsvTextField(WithoutControls(values[i], out));
  }
  out.bytes += kLineEnd;
}

std::vector<std::string> CsvTitles(const Class& c, int what) {
  std::vector<std::string> titles;
  for (const CsvUse use : {CsvUse::kId, CsvUse::kLastName, CsvUse::kFirstName})
    titles.emplace_back(CsvUseCaption(use));
  if (what == kExportInfo)
    for (const CsvUse use : kInfoUses) titles.emplace_back(CsvUseCaption(use));
  if (HasMarks(what))
    for (std::size_t i = 1; i < c.Instruments.size(); ++i)
      titles.push_back(std::string(Trim(c.Instruments[i].title)) + " [" +
                       std::string(Trim(c.Instruments[i].code)) + "]");
  return titles;
}

std::vector<std::string> CsvValues(const Student& student, int what, std::size_t grades) {
  std::vector<std::string> values = {student.id, std::string(Trim(student.lastname)),
                                     std::string(Trim(student.firstname))};
  if (what == kExportInfo)
    for (const CsvUse use : kInfoUses) values.push_back(student.*CsvStudentField(use));
  if (HasMarks(what))
    for (std::size_t i = 1; i <= grades; ++i) values.emplace_back(MarkOf(student, i));
  return values;
}

TextOfClass ExportCsv(const Class& c, int what) {
  TextOfClass out;
  if (what != kExportGradesPlain) AddCsvRecord(CsvTitles(c, what), out);
  const auto grades = static_cast<std::size_t>(UpperBound(c.Instruments));
  LongWork work(kWritingStudents, UpperBound(c.Students));
  for (std::size_t i = 1; i < c.Students.size() && work.Step(); ++i)
    AddCsvRecord(CsvValues(c.Students[i], what, grades), out);
  out.cancelled = work.Cancelled();
  return out;
}

TextOfClass ExportLines(const Class& c, int what, i16 mode) {
  TextOfClass out;
  LineWriter line(mode, out);
  if (what == kExportGrades) AddHeaders(c, mode, line);
  const auto grades = static_cast<std::size_t>(UpperBound(c.Instruments));
  LongWork work(kWritingStudents, UpperBound(c.Students));
  for (std::size_t i = 1; i < c.Students.size() && work.Step(); ++i)
    AddLine(c.Students[i], what, mode, grades, line);
  out.cancelled = work.Cancelled();
  return out;
}

}  // namespace

TextOfClass ExportText(const Class& c, int what, i16 mode, TextEncoding encoding) {
  TextOfClass out = mode == kCsvText ? ExportCsv(c, what) : ExportLines(c, what, mode);
  out.bytes = EncodedText(out.bytes, encoding);
  return out;
}

TextOfClass ExportText(const Class& c, int what, i16 mode) {
  return ExportText(c, what, mode,
                    mode == kCsvText ? TextEncoding::kUtf8 : TextEncoding::kWindows1252);
}

}  // namespace tallyroll
