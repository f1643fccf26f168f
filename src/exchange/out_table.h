// SPDX-License-Identifier: GPL-3.0-or-later
// The class in work as another system is to have it, and what that system would drop or misread.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/formats/formats.h"

namespace tallyroll {

// The special marks of a class, each with its way out.
inline constexpr std::array<std::string_view, 5> kOutMarks = {"ABS", "EXC", "CUT", "NON", "NEW"};
struct OutSigns {
  std::array<SignOut, 5> by_mark = {SignOut::kNothing, SignOut::kOwn, SignOut::kZero,
                                    SignOut::kZero, SignOut::kNothing};

  friend bool operator==(const OutSigns&, const OutSigns&) = default;
};

// "own", "nothing", "zero".
std::string_view SignOutName(SignOut sign);
// "ABS=zero,EXC=own"; marks that it does not name stay as they are. Answers what is wrong with it.
std::string TakeSigns(std::string_view text, OutSigns& signs);
std::string SignsText(const OutSigns& signs);
// What the teacher chose for a format the last time, and keeping it.
OutSigns RememberedSigns(ExchangeFormat format);
void RememberSigns(ExchangeFormat format, const OutSigns& signs);

// What the other system would drop or misread.
enum class OutTrouble {
  kTotalTitle,  // a title that it takes for one of its totals
  kKeyTitle,    // a title that ends as its identifiers do
  kBracketTitle,
  kHashTitle,  // begins with # or *
  kTwiceTitle,
  kDecimals,  // more than it keeps
  kText,      // a mark that it can't read
  kNoKey,     // an identifier of its own is needed
  kNoId,      // a student whom it can't find
};

struct OutWarning {
  OutTrouble trouble = OutTrouble::kText;
  int grade = -1;  // of the table; -1 where it is about a student or the whole
  std::string text;
  std::string remedy;  // what mending it does; empty where nothing can be done here
  bool mended = true;  // do it
};

struct OutTable {
  std::string refusal;  // why there is none, as the end of a sentence
  ForeignTable table;
  std::vector<OutWarning> warnings;
};

OutTable MakeOutTable(ExchangeFormat format, const OutSigns& signs);
// The file, with every warning mended that is to be.
ForeignFile OutFile(ExchangeFormat format, const OutTable& out);

}  // namespace tallyroll
