// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/grade_file.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/counted_lines.h"
#include "store/text/grade_collector.h"
#include "store/text/grade_lines.h"
#include "store/text/source_text.h"
#include "store/text/student_matcher.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

// "Rivers [RIV]" into title and code.
void TakeTitle(GradePiece piece, std::size_t column, GradeCollector& collector) {
  const std::string_view text = Trim(piece.text);
  const std::size_t open = text.rfind(" [");
  const bool coded = text.ends_with(']') && open != std::string_view::npos;
  if (coded) piece.text = text.substr(0, open);
  if (!collector.Title(column, piece) || !coded) return;
  piece.text = text.substr(open + 2, text.size() - open - 3);
  collector.Code(column, piece);
}

std::string_view TextAt(const CsvRecord& record, int column) {
  if (column < 0 || static_cast<std::size_t>(column) >= record.cells.size()) return {};
  return record.cells[static_cast<std::size_t>(column)].text;
}

GradePiece PieceAt(const CsvRecord& record, std::size_t column) {
  if (column >= record.cells.size()) return {record.line, {}, {}};
  const CsvCell& cell = record.cells[column];
  return {record.line, cell.raw, cell.text};
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
  file.refusal = FaultOf(table);
  if (file.refusal.empty() && !WhatIsMissing(columns, purpose).empty())
    file.refusal = "has no columns with students and grades";
  if (!file.refusal.empty()) return;
  std::vector<std::size_t> grades;
  for (std::size_t i = 0; i < columns.uses.size(); ++i)
    if (columns.uses[i] == CsvUse::kGrade) grades.push_back(i);
  GradeCollector collector(source, file);
  CountedLines work("Reading the lines", table.records.size());
  for (std::size_t i = 0; i < table.records.size(); ++i) {
    if (!work.Next()) {
      file.refusal = kNotReadToItsEnd;
      return;
    }
    const CsvRecord& record = table.records[i];
    const bool heading = i == 0 && columns.heading;
    const int student = heading ? 0 : matcher.Take(KeyOfRecord(record, columns, matcher.by_name()));
    if (!heading) CountLine(student, file);
    for (std::size_t k = 0; k < grades.size(); ++k) {
      const GradePiece piece = PieceAt(record, grades[k]);
      if (heading) TakeTitle(piece, k, collector);
      if (student > 0) collector.Mark(k, student, piece);
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
  file.found.resize(static_cast<std::size_t>(Current().NumStudents) + 1);
  StudentMatcher matcher(open_state == kGradesByName, mode);
  if (mode == kCsvText)
    ReadRecords(*source, columns, open_state, matcher, file);
  else
    ReadGradeLines(*source, mode, matcher, file);
  if (mode == kCsvText && columns.capitals)
    for (GradeColumn& column : file.columns)
      std::ranges::transform(column.marks, column.marks.begin(), UpperCase);
  if (file.refusal.empty() && file.matched == 0) file.refusal = "holds no student of this class";
  if (!file.refusal.empty()) {
    file.columns.clear();
    file.lacking.clear();
  }
  return file;
}

GradeFile ReadGradeImport(int open_state) {
  const FileContents contents = ReadWholeFile(ImportFile, kLargestTextFile);
  if (contents.error != 0) {
    ShowTextFileError(contents.error);
    return {};
  }
  const LongWork work("Reading the file", 1);
  GradeFile file = ReadGradeText(contents.bytes, TextMode, ImportColumns, open_state);
  file.cancelled = work.Cancelled();
  if (file.cancelled) return file;
  if (!file.refusal.empty())
    ShowMessage(PathForDisplay(ImportFile) + " " + file.refusal + ".", BoxIcon::kCritical);
  return AcceptsLacking(file.lacking) ? file : GradeFile();
}

}  // namespace tallyroll
