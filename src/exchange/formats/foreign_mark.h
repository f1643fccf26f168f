// SPDX-License-Identifier: GPL-3.0-or-later
// Marks as other systems write them, to marks of a class and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/currency.h"

namespace tallyroll {

inline constexpr std::size_t kLongestMark = 5;

// A number with a point or a comma before its decimals, nothing else around it but blanks.
std::optional<Currency> ForeignNumber(std::string_view text);

// A mark of a class from a cell: a number, a letter of grades, or a special mark. Nothing when it
// is none of them.
std::optional<std::string> MarkOfCell(std::string_view cell);

// A number as a mark holds it, rounded to as many decimals as fit its five characters; nothing when
// it does not fit at all.
std::optional<std::string> MarkOfNumber(Currency number);

// The same mark to another system: equal texts, or numbers that are equal at two decimals.
bool IsSameMark(std::string_view a, std::string_view b);

// Rounded to so many decimals, a half away from zero.
Currency RoundedTo(Currency number, int decimals);

// A mark that is a plain number.
std::optional<Currency> NumberOfMark(std::string_view mark);

}  // namespace tallyroll
