// SPDX-License-Identifier: GPL-3.0-or-later
// On a surface whose characters are equally wide: at 12 points 120 twips, a line 288 of which 216
// stand above its base. Within margins of 120 a sheet of 1440 holds ten characters a line.
#include "letters/page/letter_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "letters/page/print_letters.h"
#include "letters/text/rtf_reader.h"
#include "platform/fixed_print_target.h"
#include "printing/page/print_job.h"
#include "store/settings.h"
#include "tests/letters/letter_texts.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;

struct SmallSheet : FixedPrintTarget {
  explicit SmallSheet(Kind kind = Kind::kBox) : FixedPrintTarget(kind) {
    Width = ScaleWidth = 1440;
    Height = ScaleHeight = 1440;
  }
};

constexpr LetterMargins kSmallMargins = {120, 120, 120, 120};

std::vector<LetterPage> PagesOf(const RichText& letter) {
  const SmallSheet sheet;
  return LayOutLetter(letter, sheet, kSmallMargins);
}

RichText Rtf(const std::string& body) {
  const RtfReading reading = ReadRtf("{\\rtf1 " + body + "}");
  EXPECT_EQ(reading.error, "");
  return reading.text;
}

// "x@base:text" of each piece of a page.
std::vector<std::string> PiecesOf(const LetterPage& page) {
  std::vector<std::string> pieces;
  for (const LetterPiece& piece : page.pieces)
    pieces.push_back(PlainNumberText(static_cast<int>(piece.x + 0.5)) + "@" +
                     PlainNumberText(static_cast<int>(piece.base + 0.5)) + ":" +
                     Utf8FromUtf16(piece.text));
  return pieces;
}

std::vector<std::string> FirstPage(const RichText& letter) {
  return PiecesOf(PagesOf(letter).at(0));
}

TEST(LetterPages, LinesBreakBetweenWords) {
  EXPECT_THAT(FirstPage(RichTextOf(u"one two three")),
              ElementsAre("120@336:one two", "120@624:three"));
}

TEST(LetterPages, BlanksAtALinesEndDoNotCount) {
  EXPECT_THAT(FirstPage(RichTextOf(u"abcdefghij   klm")),
              ElementsAre("120@336:abcdefghij", "120@624:klm"));
}

TEST(LetterPages, AWordWiderThanTheLineIsBroken) {
  EXPECT_THAT(
      FirstPage(RichTextOf(u"x abcdefghijklmnopqrstuvw y")),
      ElementsAre("120@336:x", "120@624:abcdefghij", "120@912:klmnopqrst", "120@1200:uvw y"));
}

TEST(LetterPages, ACharacterOfTwoUnitsStaysWhole) {
  EXPECT_THAT(FirstPage(RichTextOf(u"abcdefghi\U0001F600k")),
              ElementsAre("120@336:abcdefghi", "120@624:\U0001F600k"));
}

TEST(LetterPages, WordsBreakBehindAHyphen) {
  EXPECT_THAT(FirstPage(RichTextOf(u"merry-go-round")),
              ElementsAre("120@336:merry-go-", "120@624:round"));
  EXPECT_THAT(FirstPage(RichTextOf(u"minus it -5")), ElementsAre("120@336:minus it", "120@624:-5"));
}

TEST(LetterPages, AWordInSeveralStylesStaysTogether) {
  EXPECT_THAT(FirstPage(Rtf("one two th{\\b re}e")),
              ElementsAre("120@336:one two", "120@624:th", "360@624:re", "600@624:e"));
}

TEST(LetterPages, Alignment) {
  EXPECT_THAT(FirstPage(Rtf("\\qc ab\\par\\pard\\qr cd\\par")),
              ElementsAre("600@336:ab", "1080@624:cd"));
}

// Ten characters; "a bc d" leaves four, two for each of its blanks.
TEST(LetterPages, JustifiedLinesReachBothEdges) {
  EXPECT_THAT(FirstPage(Rtf("\\qj a bc d efghij k")),
              ElementsAre("120@336:a", "600@336:bc", "1200@336:d", "120@624:efghij k"));
}

TEST(LetterPages, ALineEndOfItsOwnIsNotStretched) {
  EXPECT_THAT(FirstPage(Rtf("\\qj a b\\line c")), ElementsAre("120@336:a b", "120@624:c"));
}

TEST(LetterPages, IndentsAndSpace) {
  EXPECT_THAT(FirstPage(Rtf("\\li240\\fi-120\\ri240\\sb100\\sa50 abcdefg hi\\par\\pard x\\par")),
              ElementsAre("240@436:abcdefg", "360@724:hi", "120@1062:x"));
}

TEST(LetterPages, TabsGoToTheirStops) {
  EXPECT_THAT(FirstPage(Rtf("\\tx480 a\\tab b\\tab c")),
              ElementsAre("120@336:a", "600@336:b", "840@336:c"));
  EXPECT_THAT(FirstPage(Rtf("\\tqr\\tx1200 a\\tab bc")), ElementsAre("120@336:a", "1080@336:bc"));
  EXPECT_THAT(FirstPage(Rtf("\\tqc\\tx600 a\\tab bc")), ElementsAre("120@336:a", "600@336:bc"));
  EXPECT_THAT(FirstPage(Rtf("\\tqdec\\tx600 \\tab 12.5")), ElementsAre("480@336:12.5"));
}

TEST(LetterPages, ANumberHangsOutBeforeItsItem) {
  EXPECT_THAT(FirstPage(Rtf("\\li360\\fi-360 1.\\tab abc def ghi")),
              ElementsAre("120@336:1.", "480@336:abc def", "480@624:ghi"));
}

TEST(LetterPages, APieceIsAsLargeAsItIsAndTheLineAsHighAsItsHighest) {
  const LetterPage page = PagesOf(Rtf("a{\\fs48 B}c")).at(0);
  EXPECT_THAT(PiecesOf(page), ElementsAre("120@552:a", "240@552:B", "480@552:c"));
  EXPECT_EQ(page.pieces[1].font.size, 24);
}

TEST(LetterPages, RaisedTextIsSmallAndAboveTheLine) {
  const LetterPage page = PagesOf(Rtf("x{\\super 2}")).at(0);
  EXPECT_NEAR(page.pieces[1].font.size, 7.8, 1e-9);
  EXPECT_NEAR(page.pieces[0].base - page.pieces[1].base, 216 * 0.35, 1e-9);
}

TEST(LetterPages, SpacingOfLines) {
  EXPECT_THAT(FirstPage(Rtf("\\sl480\\slmult1 a\\line b")), ElementsAre("120@336:a", "120@912:b"));
  EXPECT_THAT(FirstPage(Rtf("\\sl-300 a\\line b")), ElementsAre("120@348:a", "120@648:b"));
}

// Four lines of 288 are on a page of 1200.
TEST(LetterPages, WhatIsLeftOverBeginsTheNextPage) {
  const std::vector<LetterPage> pages = PagesOf(RichTextOf(u"a\nb\nc\nd\ne"));
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].pieces.size(), 4u);
  EXPECT_THAT(PiecesOf(pages[1]), ElementsAre("120@336:e"));
}

TEST(LetterPages, PageBreaks) {
  EXPECT_EQ(PagesOf(Rtf("a\\page b\\par\\pard\\pagebb c")).size(), 3u);
  EXPECT_EQ(PagesOf(Rtf("\\pagebb a")).size(), 1u) << "the letter begins on a page of its own";
  EXPECT_EQ(PagesOf(Rtf("a\\page")).size(), 2u);
}

TEST(LetterPages, EmptyParagraphsAreAsHighAsTheirMark) {
  EXPECT_THAT(FirstPage(Rtf("a\\par{\\fs48\\par}b")), ElementsAre("120@336:a", "120@1200:b"));
}

TEST(LetterPages, AnEmptyLetterIsAnEmptyPage) {
  EXPECT_EQ(PagesOf(RichText()).size(), 1u);
}

TEST(LetterPages, MarginsWiderThanTheSheetLeaveALittleRoom) {
  const SmallSheet sheet;
  EXPECT_GE(LayOutLetter(RichTextOf(u"word"), sheet, {2000, 2000, 2000, 2000}).size(), 1u);
}

TEST(LetterPages, AnEndlessWordIsLaidOutQuickly) {
  const RichText letter = RichTextOf(std::u16string(300'000, u'x'));
  std::size_t units = 0;
  for (const LetterPage& page : PagesOf(letter))
    for (const LetterPiece& piece : page.pieces) units += piece.text.size();
  EXPECT_EQ(units, 300'000u);
}

TEST(LetterPages, ThirtyPagesHoldEveryWordInOrder) {
  std::u16string text;
  for (int i = 0; i < 150; ++i) text += u"w" + Utf16FromUtf8(PlainNumberText(i)) + u" bb\n";
  const std::vector<LetterPage> pages = PagesOf(RichTextOf(text));
  std::u16string words;
  for (const LetterPage& page : pages)
    for (const LetterPiece& piece : page.pieces) words += piece.text + u"\n";
  EXPECT_EQ(words, text);
  EXPECT_EQ(pages.size(), 38u);  // 151 lines, four a page
}

class PrintLettersTest : public PortalTest {
 protected:
  static std::vector<std::vector<std::string>> RowsOf(const PrintedJob& job) {
    std::vector<std::vector<std::string>> rows;
    for (const PrintedPage& page : job.pages) rows.push_back(FixedPrintTarget::RowsOf(page));
    return rows;
  }
};

TEST_F(PrintLettersTest, EachLetterBeginsOnASheetOfItsOwn) {
  SmallSheet printer(FixedPrintTarget::Kind::kPrinter);
  MarginLeft = MarginTop = MarginRight = MarginBottom = "-120";
  std::vector<int> told;
  EXPECT_TRUE(PrintLetters(
      printer, 2, [](int i) { return RichTextOf(i == 1 ? u"a\nb\nc\nd\ne" : u"f"); },
      [&](int i) { told.push_back(i); }));
  EXPECT_THAT(RowsOf(*printer.job),
              ElementsAre(ElementsAre("a", "b", "c", "d"), ElementsAre("e"), ElementsAre("f")));
  EXPECT_THAT(told, ElementsAre(1, 2));
  EXPECT_TRUE(printer.job->ended);
}

TEST_F(PrintLettersTest, ACancelledRunIsDropped) {
  SmallSheet printer(FixedPrintTarget::Kind::kPrinter);
  EXPECT_FALSE(PrintLetters(
      printer, 3, [](int) { return RichTextOf(u"a"); },
      [](int i) {
        if (i == 2) Job.PrintFlag = kPrintCancelled;
      }));
  EXPECT_TRUE(printer.job->killed);
}

TEST_F(PrintLettersTest, SomePagesOfOneLetter) {
  SmallSheet printer(FixedPrintTarget::Kind::kPrinter);
  PrintRange range;
  range.from_page = 2;
  range.to_page = 9;
  EXPECT_TRUE(PrintLetterPages(printer, PagesOf(Rtf("a\\page b\\page c")), range));
  EXPECT_THAT(RowsOf(*printer.job), ElementsAre(ElementsAre("b"), ElementsAre("c")));
}

TEST_F(PrintLettersTest, TextIsRuledAndInItsColour) {
  SmallSheet sheet;
  DrawLetterPage(
      sheet, PagesOf(Rtf("{\\colortbl;\\red255\\green0\\blue0;}{\\ul\\cf1 ab}{\\strike c}")).at(0));
  ASSERT_EQ(sheet.job->pages[0].shapes.size(), 2u);
  EXPECT_EQ(sheet.job->pages[0].texts[0].color, 0xFF0000u);
  EXPECT_EQ(sheet.job->pages[0].shapes[0].color, 0xFF0000u);
  EXPECT_EQ(sheet.job->pages[0].shapes[0].corners[1].x, 120 + 240);
  EXPECT_LT(sheet.job->pages[0].shapes[1].corners[0].y, 336) << "through the letters";
  EXPECT_EQ(sheet.ForeColor, 0u);
}

}  // namespace
}  // namespace tallyroll
