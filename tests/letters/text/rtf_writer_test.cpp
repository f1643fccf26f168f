// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "letters/text/rtf_reader.h"
#include "tests/letters/letter_texts.h"

namespace tallyroll {
namespace {

void ExpectSameAgain(const RichText& letter) {
  const RtfReading reading = ReadRtf(WriteRtf(letter));
  EXPECT_EQ(reading.error, "");
  EXPECT_EQ(reading.left_out, std::vector<std::string>{});
  EXPECT_TRUE(reading.text == letter) << WriteRtf(letter).substr(0, 2000);
}

TEST(RtfWriter, AnEmptyLetterComesBack) {
  ExpectSameAgain(RichText());
}

TEST(RtfWriter, EveryCharacterComesBack) {
  std::u16string text;
  for (char32_t unit = 0x20; unit < 0xD800; ++unit)
    if (unit != 0x7F) text += static_cast<char16_t>(unit);
  text += u"\t\n\U0001F600{}\\'";
  Paragraph paragraph;
  AppendText(paragraph, text, {});
  RichText letter;
  letter.paragraphs = {paragraph};
  ExpectSameAgain(letter);
}

TEST(RtfWriter, AFontsNameOfAnyAlphabetComesBack) {
  RichText letter = RichTextOf(u"x");
  letter.paragraphs[0].runs[0].style.font = "\u0164\u201C\u017E \u5B8B\u4F53 \U0001F600";
  letter.paragraphs[0].mark = letter.paragraphs[0].runs[0].style;
  ExpectSameAgain(letter);
}

TEST(RtfWriter, TheFileIsPlainAscii) {
  const std::string file = WriteRtf(RichTextOf(u"M\u00FCller \u0142 \U0001F600"));
  EXPECT_TRUE(std::all_of(file.begin(), file.end(),
                          [](char c) { return (c >= ' ' && c <= '~') || c == '\n'; }));
  EXPECT_NE(file.find("M\\'fcller \\u322\\'3f \\u-10179\\'3f\\u-8704\\'3f"), std::string::npos)
      << file;
}

TEST(RtfWriter, ATextLikeAControlWordIsText) {
  ExpectSameAgain(RichTextOf(u"\\par } { \\u252? \\'fc \\*\\x -5"));
  Paragraph paragraph;
  TextStyle bold;
  bold.bold = true;
  AppendText(paragraph, u"12", bold);
  AppendText(paragraph, u"34 5", {});
  RichText letter;
  letter.paragraphs = {paragraph};
  ExpectSameAgain(letter);
}

TEST(RtfWriter, EmptyParagraphsKeepTheirHeight) {
  RichText letter = RichTextOf(u"a\n\n\nb\n");
  letter.paragraphs[1].mark.half_points = 60;
  letter.paragraphs[4].mark.font = "Arial";
  ExpectSameAgain(letter);
}

TextStyle RandomStyle(std::mt19937& random) {
  const auto one_of = [&](unsigned n) { return random() % n == 0; };
  TextStyle style;
  style.font = one_of(2) ? "Arial" : one_of(2) ? "Fön {x} \\y" : "Times New Roman";
  style.half_points = static_cast<int>(random() % 90) + 1;
  style.bold = one_of(2);
  style.italic = one_of(2);
  style.underline = one_of(2);
  style.strike = one_of(3);
  if (one_of(2)) style.color = static_cast<std::int32_t>(random() % 0x1000000);
  style.place = one_of(2) ? TextPlace::kBase : one_of(2) ? TextPlace::kSuper : TextPlace::kSub;
  return style;
}

ParagraphStyle RandomParagraphStyle(std::mt19937& random) {
  ParagraphStyle style;
  style.align = static_cast<TextAlign>(random() % 4);
  style.left = static_cast<int>(random() % 3) * 360;
  style.right = static_cast<int>(random() % 3) * 100;
  style.first = static_cast<int>(random() % 3) * 200 - 200;
  style.before = static_cast<int>(random() % 2) * 120;
  style.after = static_cast<int>(random() % 2) * 240;
  style.line_rule = static_cast<LineRule>(random() % 3);
  style.line = static_cast<int>(random() % 400) + 1;
  style.page_break_before = random() % 4 == 0;
  int at = 0;
  for (auto tabs = random() % 4; tabs > 0; --tabs)
    style.tabs.push_back(
        {at += static_cast<int>(random() % 900) + 1, static_cast<TabAlign>(random() % 4)});
  return style;
}

TEST(RtfWriter, AnyLetterComesBackAsItWas) {
  std::mt19937 random(20);
  for (int round = 0; round < 200; ++round) {
    RichText letter;
    letter.base = RandomStyle(random);
    letter.paragraphs.clear();
    for (auto paragraphs = random() % 5 + 1; paragraphs > 0; --paragraphs) {
      Paragraph& paragraph = letter.paragraphs.emplace_back();
      paragraph.style = RandomParagraphStyle(random);
      paragraph.mark = RandomStyle(random);
      for (auto runs = random() % 4; runs > 0; --runs)
        AppendText(paragraph, u"word\u00E9 <Code> \u03B1", RandomStyle(random));
    }
    ExpectSameAgain(letter);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace tallyroll
