// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/json_values.h"

#include <bit>
#include <cmath>
#include <limits>
#include <optional>

#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/hex_text.h"
#include "store/class_file.h"

namespace tallyroll {
namespace {

// The bytes of an infinity or of what is no number, as hexadecimal digits: JSON cannot hold them.
template <typename Number>
Number ReadNonFinite(const Json& json, const JsonPlace& at) {
  const auto bytes = BytesFromHex<sizeof(Number)>(json.get_ref<const std::string&>());
  if (!bytes) at.Refuse("must be a number");
  const auto value = std::bit_cast<Number>(*bytes);
  if (std::isfinite(value)) at.Refuse("must be a number");
  return value;
}

std::string TextOf(const Json& json, const JsonPlace& at) {
  if (!json.is_string()) at.Refuse("must be a string");
  std::optional<std::string> text = CodePageFromUtf8(json.get_ref<const std::string&>());
  if (!text) at.Refuse("has a character that code page 1252 lacks");
  if (text->size() > kLongestText) {
    at.Refuse("has " + PlainNumberText(static_cast<std::int64_t>(text->size())) +
              " characters, it may have 65535");
  }
  return *std::move(text);
}

}  // namespace

std::string JsonPlace::Path() const {
  if (!parent) return field ? field : "";
  const std::string before = parent->Path();
  if (field) return before.empty() ? field : before + "." + field;
  return before + "[" + PlainNumberText(static_cast<std::int64_t>(index)) + "]";
}

void JsonPlace::Refuse(std::string reason) const {
  throw JsonRefusal{Path(), std::move(reason)};
}

std::string ItemsText(std::size_t count) {
  return PlainNumberText(static_cast<std::int64_t>(count)) + " items";
}

void ReadValue(const Json& json, const JsonPlace& at, i16& value) {
  if (!json.is_number_integer()) at.Refuse("must be a whole number");
  using Limits = std::numeric_limits<i16>;
  const bool too_large = json.is_number_unsigned()
                             ? json.get<std::uint64_t>() > std::uint64_t{Limits::max()}
                             : json.get<std::int64_t>() > Limits::max();
  if (too_large || (!json.is_number_unsigned() && json.get<std::int64_t>() < Limits::min())) {
    at.Refuse("must lie between -32768 and 32767");
  }
  value = json.get<i16>();
}

void ReadValue(const Json& json, const JsonPlace& at, double& value) {
  if (json.is_string()) {
    value = ReadNonFinite<double>(json, at);
    return;
  }
  if (!json.is_number()) at.Refuse("must be a number");
  value = json.get<double>();
}

void ReadValue(const Json& json, const JsonPlace& at, float& value) {
  if (json.is_string()) {
    value = ReadNonFinite<float>(json, at);
    return;
  }
  double wide = 0;
  ReadValue(json, at, wide);
  if (std::abs(wide) > double{std::numeric_limits<float>::max()})
    at.Refuse("is too large for a Single");
  value = static_cast<float>(wide);
}

void ReadValue(const Json& json, const JsonPlace& at, Currency& value) {
  if (!json.is_string()) at.Refuse("must be a string with a decimal number");
  const std::optional<Currency> read = CurrencyFromText(json.get_ref<const std::string&>());
  if (!read) at.Refuse("must be a plain decimal number of at most four decimals");
  value = *read;
}

void ReadValue(const Json& json, const JsonPlace& at, Bytes8& value) {
  const auto bytes =
      json.is_string() ? BytesFromHex<8>(json.get_ref<const std::string&>()) : std::nullopt;
  if (!bytes) at.Refuse("must be a string of 16 hexadecimal digits");
  value = *bytes;
}

void ReadValue(const Json& json, const JsonPlace& at, std::string& value) {
  value = TextOf(json, at);
}

void ReadValue(const Json& json, const JsonPlace& at, ShortText& value) {
  value = ShortText(TextOf(json, at));
}

std::string ReadFixedText(const Json& json, const JsonPlace& at, std::size_t length) {
  std::string text = TextOf(json, at);
  if (text.size() != length) {
    at.Refuse("must have exactly " + PlainNumberText(static_cast<std::int64_t>(length)) +
              (length == 1 ? " character" : " characters") + ", blanks included");
  }
  return text;
}

}  // namespace tallyroll
