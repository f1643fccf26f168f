// SPDX-License-Identifier: GPL-3.0-or-later
// Marks of the class in work that may be slips of the hand.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

enum class Unusual {
  kEmpty,
  kUnknownText,  // neither a number nor a letter nor a special mark
  kLetter,       // in a grade that has more numbers than letters
  kNegative,
  kAboveMaximum,
  kFarFromStudent,  // from the other marks of the student
  kFarFromClass,    // from the other marks of the grade
};

struct UnusualMark {
  int student = 0;  // Students index
  int grade = 0;    // Instruments index
  Unusual kind = Unusual::kEmpty;
  std::string mark;  // as it stands, trimmed
  std::string told;  // what is unusual about it, with its figures
};

// By student, then by grade. A mark may stand several times, once for each kind. `go_on` is asked
// behind each student; where it says no, the marks found up to there come back.
std::vector<UnusualMark> UnusualMarks(const std::function<bool()>& go_on = {});

std::string_view NameOfKind(Unusual kind);

// The rule for marks that are far from others, in words.
inline constexpr std::string_view kFarRule =
    "Far is a mark whose percent lies more than 20 from the median of the others, and more than "
    "four times as far as half of the others do. At least five others are asked for.";

}  // namespace tallyroll
