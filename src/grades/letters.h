// SPDX-License-Identifier: GPL-3.0-or-later
// The letters that a mark may be.
#pragma once

#include <array>
#include <string_view>

namespace tallyroll {

// The names beside LetterValues of a class. [0] is no letter: LetterValues[0] is a status word, so
// that the first letter a teacher can type is [1].
inline constexpr std::array<std::string_view, 14> LetterNames = {"A+ ", "A+ ", "A  ", "A- ", "B+ ",
                                                                 "B  ", "B- ", "C+ ", "C  ", "C- ",
                                                                 "D+ ", "D  ", "D- ", "F  "};

}  // namespace tallyroll
