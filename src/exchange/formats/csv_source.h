// SPDX-License-Identifier: GPL-3.0-or-later
// A file of comma-separated values with titles, and how readers take its cells.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "exchange/formats/foreign_table.h"
#include "store/csv.h"
#include "store/text/source_text.h"

namespace tallyroll {

class CsvSource {
 public:
  explicit CsvSource(std::string_view bytes);

  // Why nothing can be read, as the end of a sentence; empty when it can.
  const std::string& refusal() const { return refusal_; }
  // The records behind the titles.
  std::size_t rows() const { return table_.records.empty() ? 0 : table_.records.size() - 1; }
  std::size_t columns() const { return Titles().size(); }
  int LineOf(std::size_t row) const { return table_.records[row + 1].line; }

  // A title or a cell on one line, without blanks around; empty beyond the last.
  std::string Title(std::size_t column) const;
  std::string Cell(std::size_t row, std::size_t column) const;
  // As it stands, its blanks included.
  std::string_view RawCell(std::size_t row, std::size_t column) const;
  bool IsBlankRow(std::size_t row) const;

  // The first column with this title, whatever its case; nothing when there is none.
  std::optional<std::size_t> Find(std::string_view title) const;
  std::optional<std::size_t> FindAny(const std::vector<std::string_view>& titles) const;

  // Whether a class file can hold a title or a cell as the file has it; what to show when it can't.
  bool HoldsTitle(std::size_t column) const;
  std::string ShownTitle(std::size_t column) const;
  bool HoldsCell(std::size_t row, std::size_t column) const;
  std::string ShownCell(std::size_t row, std::size_t column) const;

 private:
  const std::vector<CsvCell>& Titles() const;
  bool Holds(const std::vector<CsvCell>& cells, std::size_t column) const;
  std::string Shown(const std::vector<CsvCell>& cells, std::size_t column) const;

  std::optional<SourceText> text_;
  CsvTable table_;
  std::unordered_map<std::string, std::size_t> column_of_;  // by title in small letters
  std::string refusal_;
};

// Reads each row from `first` on. Where that is cancelled the table holds nothing but a refusal.
void ReadRows(const CsvSource& source, std::size_t first, ForeignTable& table,
              const std::function<void(std::size_t row)>& read);

// Adds a mark, or the fault of a cell that is none.
void TakeMark(const CsvSource& source, std::size_t row, std::size_t column, int student, int grade,
              ForeignTable& table);
// A grade for a column, or a fault where its title cannot be held; -1 then.
int TakeGrade(const CsvSource& source, std::size_t column, ForeignGrade grade, ForeignTable& table);
// Both names of "Ng, Ada" or "Ada Ng" into a student.
void TakeName(std::string_view name, ForeignStudent& student);
// "has no column \"ID\" and \"Section\"": a file of this format cannot be read without them.
std::string LacksColumns(const CsvSource& source, const std::vector<std::string_view>& titles);

}  // namespace tallyroll
