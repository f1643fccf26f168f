// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/marks.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/letters.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// Three characters as one number, so that one comparison settles a special mark.
constexpr std::uint32_t Packed(std::string_view three) {
  std::uint32_t packed = 0;
  for (const char c : three.substr(0, 3)) packed = packed << 8 | static_cast<unsigned char>(c);
  return packed;
}

constexpr std::size_t kNoLetter = 0;

// A letter's place among "A", "A+", "A-", "B" and so on to "F-"; beyond the last for anything else.
constexpr std::size_t kLetterPlaces = 18;
constexpr std::size_t LetterPlace(std::string_view mark) {
  if (mark.empty() || mark.size() > 2 || mark[0] < 'A' || mark[0] > 'F') return kLetterPlaces;
  const std::size_t first = static_cast<std::size_t>(mark[0] - 'A') * 3;
  if (mark.size() == 1) return first;
  if (mark[1] == '+') return first + 1;
  return mark[1] == '-' ? first + 2 : kLetterPlaces;
}

// The index of each place's letter; there is no "E" and no "F+".
constexpr std::array<std::size_t, kLetterPlaces + 1> MakeLetterIndices() {
  std::array<std::size_t, kLetterPlaces + 1> indices{};
  for (std::size_t k = LetterNames.size() - 1; k >= 1; --k) {
    const std::string_view name = LetterNames[k];
    indices[LetterPlace(name.substr(0, name.find(' ')))] = k;
  }
  return indices;
}
constexpr auto kLetterIndices = MakeLetterIndices();

// Digits with at most one point among them, as nearly every mark is; nothing for all other texts.
std::optional<Currency> ShortNumber(std::string_view text) {
  constexpr std::size_t kLongest = 7;
  constexpr std::array<std::int64_t, 5> kScales = {10000, 1000, 100, 10, 1};
  if (text.empty() || text.size() > kLongest) return std::nullopt;
  std::int64_t digits = 0;
  std::size_t point = text.size();
  for (std::size_t k = 0; k < text.size(); ++k) {
    if (text[k] >= '0' && text[k] <= '9') {
      digits = digits * 10 + (text[k] - '0');
    } else if (text[k] == '.' && point == text.size()) {
      point = k;
    } else {
      return std::nullopt;
    }
  }
  const std::size_t decimals = point == text.size() ? 0 : text.size() - point - 1;
  if (decimals >= kScales.size()) return std::nullopt;
  return Currency::FromScaled(digits * kScales[decimals]);
}

}  // namespace

MarkKind KindOfMark(std::string_view mark) {
  if (mark.size() != 3) return MarkKind::kGraded;
  switch (Packed(mark)) {
    case Packed("NEW"):
    case Packed("ABS"):
    case Packed("EXC"):
      return MarkKind::kLeftOut;
    case Packed("CUT"):
    case Packed("NON"):
      return MarkKind::kZero;
    default:
      return MarkKind::kGraded;
  }
}

bool IsMissing(std::string_view mark) {
  return mark == "CUT" || mark == "ABS" || mark == "NEW" || mark == "NON";
}

Currency GradeValue(std::string_view mark) {
  const std::string_view text = TrimRight(mark);
  if (const std::size_t letter = kLetterIndices[LetterPlace(text)]; letter != kNoLetter) {
    return Current().LetterValues[letter];
  }
  if (const std::optional<Currency> number = ShortNumber(text)) return *number;
  return LeadingCurrency(text);
}

bool IsGrade(std::string_view mark) {
  const std::string_view text = Trim(mark);
  return KindOfMark(text) != MarkKind::kGraded || kLetterIndices[LetterPlace(text)] != kNoLetter ||
         WholeNumberText(text).has_value();
}

int GradeCount(const Class& c) {
  return std::min<int>(c.NumInstruments, UpperBound(c.Instruments));
}

}  // namespace tallyroll
