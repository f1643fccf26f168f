// SPDX-License-Identifier: GPL-3.0-or-later
// How well a text answers what is typed into Find: exact words come before beginnings, beginnings
// before initials, and a slip of the finger last, so that the right name typed is the first line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// Lower is better; they stand in the order in which a teacher would expect the lines.
enum class FindRank {
  kWhole,       // the very text
  kBeginning,   // the text begins so
  kWords,       // every word typed is a word of it
  kBeginnings,  // every word typed begins a word of it
  kInitials,    // the letters typed begin its words, one behind the other: "adst" for "Add Student"
  kInside,      // it stands somewhere within
  kSlip,        // one letter wrong, missing, too many, or two that changed places
};

// A text made ready for comparing: without accents, capitals and marks that nobody types.
struct FindText {
  std::string plain;               // its words, one blank between them
  std::vector<std::string> words;  // letters and digits
};
FindText MakeFindText(std::string_view text);

// Nothing where it does not answer. An empty query is answered by none.
std::optional<FindRank> MatchFind(const FindText& typed, const FindText& text);

}  // namespace tallyroll
