// SPDX-License-Identifier: GPL-3.0-or-later
// From the lines of a text file to students, field by field.
#include "store/text/roster_text.h"

#include <algorithm>

#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/class_format.h"
#include "store/text/counted_lines.h"
#include "store/text/source_text.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr std::size_t kNamesAndMark = 31;  // what two names may have together, and their mark
// One more than any class can take: a log that was mistaken for a roster does not fill the memory.
constexpr std::size_t kStudentsRead = 32768;

// Takes values out of the text, as far as a class file can hold them.
class Taker {
 public:
  Taker(const SourceText& source, TextRoster& roster) : source_(source), roster_(roster) {}

  // `raw` is the value's place in the text, `value` what it comes to.
  std::string Take(int line, std::string_view name, std::string_view raw, std::string_view value) {
    if (value.size() > kLongestText) Refuse("has too long a text in line " + PlainNumberText(line));
    if (source_.Holds(raw)) return std::string(value);
    roster_.lacking.push_back("Line " + PlainNumberText(line) + ", " + std::string(name) + ": " +
                              source_.Shown(raw));
    return {};
  }
  std::string Take(int line, std::string_view name, std::string_view raw) {
    return Take(line, name, raw, raw);
  }
  void Refuse(std::string reason) {
    if (roster_.refusal.empty()) roster_.refusal = std::move(reason);
  }

 private:
  const SourceText& source_;
  TextRoster& roster_;
};

std::vector<std::string_view> FieldsOf(std::string_view line, i16 mode) {
  if (mode != kColumnsText) return CutFields(line, mode, kTextFields.size());
  std::vector<std::string_view> fields;
  fields.reserve(kTextFields.size());
  for (const TextField& field : kTextFields)
    fields.push_back(CutColumn(line, field.position, field.length));
  return fields;
}

bool NothingIn(const std::vector<std::string_view>& fields) {
  return std::ranges::all_of(fields, [](std::string_view field) { return Trim(field).empty(); });
}

Student StudentOfLine(const std::vector<std::string_view>& fields, int line, Taker& taker) {
  Student student;
  std::string name;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const TextField& field = kTextFields[i];
    std::string value = taker.Take(line, field.name, fields[i]);
    (field.field ? student.*field.field : name) = std::move(value);
  }
  SplitStudentName(name, student);
  return student;
}

void ReadLines(const SourceText& source, i16 mode, TextRoster& roster) {
  Taker taker(source, roster);
  LineReader lines(source.text());
  int number = 0;
  CountedLines work("Reading the lines", source.text());
  while (const auto line = lines.Next()) {
    if (!work.Next()) return taker.Refuse(std::string(kNotReadToItsEnd));
    ++number;
    const std::vector<std::string_view> fields = FieldsOf(*line, mode);
    if (NothingIn(fields)) continue;
    roster.students.push_back(StudentOfLine(fields, number, taker));
    if (!roster.refusal.empty() || roster.students.size() == kStudentsRead) return;
  }
}

Student StudentOfRecord(const CsvRecord& record, const CsvColumns& columns, Taker& taker) {
  Student student;
  std::string full_name;
  const std::size_t width = std::min(record.cells.size(), columns.uses.size());
  for (std::size_t i = 0; i < width; ++i) {
    const CsvUse use = columns.uses[i];
    if (use == CsvUse::kNotUsed) continue;
    const CsvCell& cell = record.cells[i];
    std::string value = taker.Take(record.line, CsvUseCaption(use), cell.raw, OnOneLine(cell.text));
    if (use == CsvUse::kLastName)
      student.lastname = std::move(value);
    else if (use == CsvUse::kFirstName)
      student.firstname = std::move(value);
    else if (use == CsvUse::kFullName)
      full_name = std::move(value);
    else if (std::string Student::*const field = CsvStudentField(use))
      student.*field = std::move(value);
  }
  // The two names of their own say more than a name that has to be split.
  if (student.lastname.empty() && student.firstname.empty())
    SplitStudentName(full_name, student);
  else if (student.firstname.empty())
    student.firstname = "-";
  return student;
}

void ReadRecords(const SourceText& source, const CsvColumns& chosen, TextRoster& roster) {
  const CsvTable table = ParseCsv(source.text());
  Taker taker(source, roster);
  if (const std::string fault = FaultOf(table); !fault.empty()) return taker.Refuse(fault);
  const CsvColumns columns =
      chosen.uses.empty() ? GuessColumns(table, CsvPurpose::kStudents) : chosen;
  if (!table.records.empty() && !WhatIsMissing(columns, CsvPurpose::kStudents).empty())
    return taker.Refuse("has no column with the names of students");
  CountedLines work("Reading the lines", table.records.size());
  for (std::size_t i = columns.heading ? 1 : 0; i < table.records.size(); ++i) {
    if (!work.Next()) return taker.Refuse(std::string(kNotReadToItsEnd));
    roster.students.push_back(StudentOfRecord(table.records[i], columns, taker));
    if (!roster.refusal.empty() || roster.students.size() == kStudentsRead) return;
  }
}

}  // namespace

std::string OnOneLine(std::string_view text) {
  std::string line;
  LineReader lines(Trim(text));
  while (const auto part = lines.Next()) line += (line.empty() ? "" : " ") + std::string(*part);
  return line;
}

void SplitStudentName(std::string_view name, Student& student) {
  name = Trim(name);
  const std::size_t comma = name.find(',');
  const std::size_t mark = comma == std::string_view::npos ? name.find(' ') : comma;
  student.lastname = Trim(name.substr(0, mark));
  student.firstname.clear();
  if (mark < kNamesAndMark && mark + 1 < name.size())
    student.firstname = Trim(Left(Trim(name.substr(mark + 1)), kNamesAndMark - (mark + 1)));
  if (student.firstname.empty()) student.firstname = "-";
}

TextRoster ReadRosterText(std::string_view bytes, i16 mode, const CsvColumns& columns) {
  TextRoster roster;
  const std::optional<SourceText> source = SourceText::FromBytes(bytes);
  if (!source)
    roster.refusal = "is not a text file";
  else if (mode == kCsvText)
    ReadRecords(*source, columns, roster);
  else
    ReadLines(*source, mode, roster);
  if (!roster.refusal.empty()) roster.students.clear();
  if (roster.refusal.empty() && roster.students.empty()) roster.refusal = "holds no students";
  return roster;
}

}  // namespace tallyroll
