// SPDX-License-Identifier: GPL-3.0-or-later
// The text of flat rows: JSON, one object a line, or comma-separated values.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/currency.h"

namespace tallyroll {

enum class RowForm {
  kJson,
  kCsv,
  kCsvHeading,  // the keys in the place of the values
};

// A part of a row, to which fields are added. A part is made once and stands in many rows: that of
// a student in a row for each mark. Every key stands in every row and has one type: a text is ""
// where nothing stands, a number is null; an amount always has its decimal point.
class RowPart {
 public:
  enum class Place { kFirst, kLater };
  RowPart(RowForm form, Place place) : form_(form), first_(place == Place::kFirst) {}

  void Text(std::string_view key, std::string_view code_page);
  void Path(std::string_view key, std::string_view utf8);
  void Whole(std::string_view key, int value);
  void Amount(std::string_view key, std::optional<Currency> value);
  // A number whose text is made already; empty is none.
  void NumberText(std::string_view key, std::string_view value);

  const std::string& text() const { return text_; }

 private:
  void Begin(std::string_view key);
  void AddText(std::string_view key, std::string_view utf8);

  RowForm form_;
  bool first_;
  std::string text_;
};

// What closes a row.
inline std::string_view RowEnd(RowForm form) {
  return form == RowForm::kJson ? "}\n" : "\n";
}

}  // namespace tallyroll
