// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/grade_file.h"

#include <optional>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/source_text.h"
#include "store/student_matcher.h"
#include "store/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostFields = 1000;

// A line taken apart: whose it is, and the texts behind.
struct MarkLine {
  std::string key;
  std::vector<std::string_view> marks;
};

std::vector<std::string_view> MarksFrom(std::string_view line, std::size_t position) {
  std::vector<std::string_view> marks;
  for (; position < line.size() && marks.size() < kMostFields; position += kMarkStep)
    marks.push_back(CutColumn(line, position, kMarkLength));
  return marks;
}

// Exported files hold id and name; a file with one key has its marks right behind it.
MarkLine CutColumns(std::string_view line, const StudentMatcher& matcher) {
  const auto& id = kTextFields[0];
  const auto& name = kTextFields[1];
  const std::string_view second = CutColumn(line, name.position, name.length);
  if (matcher.by_name()) {
    if (matcher.Find(second) > 0) return {std::string(second), MarksFrom(line, kMarksPosition)};
    return {std::string(CutColumn(line, 0, name.length)), MarksFrom(line, name.length + 1)};
  }
  const std::string_view key = CutColumn(line, 0, id.length);
  const int student = matcher.Find(key);
  const bool named = student > 0 && IsNameOf(second, student);
  return {std::string(key), MarksFrom(line, named ? kMarksPosition : name.position)};
}

MarkLine CutMarkFields(std::string_view line, i16 mode, const StudentMatcher& matcher) {
  const std::vector<std::string_view> fields = CutFields(line, mode, kMostFields);
  if (fields.empty()) return {};
  std::string key(fields[0]);
  std::ptrdiff_t used = 1;
  if (fields.size() > 1 && matcher.by_name() && matcher.Find(key) == 0) {
    // A comma between the names may have parted them.
    const std::string both = key + " " + std::string(fields[1]);
    used = 2;
    key = matcher.Find(fields[1]) > 0 ? std::string(fields[1]) : both;
  } else if (const int student = matcher.Find(key);
             fields.size() > 1 && !matcher.by_name() && student > 0) {
    if (IsNameOf(fields[1], student)) used = 2;
  }
  return {key, {fields.begin() + used, fields.end()}};
}

// Collects the marks of the lines in columns.
class Collector {
 public:
  explicit Collector(GradeFile& file) : file_(file) {}

  void Title(std::size_t column, std::string_view title) { At(column).title = Trim(title); }
  void Code(std::size_t column, std::string_view code) { At(column).code = Trim(code); }
  void Mark(std::size_t column, int student, std::string_view mark) {
    At(column).marks[static_cast<std::size_t>(student)] = Trim(mark);
  }

 private:
  GradeColumn& At(std::size_t column) {
    while (file_.columns.size() <= column) {
      file_.columns.emplace_back();
      file_.columns.back().marks.resize(static_cast<std::size_t>(Current().NumStudents) + 1);
    }
    return file_.columns[column];
  }

  GradeFile& file_;
};

// The two lines above an exported file's marks, or nothing.
std::vector<std::string_view> HeaderOf(std::string_view line, i16 mode, std::string_view id,
                                       std::string_view name) {
  if (mode == kColumnsText) {
    const bool header = CutColumn(line, 0, kTextFields[0].length) == id &&
                        CutColumn(line, kTextFields[1].position, kTextFields[1].length) == name;
    return header ? MarksFrom(line, kMarksPosition) : std::vector<std::string_view>();
  }
  std::vector<std::string_view> fields = CutFields(line, mode, kMostFields);
  if (fields.size() < 3 || Trim(fields[0]) != id || Trim(fields[1]) != name) return {};
  fields.erase(fields.begin(), fields.begin() + 2);
  return fields;
}

class LinesOfMarks {
 public:
  LinesOfMarks(const SourceText& source, i16 mode, StudentMatcher& matcher, GradeFile& file)
      : source_(source), mode_(mode), matcher_(matcher), file_(file), collector_(file) {}

  void Read() {
    LineReader lines(source_.text());
    bool behind_titles = false;
    bool first = true;
    while (const auto line = lines.Next()) {
      if (Trim(*line).empty()) continue;
      if (first && TakeTitles(*line)) {
        behind_titles = true;
      } else if (!behind_titles || !TakeCodes(*line)) {
        TakeLine(*line);
        behind_titles = false;
      }
      first = false;
    }
  }

 private:
  bool TakeTitles(std::string_view line) {
    const auto titles = HeaderOf(line, mode_, kIdTitle, kNameTitle);
    for (std::size_t i = 0; i < titles.size(); ++i) collector_.Title(i, Held(titles[i]));
    return !titles.empty();
  }
  bool TakeCodes(std::string_view line) {
    const auto codes = HeaderOf(line, mode_, "", "");
    for (std::size_t i = 0; i < codes.size(); ++i) collector_.Code(i, Held(codes[i]));
    return !codes.empty();
  }
  void TakeLine(std::string_view text) {
    const MarkLine line =
        mode_ == kColumnsText ? CutColumns(text, matcher_) : CutMarkFields(text, mode_, matcher_);
    const int student = matcher_.Take(line.key);
    if (student == 0) {
      ++file_.skipped;
      return;
    }
    ++file_.matched;
    for (std::size_t i = 0; i < line.marks.size(); ++i)
      collector_.Mark(i, student, Held(line.marks[i]));
  }

  // A text with a character that a class file lacks is left out, not changed.
  std::string_view Held(std::string_view text) const { return source_.Holds(text) ? text : ""; }

  const SourceText& source_;
  i16 mode_;
  StudentMatcher& matcher_;
  GradeFile& file_;
  Collector collector_;
};

// "Rivers [RIV]" into title and code.
void TakeTitle(std::string_view text, std::size_t column, Collector& collector) {
  text = Trim(text);
  const std::size_t open = text.rfind(" [");
  const bool coded = text.ends_with(']') && open != std::string_view::npos;
  collector.Title(column, coded ? text.substr(0, open) : text);
  if (coded) collector.Code(column, text.substr(open + 2, text.size() - open - 3));
}

std::string_view TextAt(const CsvRecord& record, int column) {
  if (column < 0 || static_cast<std::size_t>(column) >= record.cells.size()) return {};
  return record.cells[static_cast<std::size_t>(column)].text;
}

std::string_view HeldTextAt(const SourceText& source, const CsvRecord& record, int column) {
  const std::string_view text = TextAt(record, column);
  if (text.empty()) return {};
  return source.Holds(record.cells[static_cast<std::size_t>(column)].raw) ? text : "";
}

std::string KeyOfRecord(const CsvRecord& record, const CsvColumns& columns, bool by_name) {
  if (!by_name) return std::string(TextAt(record, columns.Find(CsvUse::kId)));
  const std::string_view last = TextAt(record, columns.Find(CsvUse::kLastName));
  const std::string_view first = TextAt(record, columns.Find(CsvUse::kFirstName));
  const std::string both = std::string(last) + " " + std::string(first);
  const std::string_view full = TextAt(record, columns.Find(CsvUse::kFullName));
  return Trim(both).empty() ? std::string(full) : both;
}

void ReadRecords(const SourceText& source, const CsvColumns& chosen, int open_state,
                 StudentMatcher& matcher, GradeFile& file) {
  const CsvTable table = ParseCsv(source.text());
  const CsvPurpose purpose = PurposeOf(open_state);
  const CsvColumns columns = chosen.uses.empty() ? GuessColumns(table, purpose) : chosen;
  if (table.unclosed_line > 0 || !WhatIsMissing(columns, purpose).empty()) {
    file.refusal = "has no columns with students and grades";
    return;
  }
  std::vector<int> grades;
  for (std::size_t i = 0; i < columns.uses.size(); ++i)
    if (columns.uses[i] == CsvUse::kGrade) grades.push_back(static_cast<int>(i));
  Collector collector(file);
  for (std::size_t i = 0; i < table.records.size(); ++i) {
    const CsvRecord& record = table.records[i];
    const bool heading = i == 0 && columns.heading;
    const int student = heading ? 0 : matcher.Take(KeyOfRecord(record, columns, matcher.by_name()));
    if (!heading) ++(student > 0 ? file.matched : file.skipped);
    for (std::size_t k = 0; k < grades.size(); ++k) {
      const std::string_view text = HeldTextAt(source, record, grades[k]);
      if (heading) TakeTitle(text, k, collector);
      if (student > 0) collector.Mark(k, student, text);
    }
  }
}

}  // namespace

CsvPurpose PurposeOf(int open_state) {
  return open_state == kGradesByName ? CsvPurpose::kGradesByName : CsvPurpose::kGradesById;
}

GradeFile ReadGradeText(std::string_view bytes, i16 mode, const CsvColumns& columns,
                        int open_state) {
  GradeFile file;
  const std::optional<SourceText> source = SourceText::FromBytes(bytes);
  if (!source) {
    file.refusal = "is not a text file";
    return file;
  }
  StudentMatcher matcher(open_state == kGradesByName);
  if (mode == kCsvText)
    ReadRecords(*source, columns, open_state, matcher, file);
  else
    LinesOfMarks(*source, mode, matcher, file).Read();
  if (file.refusal.empty() && file.matched == 0) file.refusal = "holds no student of this class";
  if (!file.refusal.empty()) file.columns.clear();
  return file;
}

GradeFile ReadGradeImport(int open_state) {
  const FileContents contents = ReadWholeFile(ImportFile, kLargestTextFile);
  if (contents.error != 0) {
    ShowTextFileError(contents.error);
    return {};
  }
  GradeFile file = ReadGradeText(contents.bytes, TextMode, ImportColumns, open_state);
  if (!file.refusal.empty())
    ShowMessage(PathForDisplay(ImportFile) + " " + file.refusal + ".", BoxIcon::kCritical);
  return file;
}

}  // namespace tallyroll
