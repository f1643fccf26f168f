// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_writer.h"

#include <algorithm>
#include <vector>

#include "base/code_page.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

// A word of the file with its number, without one where it is not given.
std::string RtfWord(std::string_view name) {
  return "\\" + std::string(name);
}
std::string RtfWord(std::string_view name, int number) {
  return RtfWord(name) + PlainNumberText(number);
}

std::string HexByte(unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {'\\', '\'', kDigits[byte >> 4U], kDigits[byte & 15U]};
}

// A character of code page 1252 by its byte, any other by its number with a "?" for old readers.
std::string RtfUnit(char16_t unit) {
  if (unit == u'\t') return "\\tab ";
  if (unit == u'\n') return "\\line ";
  if (unit == u'\\' || unit == u'{' || unit == u'}') return {'\\', static_cast<char>(unit)};
  if (unit < 0x80) return std::string(1, static_cast<char>(unit));
  const auto byte = unit >= 0xA0 ? CodePageOf(unit) : std::nullopt;
  if (byte) return HexByte(*byte);
  return RtfWord("u", static_cast<std::int16_t>(unit)) + "?";
}

std::string RtfText(std::u16string_view text) {
  std::string written;
  for (const char16_t unit : text) written += RtfUnit(unit);
  return written;
}

// What a font's name may not hold in its table ends it there.
std::string FontName(const std::string& name) {
  std::string plain = name.substr(0, name.find(';'));
  std::replace_if(
      plain.begin(), plain.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return plain.empty() ? TextStyle().font : plain;
}

class RtfWriter {
 public:
  explicit RtfWriter(const RichText& text) : text_(text) {
    base_ = StyleWords(text.base);
    for (const Paragraph& paragraph : text_.paragraphs) Write(paragraph);
  }

  std::string File() const {
    std::string file = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl";
    for (std::size_t i = 0; i < fonts_.size(); ++i)
      file += "{" + RtfWord("f", static_cast<int>(i)) + "\\fnil\\fcharset0 " +
              RtfText(Utf16FromUtf8(fonts_[i])) + ";}";
    file += "}\n{\\colortbl;";
    for (const std::int32_t color : colors_)
      file += RtfWord("red", color >> 16 & 0xFF) + RtfWord("green", color >> 8 & 0xFF) +
              RtfWord("blue", color & 0xFF) + ";";
    return file + "}\n{\\*\\defchp " + base_ + "}\n" + body_ + "}\n";
  }

 private:
  int FontNumber(const std::string& name) {
    const std::string known = FontName(name);
    const auto place = std::find(fonts_.begin(), fonts_.end(), known);
    const auto number = static_cast<int>(place - fonts_.begin());
    if (place == fonts_.end()) fonts_.push_back(known);
    return number;
  }

  // Colour 0 is the automatic one.
  int ColorNumber(std::int32_t color) {
    if (color == kAutomaticColor) return 0;
    const auto place = std::find(colors_.begin(), colors_.end(), color);
    const auto number = static_cast<int>(place - colors_.begin()) + 1;
    if (place == colors_.end()) colors_.push_back(color);
    return number;
  }

  std::string StyleWords(const TextStyle& style) {
    std::string words = RtfWord("f", FontNumber(style.font)) + RtfWord("fs", style.half_points);
    if (style.bold) words += "\\b";
    if (style.italic) words += "\\i";
    if (style.underline) words += "\\ul";
    if (style.strike) words += "\\strike";
    if (style.place == TextPlace::kSuper) words += "\\super";
    if (style.place == TextPlace::kSub) words += "\\sub";
    if (style.color != kAutomaticColor) words += RtfWord("cf", ColorNumber(style.color));
    return words + " ";
  }

  static std::string ParagraphWords(const ParagraphStyle& style) {
    std::string words = "\\pard\\plain";
    words += style.align == TextAlign::kCenter    ? "\\qc"
             : style.align == TextAlign::kRight   ? "\\qr"
             : style.align == TextAlign::kJustify ? "\\qj"
                                                  : "\\ql";
    const auto length = [&](std::string_view name, int value) {
      if (value != 0) words += RtfWord(name, value);
    };
    length("li", style.left);
    length("ri", style.right);
    length("fi", style.first);
    length("sb", style.before);
    length("sa", style.after);
    if (style.page_break_before) words += "\\pagebb";
    if (style.line_rule == LineRule::kMultiple && style.line != 240)
      words += RtfWord("sl", style.line) + "\\slmult1";
    if (style.line_rule == LineRule::kAtLeast) words += RtfWord("sl", style.line) + "\\slmult0";
    if (style.line_rule == LineRule::kExactly) words += RtfWord("sl", -style.line) + "\\slmult0";
    for (const TabStop& tab : style.tabs) words += TabWords(tab);
    return words + " ";
  }

  static std::string TabWords(const TabStop& tab) {
    const std::string_view align = tab.align == TabAlign::kRight     ? "\\tqr"
                                   : tab.align == TabAlign::kCenter  ? "\\tqc"
                                   : tab.align == TabAlign::kDecimal ? "\\tqdec"
                                                                     : "";
    return std::string(align) + RtfWord("tx", tab.at);
  }

  // The last paragraph ends like every other: readers take that for the end of the letter.
  void Write(const Paragraph& paragraph) {
    body_ += ParagraphWords(paragraph.style);
    for (const TextRun& run : paragraph.runs)
      body_ += "{" + StyleWords(run.style) + RtfText(run.text) + "}";
    body_ += "{" + StyleWords(paragraph.mark) + "\\par}\n";
  }

  const RichText& text_;
  std::vector<std::string> fonts_;
  std::vector<std::int32_t> colors_;
  std::string base_, body_;
};

}  // namespace

std::string WriteRtf(const RichText& text) {
  return RtfWriter(text).File();
}

}  // namespace tallyroll
