// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/csv_source.h"

#include <algorithm>

#include "base/text.h"
#include "exchange/formats/foreign_mark.h"
#include "platform/long_work.h"
#include "store/text/roster_text.h"

namespace tallyroll {
namespace {

const std::vector<CsvCell> kNoCells;
constexpr std::size_t kRowsAtATime = 50;

const std::vector<CsvCell>& CellsOf(const CsvTable& table, std::size_t record) {
  return record < table.records.size() ? table.records[record].cells : kNoCells;
}

std::string TextOf(const std::vector<CsvCell>& cells, std::size_t column) {
  return column < cells.size() ? OnOneLine(cells[column].text) : std::string();
}

}  // namespace

CsvSource::CsvSource(std::string_view bytes) : text_(SourceText::FromBytes(bytes)) {
  if (!text_) {
    refusal_ = "is not a text file";
    return;
  }
  table_ = ParseCsv(text_->text());
  refusal_ = FaultOf(table_);
  if (refusal_.empty() && table_.records.empty()) refusal_ = "is empty";
  for (std::size_t i = 0; i < columns(); ++i) column_of_.emplace(LowerCase(Title(i)), i);
}

const std::vector<CsvCell>& CsvSource::Titles() const {
  return CellsOf(table_, 0);
}

std::string CsvSource::Title(std::size_t column) const {
  return TextOf(Titles(), column);
}

std::string CsvSource::Cell(std::size_t row, std::size_t column) const {
  return TextOf(CellsOf(table_, row + 1), column);
}

std::string_view CsvSource::RawCell(std::size_t row, std::size_t column) const {
  const std::vector<CsvCell>& cells = CellsOf(table_, row + 1);
  return column < cells.size() ? std::string_view(cells[column].text) : std::string_view();
}

bool CsvSource::IsBlankRow(std::size_t row) const {
  return std::ranges::all_of(CellsOf(table_, row + 1),
                             [](const CsvCell& cell) { return Trim(cell.text).empty(); });
}

std::optional<std::size_t> CsvSource::Find(std::string_view title) const {
  const auto found = column_of_.find(LowerCase(title));
  return found == column_of_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> CsvSource::FindAny(const std::vector<std::string_view>& titles) const {
  for (const std::string_view title : titles)
    if (const auto found = Find(title)) return found;
  return std::nullopt;
}

bool CsvSource::Holds(const std::vector<CsvCell>& cells, std::size_t column) const {
  return column >= cells.size() || text_->Holds(cells[column].raw);
}

std::string CsvSource::Shown(const std::vector<CsvCell>& cells, std::size_t column) const {
  return column < cells.size() ? text_->Shown(cells[column].raw) : std::string();
}

bool CsvSource::HoldsTitle(std::size_t column) const {
  return Holds(Titles(), column);
}

std::string CsvSource::ShownTitle(std::size_t column) const {
  return Shown(Titles(), column);
}

bool CsvSource::HoldsCell(std::size_t row, std::size_t column) const {
  return Holds(CellsOf(table_, row + 1), column);
}

std::string CsvSource::ShownCell(std::size_t row, std::size_t column) const {
  return Shown(CellsOf(table_, row + 1), column);
}

void ReadRows(const CsvSource& source, std::size_t first, ForeignTable& table,
              const std::function<void(std::size_t row)>& read) {
  LongWork work("Reading the lines", static_cast<int>(source.rows() / kRowsAtATime) + 1);
  for (std::size_t row = first; row < source.rows(); ++row) {
    if (row % kRowsAtATime == 0 && !work.Step()) {
      table = {};
      table.refusal = "was not read to its end";
      return;
    }
    read(row);
  }
}

void TakeMark(const CsvSource& source, std::size_t row, std::size_t column, int student, int grade,
              ForeignTable& table) {
  const std::string cell = source.Cell(row, column);
  if (cell.empty() || cell == "-") return;
  const int line = source.LineOf(row);
  const int place = static_cast<int>(column) + 1;
  if (const std::optional<std::string> mark = MarkOfCell(cell))
    table.marks.push_back({student, grade, *mark, {}, line, place});
  else
    table.faults.push_back({line, place, cell, "is no mark"});
}

int TakeGrade(const CsvSource& source, std::size_t column, ForeignGrade grade,
              ForeignTable& table) {
  grade.column = static_cast<int>(column) + 1;
  if (!source.HoldsTitle(column) || grade.title.empty()) {
    table.faults.push_back({1, grade.column, source.ShownTitle(column),
                            grade.title.empty() ? "is a grade without a title"
                                                : "is a title that a class file cannot hold"});
    return -1;
  }
  table.grades.push_back(std::move(grade));
  return static_cast<int>(table.grades.size()) - 1;
}

void TakeName(std::string_view name, ForeignStudent& student) {
  name = Trim(name);
  const std::size_t comma = name.find(',');
  if (comma != std::string_view::npos) {
    student.lastname = Trim(name.substr(0, comma));
    student.firstname = Trim(name.substr(comma + 1));
    return;
  }
  const std::size_t blank = name.rfind(' ');
  student.lastname = blank == std::string_view::npos ? name : name.substr(blank + 1);
  if (blank != std::string_view::npos) student.firstname = Trim(name.substr(0, blank));
}

std::string LacksColumns(const CsvSource& source, const std::vector<std::string_view>& titles) {
  std::string missing;
  for (const std::string_view title : titles)
    if (!source.Find(title))
      missing += (missing.empty() ? "\"" : ", \"") + std::string(title) + "\"";
  return missing.empty() ? "" : "has no column " + missing;
}

}  // namespace tallyroll
