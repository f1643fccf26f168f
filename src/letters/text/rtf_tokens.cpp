// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_tokens.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr int kLargestNumber = 2'000'000'000;

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::size_t Length(std::string_view text, bool (*belongs)(char)) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), belongs) -
                                  text.begin());
}

}  // namespace

RtfToken RtfTokens::Fault(const char* what) {
  error_ = what;
  rest_ = {};
  return {};
}

RtfToken RtfTokens::Next() {
  constexpr std::string_view kNoText("\r\n\0", 3);
  rest_.remove_prefix(std::min(rest_.find_first_not_of(kNoText), rest_.size()));
  if (rest_.empty()) return {};
  constexpr std::string_view kEndsText("\\{}\r\n\t\0", 7);
  const char first = rest_.front();
  if (first == '\\') return Control();
  RtfToken token;
  std::size_t length = 1;
  if (first == '{' || first == '}') {
    token.kind = first == '{' ? RtfKind::kOpen : RtfKind::kClose;
  } else if (first == '\t') {
    token = {RtfKind::kWord, "tab", false, 0};
  } else {
    length = std::min(rest_.find_first_of(kEndsText), rest_.size());
    token = {RtfKind::kText, rest_.substr(0, length), false, 0};
  }
  rest_.remove_prefix(length);
  return token;
}

RtfToken RtfTokens::Control() {
  rest_.remove_prefix(1);
  if (rest_.empty()) return Fault("it ends in the middle of a control word");
  const char first = rest_.front();
  if (IsLetter(first)) return Word();
  if (first == '\'') return Byte();
  RtfToken token = {RtfKind::kSymbol, rest_.substr(0, 1), false, 0};
  // A line end behind a backslash ends a paragraph, a tab there is one.
  if (first == '\r' || first == '\n') token = {RtfKind::kWord, "par", false, 0};
  if (first == '\t') token = {RtfKind::kWord, "tab", false, 0};
  rest_.remove_prefix(1);
  return token;
}

// One blank behind a word or its number belongs to it.
RtfToken RtfTokens::Word() {
  RtfToken token;
  token.kind = RtfKind::kWord;
  const std::size_t letters = Length(rest_, IsLetter);
  token.text = rest_.substr(0, letters);
  rest_.remove_prefix(letters);
  const bool minus = !rest_.empty() && rest_.front() == '-';
  const std::size_t digits = Length(rest_.substr(minus ? 1 : 0), IsDigit);
  if (digits > 0) {
    long long number = 0;
    for (const char c : rest_.substr(minus ? 1 : 0, digits))
      number = std::min<long long>(number * 10 + (c - '0'), kLargestNumber);
    token.has_number = true;
    token.number = static_cast<int>(minus ? -number : number);
    rest_.remove_prefix(digits + (minus ? 1 : 0));
  }
  if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  if (token.text == "bin") return Binary(token.number);
  return token;
}

RtfToken RtfTokens::Byte() {
  if (rest_.size() < 3) return Fault("it ends in the middle of a character");
  const int high = HexValue(rest_[1]), low = HexValue(rest_[2]);
  if (high < 0 || low < 0) return Fault("a character's number is none");
  rest_.remove_prefix(3);
  return {RtfKind::kByte, {}, true, high * 16 + low};
}

// Bytes that are no text: braces among them open and close nothing.
RtfToken RtfTokens::Binary(int length) {
  const auto count = static_cast<std::size_t>(std::max(length, 0));
  if (count > rest_.size()) return Fault("it ends in the middle of a picture");
  RtfToken token = {RtfKind::kBinary, rest_.substr(0, count), true, length};
  rest_.remove_prefix(count);
  return token;
}

}  // namespace tallyroll
