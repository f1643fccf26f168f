// SPDX-License-Identifier: GPL-3.0-or-later
// The words of a rich text file, one by one: what each means is worked out from the format.
#include "letters/text/rtf_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "letters/text/rtf_writer.h"
#include "tests/letters/letter_texts.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset161 Greek;}"
    "{\\f2\\fcharset2 Symbol;}{\\f3\\fcharset204 Cyr;}{\\f4\\fcharset128 Japan;}}"
    "{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}";

RtfReading ReadBody(const std::string& body) {
  return ReadRtf(kHead + body + "}");
}

std::string WordsOfBody(const std::string& body) {
  const RtfReading reading = ReadBody(body);
  EXPECT_EQ(reading.error, "") << body;
  return WordsOf(reading.text);
}

std::string RunsOfBody(const std::string& body) {
  return RunsOf(ReadBody(body).text.paragraphs.at(0));
}

TEST(RtfReader, TheBlankBehindAControlWordBelongsToIt) {
  EXPECT_EQ(WordsOfBody("\\fs24 Text"), "Text");
  EXPECT_EQ(WordsOfBody("\\fs24  Text"), " Text");
  EXPECT_EQ(WordsOfBody("\\b bold\\b0  plain"), "bold plain");
  EXPECT_EQ(WordsOfBody("\\b\\i0Text"), "Text");
}

TEST(RtfReader, ASymbolTakesNoBlank) {
  EXPECT_EQ(WordsOfBody("a\\{ b\\} c\\\\ d"), "a{ b} c\\ d");
  EXPECT_EQ(WordsOfBody("a\\~ b"), "a\u00A0 b");
  EXPECT_EQ(WordsOfBody("co\\-op 1\\_2"), "co\u00ADop 1\u20112");
}

TEST(RtfReader, LineEndsOfTheFileAreNoText) {
  EXPECT_EQ(WordsOfBody("one\r\ntwo\nthree"), "onetwothree");
  EXPECT_EQ(WordsOfBody("one\\\ntwo"), "one\ntwo");
  EXPECT_EQ(WordsOfBody("a\tb"), "a\tb");
}

TEST(RtfReader, ZeroSwitchesOff) {
  EXPECT_EQ(RunsOfBody("a{\\b b\\b0 c}\\i d\\i0 e"), "[:a][b:b][:c][i:d][:e]");
  EXPECT_EQ(RunsOfBody("{\\b1\\ul\\strike x}{\\super 2}{\\sub 3}{\\ulw y}{\\ul\\ulnone z}"),
            "[bus:x][^:2][_:3][u:y][:z]");
  EXPECT_EQ(RunsOfBody("\\b\\i\\plain a"), "[:a]");
  EXPECT_EQ(RunsOfBody("{\\up6 a}{\\dn6 b}{\\super c\\nosupersub d}"), "[^:a][_:b][^:c][:d]");
}

TEST(RtfReader, AGroupGivesBackWhatWasInForceBefore) {
  EXPECT_EQ(RunsOfBody("a{\\b b{\\i c}d}e"), "[:a][b:b][bi:c][b:d][:e]");
}

TEST(RtfReader, FontSizeAndColour) {
  const RtfReading reading = ReadBody("\\f1\\fs36\\cf1 a\\cf0\\f0\\fs24 b\\cf2 c\\cf9 d\\f77 e");
  const std::vector<TextRun>& runs = reading.text.paragraphs.at(0).runs;
  ASSERT_EQ(runs.size(), 5u);
  EXPECT_EQ(runs[0].style.font, "Greek");
  EXPECT_EQ(runs[0].style.half_points, 36);
  EXPECT_EQ(runs[0].style.color, 0xFF0000);
  EXPECT_EQ(runs[1].style.font, "Arial");
  EXPECT_EQ(runs[1].style.color, kAutomaticColor);
  EXPECT_EQ(runs[2].style.color, 0x010203);
  EXPECT_EQ(runs[3].style.color, kAutomaticColor);
  EXPECT_EQ(runs[4].style.font, "Times New Roman");
}

TEST(RtfReader, TheFirstFontIsTheLettersOwn) {
  const RtfReading reading = ReadBody("x");
  EXPECT_EQ(reading.text.base.font, "Arial");
  EXPECT_EQ(reading.text.base.half_points, 24);
  EXPECT_EQ(reading.text.paragraphs.at(0).runs.at(0).style, reading.text.base);
}

TEST(RtfReader, AFontsNameMayHoldAnotherGroup) {
  const RtfReading reading = ReadRtf(
      "{\\rtf1\\deff1{\\fonttbl{\\f1\\froman{\\*\\panose 0202}{\\*\\falt Other}My Font;}}{\\f1 "
      "x}}");
  EXPECT_EQ(reading.text.paragraphs.at(0).runs.at(0).style.font, "My Font");
  const RtfReading bare = ReadRtf("{\\rtf1{\\fonttbl\\f0\\fswiss One;\\f1 Two;}{\\f1 x}}");
  EXPECT_EQ(bare.text.paragraphs.at(0).runs.at(0).style.font, "Two");
}

TEST(RtfReader, AFontsNameMayHoldCharactersByTheirNumber) {
  const RtfReading reading =
      ReadRtf("{\\rtf1{\\fonttbl{\\f1 Pi\\u281\\'3fkna \\u-10179?\\u-8704?\\u9?;}}{\\f1 x}}");
  EXPECT_EQ(reading.text.paragraphs.at(0).runs.at(0).style.font, "Pi\u0119kna \U0001F600");
}

TEST(RtfReader, BytesAreOfTheCodePageOfTheirFont) {
  EXPECT_EQ(WordsOfBody("M\\'fcller \\'80"), "Müller €");
  EXPECT_EQ(WordsOfBody("{\\f1 \\'e1\\'e2}\\'e1"), "αβá");
  EXPECT_EQ(WordsOfBody("{\\f3 \\'cf\\'f0}"), "Пр");
  EXPECT_EQ(WordsOfBody("{\\f4 \\'93\\'fa\\'96\\'7b}"), "日本");
  EXPECT_EQ(WordsOfBody("{\\f4 \\'93\\'fa\\'96{}x}"), "日\uFFFDx");
  EXPECT_EQ(WordsOfBody("{\\f2 \\'b7}\\tab a"), "•\ta");
  EXPECT_EQ(WordsOfBody("{\\f2 \\'95 \\'61}"), "• \uF061");
}

TEST(RtfReader, TheFilesOwnCodePage) {
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\mac \\'8a}").text), "ä");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\pc \\'84}").text), "ä");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\pca \\'84}").text), "ä");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\ansi\\ansicpg1250 \\'b3}").text), "ł");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\ansi\\ansicpg31999 \\'fc}").text), "ü");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1\\ansi raw \xFC}").text), "raw ü");
}

TEST(RtfReader, UnicodeIsSigned) {
  EXPECT_EQ(WordsOfBody("\\u322?od\\u378\\'9f"), "łodź");
  EXPECT_EQ(WordsOfBody("\\u-4064?"), "\uF020");
  EXPECT_EQ(WordsOfBody("\\u-3913?"), "•");
}

TEST(RtfReader, TheFallbackIsSkippedAndNoMore) {
  EXPECT_EQ(WordsOfBody("\\uc0\\u252 x"), "üx");
  EXPECT_EQ(WordsOfBody("\\uc2\\u252\\'fc\\'fcx"), "üx");
  EXPECT_EQ(WordsOfBody("\\uc3\\u252 abcd"), "üd");
  EXPECT_EQ(WordsOfBody("{\\uc2\\u252 ab}\\u252?x"), "üüx");
  EXPECT_EQ(WordsOfBody("\\uc2\\u252\\b\\i x"), "üx") << "a control word counts as one";
  EXPECT_EQ(WordsOfBody("\\uc1\\u252\\bin3 {}}x"), "üx") << "binary counts as one";
  EXPECT_EQ(WordsOfBody("{\\uc5\\u252 a}bc"), "übc") << "it ends with its group";
  EXPECT_EQ(WordsOfBody("{\\*\\upr{a}{\\*\\ud b}}c"), "c");
  EXPECT_EQ(WordsOfBody("{\\upr{fur}{\\*\\ud f\\u252?r}}c"), "fürc");
}

TEST(RtfReader, HalvesOfAPairBelongTogether) {
  EXPECT_EQ(WordsOfBody("\\u-10179?\\u-8704?"), "\U0001F600");
  EXPECT_EQ(WordsOfBody("\\u-10179?x"), "\uFFFDx");
  EXPECT_EQ(WordsOfBody("x\\u-8704?"), "x\uFFFD");
}

TEST(RtfReader, SignsWithAWordOfTheirOwn) {
  EXPECT_EQ(WordsOfBody("\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote a\\line b"),
            "—–•‘’“”a\nb");
  EXPECT_EQ(WordsOfBody("\\emspace\\enspace\\qmspace"), "\u2003\u2002\u2005");
}

TEST(RtfReader, ParagraphsAndTheirShape) {
  const RtfReading reading = ReadBody(
      "\\qc One\\par\\pard\\qj\\li720\\ri360\\fi-360\\sb120\\sa240\\tx1000\\tqr\\tx4000 Two\\par"
      "\\pard\\qr Three\\par");
  ASSERT_EQ(reading.text.paragraphs.size(), 3u) << "the last end opens no further paragraph";
  EXPECT_EQ(reading.text.paragraphs[0].style.align, TextAlign::kCenter);
  const ParagraphStyle& two = reading.text.paragraphs[1].style;
  EXPECT_EQ(two.align, TextAlign::kJustify);
  EXPECT_EQ(two.left, 720);
  EXPECT_EQ(two.right, 360);
  EXPECT_EQ(two.first, -360);
  EXPECT_EQ(two.before, 120);
  EXPECT_EQ(two.after, 240);
  EXPECT_EQ(two.tabs, (std::vector<TabStop>{{1000, TabAlign::kLeft}, {4000, TabAlign::kRight}}));
  EXPECT_EQ(reading.text.paragraphs[2].style.align, TextAlign::kRight);
}

TEST(RtfReader, TheLastParagraphNeedsNoEnd) {
  EXPECT_EQ(WordsOfBody("a\\par b"), "a\nb");
  EXPECT_EQ(WordsOfBody("a\\par\\par"), "a\n");
  EXPECT_EQ(WordsOfBody(""), "");
}

TEST(RtfReader, SpacingOfLines) {
  const auto style = [](const char* words) {
    return ReadBody(std::string(words) + " x").text.paragraphs.at(0).style;
  };
  EXPECT_EQ(style("\\sl360\\slmult1").line_rule, LineRule::kMultiple);
  EXPECT_EQ(style("\\sl360\\slmult1").line, 360);
  EXPECT_EQ(style("\\sl300\\slmult0").line_rule, LineRule::kAtLeast);
  EXPECT_EQ(style("\\sl-300").line_rule, LineRule::kExactly);
  EXPECT_EQ(style("\\sl-300").line, 300);
  EXPECT_EQ(style("\\sl0").line, 240);
}

TEST(RtfReader, PagesBreakBeforeAParagraph) {
  const auto breaks = [](const char* body) {
    std::string shown;
    for (const Paragraph& each : ReadBody(body).text.paragraphs)
      shown += (each.style.page_break_before ? "|" : "-") + Utf8FromUtf16(PlainText(each));
    return shown;
  };
  EXPECT_EQ(breaks("a\\page b"), "-a|b");
  EXPECT_EQ(breaks("a\\par\\page b\\par c"), "-a|b-c");
  EXPECT_EQ(breaks("a\\par\\pard\\pagebb b\\par\\pard c"), "-a|b-c");
  EXPECT_EQ(breaks("a\\sect\\sectd b"), "-a|b");
  EXPECT_EQ(breaks("a\\sect\\sectd\\sbknone b"), "-a-b");
  EXPECT_EQ(breaks("a\\page"), "-a|");
}

TEST(RtfReader, TablesBecomeLines) {
  const RtfReading reading = ReadBody(
      "Before\\par\\trowd\\cellx2000\\cellx4000\\cellx6000 \\pard\\intbl A\\cell\\cell C\\par "
      "D\\cell"
      "\\row\\trowd\\cellx2000\\pard\\intbl E\\cell\\row\\pard After\\par");
  EXPECT_EQ(reading.error, "");
  EXPECT_EQ(WordsOf(reading.text), "Before\nA\t\tC\nD\nE\nAfter");
  EXPECT_EQ(reading.text.paragraphs.size(), 4u);
  EXPECT_EQ(reading.text.paragraphs[1].style.tabs,
            (std::vector<TabStop>{{2000, TabAlign::kLeft}, {4000, TabAlign::kLeft}}));
  EXPECT_THAT(reading.left_out, ElementsAre("1 table was turned into lines of text"));
}

TEST(RtfReader, ARowMayBeDefinedBehindItsCellsOrTwice) {
  const RtfReading reading = ReadBody(
      "\\pard\\intbl A\\cell B\\cell\\trowd\\cellx900\\cellx1800\\row\\pard x\\par"
      "\\trowd\\cellx9\\cellx90 \\pard\\intbl C\\cell D\\cell\\trowd\\cellx500\\cellx1000\\row");
  EXPECT_EQ(WordsOf(reading.text), "A\tB\nx\nC\tD");
  EXPECT_EQ(reading.text.paragraphs[0].style.tabs, (std::vector<TabStop>{{900, TabAlign::kLeft}}));
  EXPECT_EQ(reading.text.paragraphs[2].style.tabs, (std::vector<TabStop>{{500, TabAlign::kLeft}}));
  EXPECT_THAT(reading.left_out, ElementsAre("2 tables were turned into lines of text"));
}

TEST(RtfReader, PicturesAreCountedOnce) {
  const RtfReading reading = ReadBody(
      "a{\\*\\shppict{\\pict\\pngblip 89504e47}}{\\nonshppict{\\pict\\wmetafile8 0102}}b"
      "{\\pict\\bin4 {}{}}c{\\pict 00}d");
  EXPECT_EQ(WordsOf(reading.text), "abcd");
  EXPECT_THAT(reading.left_out, ElementsAre("3 pictures were left out"));
}

TEST(RtfReader, AFieldShowsItsResult) {
  const RtfReading reading =
      ReadBody("see {\\field{\\*\\fldinst HYPERLINK \"http://x\"}{\\fldrslt here}}.");
  EXPECT_EQ(WordsOf(reading.text), "see here.");
  EXPECT_THAT(reading.left_out, ElementsAre("1 field was turned into its text"));
}

TEST(RtfReader, WhatIsUnknownBehindAStarIsLeftOutWithItsBraces) {
  EXPECT_EQ(WordsOfBody("a{\\*\\unknown x{y}\\bin3 }}}z}b"), "ab");
  EXPECT_EQ(WordsOfBody("a{\\*\\generator W\\'fc \\u252?;}b"), "ab");
  EXPECT_EQ(WordsOfBody("a\\unknown7 b{\\strange c}"), "abc");
  EXPECT_EQ(WordsOfBody("a{\\stylesheet{\\s0 Normal;}}{\\info{\\author Me}}b"), "ab");
}

TEST(RtfReader, NumbersOfListsAreText) {
  EXPECT_EQ(WordsOfBody("{\\listtext\\pard\\plain 1.\\tab}First\\par{\\pntext \\'95\\tab}Second"),
            "1.\tFirst\n•\tSecond");
}

TEST(RtfReader, HeadersFootersAndNotesKeepTheirWords) {
  const RtfReading reading = ReadBody(
      "{\\headerl Our School\\par}{\\headerr Our School\\par}{\\footer Page\\par}Dear{\\super "
      "\\chftn{\\footnote really}} parent\\par");
  EXPECT_EQ(WordsOf(reading.text), "Our School\nDear parent\nPage\nreally");
  EXPECT_THAT(reading.left_out, ElementsAre("1 header was put before the letter",
                                            "1 footer was put behind the letter",
                                            "1 footnote was put behind the letter"));
}

TEST(RtfReader, TextBoxesStandBehindTheirParagraph) {
  const RtfReading reading = ReadBody(
      "a{\\shp{\\*\\shpinst\\shpleft0{\\sp{\\sn fType}{\\sv 1}}{\\shptxt boxed\\par}}"
      "{\\shprslt twice}}b\\par c");
  EXPECT_EQ(WordsOf(reading.text), "ab\nboxed\nc");
  EXPECT_THAT(reading.left_out, ElementsAre("1 text box was put behind its paragraph"));
  const RtfReading drawn = ReadBody("a{\\shp{\\*\\shpinst{\\sp{\\sn x}{\\sv 1}}}}b");
  EXPECT_EQ(WordsOf(drawn.text), "ab");
  EXPECT_THAT(drawn.left_out, ElementsAre("1 drawing was left out"));
}

TEST(RtfReader, HiddenTextAndCommentsAreNamed) {
  const RtfReading reading = ReadBody("a{\\v secret}b{\\*\\annotation why}{\\deleted gone}c");
  EXPECT_EQ(WordsOf(reading.text), "abc");
  EXPECT_THAT(reading.left_out, ElementsAre("1 comment was left out", "hidden text was left out"));
}

TEST(RtfReader, AnObjectIsNoPicture) {
  const RtfReading reading = ReadBody("a{\\object{\\*\\objdata 00}{\\result{\\pict 00}text}}b");
  EXPECT_EQ(WordsOf(reading.text), "atextb");
  EXPECT_THAT(reading.left_out, ElementsAre("1 object of another program was left out"));
}

TEST(RtfReader, TakesNothingForRichTextThatIsNone) {
  for (const char* bytes : {"", "Dear", "{", "{\\", "{\\rtx1 a}", "\\rtf1 a", "{rtf1 a}"})
    EXPECT_EQ(ReadRtf(bytes).error, "it does not begin as rich text does") << bytes;
}

TEST(RtfReader, SaysWhatIsWrong) {
  EXPECT_EQ(ReadRtf("{\\rtf1 a").error, "it ends before its last group does");
  EXPECT_EQ(ReadRtf("{\\rtf1 {a}").error, "it ends before its last group does");
  EXPECT_EQ(ReadRtf("{\\rtf1 \\'zz}").error, "a character's number is none");
  EXPECT_EQ(ReadRtf("{\\rtf1 \\'f").error, "it ends in the middle of a character");
  EXPECT_EQ(ReadRtf("{\\rtf1 {\\pict\\bin9 ab}}").error, "it ends in the middle of a picture");
  EXPECT_EQ(ReadRtf("{\\rtf1 a\\").error, "it ends in the middle of a control word");
  EXPECT_EQ(WordsOf(ReadRtf("{\\rtf1 a").text), "a") << "what there was is read";
}

TEST(RtfReader, WhatFollowsTheLastGroupIsNotLookedAt) {
  EXPECT_EQ(WordsOf(ReadRtf(std::string("{\\rtf1 a}\0}{", 12)).text), "a");
}

TEST(RtfReader, GroupsMayStandTenThousandDeep) {
  const std::string open(10'000, '{'), close(10'000, '}');
  EXPECT_EQ(WordsOfBody(open + "deep" + close), "deep");
  const std::string far(1'000'000, '{');
  EXPECT_EQ(ReadRtf("{\\rtf1" + far).error, "its groups stand too deep in one another");
}

TEST(RtfReader, NumbersOfAnySizeDoNoHarm) {
  EXPECT_EQ(
      WordsOfBody("\\fs99999999999999999999\\li-99999999999999 a\\f-5\\cf-7\\uc-3\\u99999999 b"
                  "\\uc99999999\\u65 c"),
      Utf8FromUtf16(u"a\xE0FF"
                    u"bA"));
}

// Wherever a file is cut, there is an error or a letter.
TEST(RtfReader, AFileCutAnywhereIsAnError) {
  const std::string whole = std::string(kHead) +
                            "\\qc{\\b M\\'fcller \\u-10179?\\u-8704?}\\par{\\pict\\bin4 "
                            "{}{}}\\trowd\\cellx9\\intbl a\\cell\\row}";
  ASSERT_EQ(ReadRtf(whole).error, "");
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_NE(ReadRtf(whole.substr(0, length)).error, "") << length;
}

TEST(RtfReader, NothingIsNamedWhereNothingWasLeftOut) {
  EXPECT_THAT(ReadBody("plain\\par").left_out, IsEmpty());
}

}  // namespace
}  // namespace tallyroll
