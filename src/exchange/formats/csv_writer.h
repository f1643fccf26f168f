// SPDX-License-Identifier: GPL-3.0-or-later
// Writes comma-separated values for another system.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/formats/foreign_table.h"

namespace tallyroll {

// What a writer of many lines is about.
inline constexpr std::string_view kWritingLines = "Writing the lines";

// Fields are in the code page. No field is a formula to a spreadsheet.
class CsvWriter {
 public:
  void Add(std::string_view field);
  // The first fields of a row.
  void Row(std::initializer_list<std::string_view> fields) {
    for (const std::string_view field : fields) Add(field);
  }
  void EndRow();
  // The whole as UTF-8; with a mark at its head where the other side wants one.
  std::string Utf8(bool mark = false) const;

 private:
  std::string text_;
  bool begun_ = false;  // the row has a field
};

// The marks of a table by student and grade.
class MarksByCell {
 public:
  explicit MarksByCell(const ForeignTable& table);

  const ForeignMark* Of(std::size_t student, std::size_t grade) const;
  std::string_view Text(std::size_t student, std::size_t grade) const;
  std::string_view Comment(std::size_t student, std::size_t grade) const;

 private:
  std::size_t grades_;
  std::vector<const ForeignMark*> marks_;
};

}  // namespace tallyroll
