// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/letter_words.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr char16_t kSoftHyphen = 0xAD;
constexpr std::size_t kLongestWord = 256;  // a longer one is many that no line ends between

bool IsBlankUnit(char16_t unit) {
  return unit == u' ' || (unit >= 0x2000 && unit <= 0x2006) || (unit >= 0x2008 && unit <= 0x200B) ||
         unit == 0x3000;
}

LetterPart PartOf(char16_t unit) {
  if (unit == u'\t') return LetterPart::kTab;
  if (unit == u'\n') return LetterPart::kLineEnd;
  return IsBlankUnit(unit) ? LetterPart::kBlank : LetterPart::kText;
}

// Scripts that write without blanks.
bool EndsAnywhere(char16_t unit) {
  return (unit >= 0x2E80 && unit < 0xA4D0) || (unit >= 0xAC00 && unit < 0xD7B0) ||
         (unit >= 0xF900 && unit < 0xFB00) || (unit >= 0xFF00 && unit < 0xFF70);
}

// Behind a hyphen within a word, not before a number: "-5" stays whole.
bool MayEndBehind(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (EndsAnywhere(unit)) return true;
  if (unit == kSoftHyphen || unit == 0x2014 || unit == 0x2013) return at > 0;
  const bool before_digit = at + 1 < text.size() && text[at + 1] >= u'0' && text[at + 1] <= u'9';
  return unit == u'-' && at > 0 && !IsBlankUnit(text[at - 1]) && !before_digit;
}

std::size_t EndOfWord(std::u16string_view text, std::size_t at) {
  const LetterPart part = PartOf(text[at]);
  std::size_t end = at + 1;
  if (part == LetterPart::kTab || part == LetterPart::kLineEnd) return end;
  while (end < text.size() && end - at < kLongestWord && PartOf(text[end]) == part &&
         (part == LetterPart::kBlank || !MayEndBehind(text, end - 1)))
    ++end;
  return end;
}

bool IsSecondHalf(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}
bool IsCombining(char16_t unit) {
  return (unit >= 0x300 && unit < 0x370) || unit == 0x200D || (unit >= 0xFE00 && unit < 0xFE10);
}

}  // namespace

std::vector<LetterWord> WordsOfParagraph(const Paragraph& paragraph, LetterMeasure& measure) {
  std::vector<LetterWord> words;
  for (const TextRun& run : paragraph.runs) {
    LetterMeasure::Face& face = measure.FaceOf(run.style);
    const std::u16string_view text = run.text;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = EndOfWord(text, at);
      LetterWord word = {PartOf(text[at]), &face, text.substr(at, end - at), 0, false};
      if (word.text.back() == kSoftHyphen) word.text.remove_suffix(1);
      word.may_end = word.part != LetterPart::kText || MayEndBehind(text, end - 1);
      if (word.part == LetterPart::kText || word.part == LetterPart::kBlank)
        word.width = measure.WidthOf(face, word.text);
      words.push_back(word);
      at = end;
    }
  }
  return words;
}

std::size_t FittingUnits(const LetterWord& word, double room, LetterMeasure& measure) {
  const std::u16string_view text = word.text;
  const auto whole = [&](std::size_t count) {
    while (count < text.size() && (IsSecondHalf(text[count]) || IsCombining(text[count]))) ++count;
    return count;
  };
  std::size_t fits = whole(1), too_many = text.size() + 1;
  while (too_many - fits > 1) {
    const std::size_t half = fits + (too_many - fits) / 2;
    const bool within = measure.Target().LetterWidth(text.substr(0, half), word.face->font) <= room;
    (within ? fits : too_many) = half;
  }
  const std::size_t least = whole(1);
  while (fits > least && whole(fits) != fits) --fits;
  return fits;
}

}  // namespace tallyroll
