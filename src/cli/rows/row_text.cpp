// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/rows/row_text.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "store/csv.h"

namespace tallyroll {
namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

bool StandsForItself(char c) {
  return static_cast<unsigned char>(c) >= ' ' && c != '"' && c != '\\';
}

void AddEscaped(std::string& text, std::string_view utf8) {
  if (std::ranges::all_of(utf8, StandsForItself)) {
    text += utf8;
    return;
  }
  for (const char c : utf8) {
    if (StandsForItself(c))
      text += c;
    else if (c == '"' || c == '\\')
      text.append(1, '\\').append(1, c);
    else
      text.append("\\u00")
          .append(1, kHexDigits[static_cast<std::size_t>(c) >> 4])
          .append(1, kHexDigits[static_cast<std::size_t>(c) & 15]);
  }
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// A path may be no UTF-8 at all; JSON must be.
std::string ValidUtf8(std::string_view path) {
  if (IsAscii(path) || CodePageTextFromUtf8(path)) return std::string(path);
  std::string valid;
  for (const char c : path)
    if (static_cast<unsigned char>(c) < 0x80)
      valid += c;
    else
      valid += "\xEF\xBF\xBD";
  return valid;
}

}  // namespace

void RowPart::Begin(std::string_view key) {
  const bool first = first_ && text_.empty();
  if (!first) text_ += ',';
  if (form_ == RowForm::kJson) text_.append(first ? "{\"" : "\"").append(key).append("\":");
}

void RowPart::AddText(std::string_view key, std::string_view utf8) {
  Begin(key);
  if (form_ == RowForm::kCsvHeading) {
    text_ += key;
  } else if (form_ == RowForm::kCsv) {
    text_ += CsvTextField(utf8);
  } else {
    text_ += '"';
    AddEscaped(text_, utf8);
    text_ += '"';
  }
}

void RowPart::Text(std::string_view key, std::string_view code_page) {
  if (IsAscii(code_page))
    AddText(key, code_page);
  else
    AddText(key, Utf8FromCodePage(code_page));
}

void RowPart::Path(std::string_view key, std::string_view utf8) {
  AddText(key, form_ == RowForm::kJson ? ValidUtf8(utf8) : std::string(utf8));
}

void RowPart::NumberText(std::string_view key, std::string_view value) {
  Begin(key);
  if (form_ == RowForm::kCsvHeading)
    text_ += key;
  else
    text_ += value.empty() && form_ == RowForm::kJson ? "null" : value;
}

void RowPart::Whole(std::string_view key, int value) {
  NumberText(key, PlainNumberText(value));
}

void RowPart::Amount(std::string_view key, std::optional<Currency> value) {
  std::string text = value ? PlainNumberText(*value) : "";
  if (value && text.find('.') == std::string::npos) text += ".0";
  NumberText(key, text);
}

}  // namespace tallyroll
