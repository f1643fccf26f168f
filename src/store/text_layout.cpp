// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text_layout.h"

#include "base/text.h"

namespace tallyroll {
namespace {

// Cuts off the text up to the separator; the whole rest when there is none.
std::string_view TakeUpTo(char separator, std::string_view& rest) {
  const std::size_t end = rest.find(separator);
  const std::string_view taken = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return taken;
}

// What stands between quotes; what lies before the opening one is no part of any field.
std::string_view TakeQuoted(char quote, std::string_view& rest) {
  TakeUpTo(quote, rest);
  return Trim(TakeUpTo(quote, rest));
}

constexpr char kRightQuote = '\x92';  // the apostrophe that is no field mark

// What is written for a field mark inside a value.
char Nearest(char separator) {
  if (separator == '\'') return kRightQuote;
  return separator == '"' ? '\'' : ' ';
}

}  // namespace

char SeparatorOf(i16 mode) {
  switch (mode) {
    case kSinglesText:
      return '\'';
    case kDoublesText:
      return '"';
    case kTabsText:
      return '\t';
    case kCommasText:
    case kCsvText:
      return ',';
    default:
      return 0;
  }
}

std::string WrittenIn(i16 mode, std::string_view value) {
  const char separator = SeparatorOf(mode);
  std::string written(value);
  for (char& c : written) {
    if (c >= '\0' && c < ' ' && c != '\t') c = ' ';
    if (separator != 0 && c == separator) c = Nearest(separator);
  }
  return written;
}

std::vector<std::string_view> CutFields(std::string_view line, i16 mode, std::size_t most) {
  std::vector<std::string_view> fields;
  const char separator = SeparatorOf(mode);
  while (!line.empty() && fields.size() < most)
    fields.push_back(mode == kDoublesText ? TakeQuoted(separator, line)
                                          : TakeUpTo(separator, line));
  return fields;
}

std::string_view CutColumn(std::string_view line, std::size_t position, std::size_t length) {
  if (position >= line.size()) return {};
  return TrimRight(line.substr(position, length));
}

}  // namespace tallyroll
