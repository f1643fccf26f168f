// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/find_match.h"

#include <algorithm>
#include <cstddef>

namespace tallyroll {
namespace {

// With fewer letters nearly every word would be a slip of the word typed.
constexpr std::size_t kLeastLettersForSlip = 4;

// The characters of the code page from 0xC0 on without their accents; a blank parts words.
constexpr std::string_view kPlainUpperHalf =
    "aaaaaaaceeeeiiiidnooooo ouuuuypsaaaaaaaceeeeiiiidnooooo ouuuuypy";

char PlainLetter(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 0xC0) return kPlainUpperHalf[byte - 0xC0U];
  if (byte >= 'A' && byte <= 'Z') return static_cast<char>(byte - 'A' + 'a');
  const bool shown = (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9');
  switch (byte) {
    case 0x8A:
    case 0x9A:
      return 's';
    case 0x8C:
    case 0x9C:
      return 'o';
    case 0x8E:
    case 0x9E:
      return 'z';
    case 0x9F:
      return 'y';
    default:
      return shown ? character : ' ';
  }
}

// What a menu marks a letter with, and the points behind an entry that asks more, are not typed;
// nor is the apostrophe within a word.
bool IsSilent(char character) {
  return character == '&' || character == '\'' || static_cast<unsigned char>(character) == 0x92;
}

bool BeginsWord(const std::string& typed, const std::vector<std::string>& words) {
  return std::ranges::any_of(words, [&](const std::string& w) { return w.starts_with(typed); });
}

bool IsWord(const std::string& typed, const std::vector<std::string>& words) {
  return std::ranges::find(words, typed) != words.end();
}

// Whether `letters` can be cut into beginnings of words that stand one behind the other.
bool AreInitials(std::string_view letters, const std::vector<std::string>& words) {
  std::vector<bool> reached(letters.size() + 1);  // so many letters are used up
  reached[0] = true;
  for (const std::string& word : words) {
    for (std::size_t used = letters.size(); used-- > 0;) {
      if (!reached[used]) continue;
      const std::size_t most = std::min(word.size(), letters.size() - used);
      for (std::size_t i = 0; i < most && letters[used + i] == word[i]; ++i)
        reached[used + i + 1] = true;
    }
  }
  return reached.back();
}

// Whether the word begins with what was typed but for one slip.
bool IsSlipOf(std::string_view typed, std::string_view word) {
  std::size_t same = 0;
  while (same < typed.size() && same < word.size() && typed[same] == word[same]) ++same;
  if (same == typed.size()) return true;
  const auto typed_from = [&](std::size_t i) { return typed.substr(std::min(i, typed.size())); };
  const auto word_begins = [&](std::size_t i, std::string_view rest) {
    return i <= word.size() && word.substr(i).starts_with(rest);
  };
  const bool swapped = same + 1 < typed.size() && same + 1 < word.size() &&
                       typed[same] == word[same + 1] && typed[same + 1] == word[same];
  return word_begins(same + 1, typed_from(same + 1)) || word_begins(same, typed_from(same + 1)) ||
         word_begins(same + 1, typed_from(same)) ||
         (swapped && word_begins(same + 2, typed_from(same + 2)));
}

// One word may have slipped, the others must begin words.
bool HasOneSlip(const std::vector<std::string>& typed, const std::vector<std::string>& words) {
  int slips = 0;
  for (const std::string& one : typed) {
    if (BeginsWord(one, words)) continue;
    const bool slip = one.size() >= kLeastLettersForSlip &&
                      std::ranges::any_of(words, [&](const auto& w) { return IsSlipOf(one, w); });
    if (!slip || ++slips > 1) return false;
  }
  return true;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += word;
  return joined;
}

}  // namespace

FindText MakeFindText(std::string_view text) {
  FindText made;
  std::string word;
  const auto end_word = [&] {
    if (word.empty()) return;
    made.plain += (made.plain.empty() ? "" : " ") + word;
    made.words.push_back(std::move(word));
    word.clear();
  };
  for (const char character : text) {
    if (IsSilent(character)) continue;
    const char letter = PlainLetter(character);
    if (letter == ' ')
      end_word();
    else
      word += letter;
  }
  end_word();
  return made;
}

std::optional<FindRank> MatchFind(const FindText& typed, const FindText& text) {
  if (typed.words.empty()) return std::nullopt;
  if (typed.plain == text.plain) return FindRank::kWhole;
  if (text.plain.starts_with(typed.plain)) return FindRank::kBeginning;
  const auto all = [&](auto&& holds) {
    return std::ranges::all_of(typed.words,
                               [&](const auto& one) { return holds(one, text.words); });
  };
  if (all(IsWord)) return FindRank::kWords;
  if (all(BeginsWord)) return FindRank::kBeginnings;
  if (AreInitials(Joined(typed.words), text.words)) return FindRank::kInitials;
  if (text.plain.find(typed.plain) != std::string::npos) return FindRank::kInside;
  if (HasOneSlip(typed.words, text.words)) return FindRank::kSlip;
  return std::nullopt;
}

}  // namespace tallyroll
