// SPDX-License-Identifier: GPL-3.0-or-later
// The words of a rich text file that say how characters look, and those that are characters.
#include <algorithm>

#include "letters/text/rtf_interpreter.h"

namespace tallyroll {
namespace {

constexpr int kAnsiPage = kWesternPage, kPcPage = 437, kPcLatinPage = 850;

RtfCharacter& Character(RtfInterpreter& rtf) {
  return rtf.Group().character;
}

template <char16_t kUnit>
void AddUnit(RtfInterpreter& rtf, const RtfToken&) {
  constexpr char16_t kUnits[] = {kUnit};
  rtf.AppendUnits({kUnits, 1});
}

template <bool RtfCharacter::*kFlag>
void Switch(RtfInterpreter& rtf, const RtfToken& token) {
  Character(rtf).*kFlag = token.IsOn();
}

template <TextPlace kPlace>
void SetPlace(RtfInterpreter& rtf, const RtfToken& token) {
  Character(rtf).place = token.IsOn() ? kPlace : TextPlace::kBase;
}

template <int kPage>
void SetPage(RtfInterpreter& rtf, const RtfToken&) {
  rtf.file_page = kPage;
}

void SetFont(RtfInterpreter& rtf, const RtfToken& token) {
  if (rtf.Group().place != RtfPlace::kFonts) {
    Character(rtf).font = token.number;
    return;
  }
  rtf.font_in_table = token.number;
  rtf.fonts[token.number] = {};
}

void SetFontPage(RtfInterpreter& rtf, int page) {
  if (rtf.Group().place == RtfPlace::kFonts) rtf.fonts[rtf.font_in_table].page = page;
}

void SetColor(RtfInterpreter& rtf, int shift, int value) {
  if (rtf.Group().place != RtfPlace::kColors) return;
  if (rtf.color_in_table == kAutomaticColor) rtf.color_in_table = 0;
  rtf.color_in_table |= (value & 0xFF) << shift;
}

// The number is signed in the file, and one half of a pair above the first 65,536 characters.
void AddUnicode(RtfInterpreter& rtf, const RtfToken& token) {
  // A bullet of a sign font, by the font's own place or by that of the western code page.
  constexpr char16_t kSymbolBullet = 0xF0B7, kSymbolWesternBullet = 0xF095, kBullet = 0x2022;
  auto unit = static_cast<char16_t>(token.number & 0xFFFF);
  if (unit == kSymbolBullet || unit == kSymbolWesternBullet) unit = kBullet;
  rtf.AppendUnits(std::u16string_view(&unit, 1));
  rtf.to_skip = rtf.Group().fallbacks;
}

void SetSize(RtfInterpreter& rtf, const RtfToken& token) {
  constexpr int kLargestSize = 3276;  // what a word processor offers, in half points
  if (token.number > 0) Character(rtf).half_points = std::min(token.number, kLargestSize);
}

}  // namespace

const RtfWords& CharacterWords() {
  static const RtfWords words = {
      {"b", Switch<&RtfCharacter::bold>},
      {"i", Switch<&RtfCharacter::italic>},
      {"ul", Switch<&RtfCharacter::underline>},
      {"uld", Switch<&RtfCharacter::underline>},
      {"uldash", Switch<&RtfCharacter::underline>},
      {"uldashd", Switch<&RtfCharacter::underline>},
      {"uldashdd", Switch<&RtfCharacter::underline>},
      {"uldb", Switch<&RtfCharacter::underline>},
      {"ulth", Switch<&RtfCharacter::underline>},
      {"ulw", Switch<&RtfCharacter::underline>},
      {"ulwave", Switch<&RtfCharacter::underline>},
      {"ulnone", [](RtfInterpreter& rtf, const RtfToken&) { Character(rtf).underline = false; }},
      {"strike", Switch<&RtfCharacter::strike>},
      {"striked", Switch<&RtfCharacter::strike>},
      {"v", Switch<&RtfCharacter::hidden>},
      {"deleted", Switch<&RtfCharacter::hidden>},
      {"super", SetPlace<TextPlace::kSuper>},
      {"up", SetPlace<TextPlace::kSuper>},
      {"sub", SetPlace<TextPlace::kSub>},
      {"dn", SetPlace<TextPlace::kSub>},
      {"nosupersub",
       [](RtfInterpreter& rtf, const RtfToken&) { Character(rtf).place = TextPlace::kBase; }},
      {"f", SetFont},
      {"fs", SetSize},
      {"cf",
       [](RtfInterpreter& rtf, const RtfToken& token) { Character(rtf).color = token.number; }},
      {"plain",
       [](RtfInterpreter& rtf, const RtfToken&) { Character(rtf) = rtf.default_character; }},
      {"ansi", SetPage<kAnsiPage>},
      {"mac", SetPage<kMacPage>},
      {"pc", SetPage<kPcPage>},
      {"pca", SetPage<kPcLatinPage>},
      {"ansicpg",
       [](RtfInterpreter& rtf, const RtfToken& token) {
         if (token.number > 0) rtf.file_page = token.number;
       }},
      {"deff", [](RtfInterpreter& rtf, const RtfToken& token) { rtf.default_font = token.number; }},
      {"fcharset",
       [](RtfInterpreter& rtf, const RtfToken& token) {
         SetFontPage(rtf, token.number == 1 ? 0 : PageOfCharset(token.number));
       }},
      {"cpg", [](RtfInterpreter& rtf, const RtfToken& token) { SetFontPage(rtf, token.number); }},
      {"red", [](RtfInterpreter& rtf, const RtfToken& token) { SetColor(rtf, 16, token.number); }},
      {"green", [](RtfInterpreter& rtf, const RtfToken& token) { SetColor(rtf, 8, token.number); }},
      {"blue", [](RtfInterpreter& rtf, const RtfToken& token) { SetColor(rtf, 0, token.number); }},
      {"u", AddUnicode},
      {"uc", [](RtfInterpreter& rtf,
                const RtfToken& token) { rtf.Group().fallbacks = std::max(token.number, 0); }},
      {"tab", AddUnit<u'\t'>},
      {"line", AddUnit<u'\n'>},
      {"lbr", AddUnit<u'\n'>},
      {"emdash", AddUnit<0x2014>},
      {"endash", AddUnit<0x2013>},
      {"emspace", AddUnit<0x2003>},
      {"enspace", AddUnit<0x2002>},
      {"qmspace", AddUnit<0x2005>},
      {"bullet", AddUnit<0x2022>},
      {"lquote", AddUnit<0x2018>},
      {"rquote", AddUnit<0x2019>},
      {"ldblquote", AddUnit<0x201C>},
      {"rdblquote", AddUnit<0x201D>},
      {"zwj", AddUnit<0x200D>},
      {"zwnj", AddUnit<0x200C>},
      {"ltrmark", AddUnit<0x200E>},
      {"rtlmark", AddUnit<0x200F>},
  };
  return words;
}

}  // namespace tallyroll
