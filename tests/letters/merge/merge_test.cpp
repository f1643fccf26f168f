// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/merge/merge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "letters/merge/field_codes.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_writer.h"
#include "store/program_state.h"
#include "tests/letters/letter_texts.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MergeTest : public PortalTest {
 protected:
  MergeTest() {
    Student& ada = EnrolStudent("Ng", "Ada", " 0012 ");
    ada.parent = "Eve Ng";
    ada.address = "12 Main St";
    ada.city = "Springfield";
    ada.state = "IL";
    ada.zip = "62701";
    EnrolStudent("Li", "Bo", "");
    screen.now = DateSerial({2026, 11, 22});
  }

  static Student& Ada() { return Current().Students[1]; }

  static std::string Merged(std::u16string_view letter, i16 student = 1) {
    const MergedLetter merged = MergeLetter(RichTextOf(letter), student);
    EXPECT_EQ(merged.error, "");
    return WordsOf(merged.text);
  }
};

TEST_F(MergeTest, EveryCodeHasItsValue) {
  EXPECT_EQ(Merged(u"<First Name>|<Last Name>|<Parent's Name>|<ID Number>|<Street Address>|<City>|"
                   u"<State>|<Zip Code>|<Date>"),
            "Ada|Ng|Eve Ng|0012|12 Main St|Springfield|IL|62701|11/22/2026");
}

TEST_F(MergeTest, TheListSpellsTheIdOtherwiseThanTheSearch) {
  EXPECT_EQ(FieldCodes()[3].caption, "<ID Number>");
  EXPECT_EQ(FieldCodes()[3].code, "<Id Number>");
  EXPECT_EQ(Merged(u"<ID Number> <Id Number> <id number>"), "0012 0012 0012");
}

TEST_F(MergeTest, CaseDoesNotMatter) {
  EXPECT_EQ(Merged(u"<first name> <LAST NAME>"), "Ada Ng");
}

TEST_F(MergeTest, EveryOccurrenceIsReplaced) {
  EXPECT_EQ(Merged(u"<City><City> and <City>\n<City>"),
            "SpringfieldSpringfield and Springfield\nSpringfield");
}

TEST_F(MergeTest, ALetterWithoutCodesComesThroughAsItIs) {
  const RichText letter = RichTextOf(u"Dear parents, 3 < 4 > 2 <>");
  EXPECT_TRUE(MergeLetter(letter, 1).text == letter);
}

TEST_F(MergeTest, TheFormLetterStaysAsItIs) {
  const RichText letter = RichTextOf(u"<First Name>");
  MergeLetter(letter, 1);
  EXPECT_EQ(WordsOf(letter), "<First Name>");
}

TEST_F(MergeTest, AnEmptyValueRemovesTheCode) {
  EXPECT_EQ(Merged(u"a<City>b<Street Address>", 2), "ab");
}

TEST_F(MergeTest, AValueIsTrimmedOfBlanks) {
  Ada().city = "  Two  Words  ";
  EXPECT_EQ(Merged(u"[<City>]"), "[Two  Words]");
}

TEST_F(MergeTest, ACodeThatComesLaterIsFoundInAValue) {
  Ada().firstname = "<Last Name>";
  EXPECT_EQ(Merged(u"Dear <First Name>"), "Dear Ng");
}

TEST_F(MergeTest, ACodeThatCameEarlierIsNot) {
  Ada().lastname = "<First Name>";
  EXPECT_EQ(Merged(u"Dear <Last Name>"), "Dear <First Name>");
}

// The search begins at the start again, so it also finds what a value and its neighbours make up.
TEST_F(MergeTest, ACodeThatAValueCompletesIsFound) {
  Ada().firstname = "<First";
  EXPECT_EQ(Merged(u"<First Name> Name>"), "<First");
  Ada().firstname = "Name>";
  EXPECT_EQ(Merged(u"<First <First Name> x"), "Name> x");
}

TEST_F(MergeTest, AValueThatHoldsItsOwnCodeEndsWithAMessage) {
  Ada().firstname = "<First Name>";
  const MergedLetter merged = MergeLetter(RichTextOf(u"Dear <First Name>"), 1);
  EXPECT_EQ(
      merged.error,
      "The letter for Ng, <First Name> cannot be merged: the value of <First Name> holds this "
      "code itself.");
  Ada().firstname = "A <fIRST nAME> B";
  EXPECT_NE(MergeLetter(RichTextOf(u"Dear <First Name>"), 1).error, "");
  EXPECT_EQ(Merged(u"Dear <Last Name>"), "Dear Ng") << "only where the code is asked for";
}

TEST_F(MergeTest, ACodeInSeveralRunsTakesTheStyleItBeginsWith) {
  const RichText letter = ReadRtf("{\\rtf1 Dear <{\\b First}{\\i  Na}me>, \\b x}").text;
  const MergedLetter merged = MergeLetter(letter, 1);
  EXPECT_EQ(RunsOf(merged.text.paragraphs.at(0)), "[:Dear Ada, ][b:x]");
  const RichText bold = ReadRtf("{\\rtf1 {\\b <First} Name>!}").text;
  EXPECT_EQ(RunsOf(MergeLetter(bold, 1).text.paragraphs.at(0)), "[b:Ada][:!]");
}

TEST_F(MergeTest, ParagraphsKeepTheirShape) {
  const RichText letter = ReadRtf("{\\rtf1\\qc <City>\\par\\pard\\qr\\li99 <State>\\par}").text;
  const MergedLetter merged = MergeLetter(letter, 1);
  EXPECT_EQ(merged.text.paragraphs.at(0).style.align, TextAlign::kCenter);
  EXPECT_EQ(merged.text.paragraphs.at(1).style.left, 99);
}

TEST_F(MergeTest, AnyValueOfTheCodePageStandsAsItIs) {
  std::string all;
  for (int byte = 0x21; byte < 0x100; ++byte)
    if (byte != 0x7F) all += static_cast<char>(byte);
  Ada().address = all + "{\\rtf1 \\par}\"'";
  const MergedLetter merged = MergeLetter(RichTextOf(u"<Street Address>"), 1);
  EXPECT_EQ(WordsOf(merged.text), Utf8FromCodePage(Ada().address));
  EXPECT_TRUE(ReadRtf(WriteRtf(merged.text)).text == merged.text) << "and in a file";
}

TEST_F(MergeTest, LineEndsOfAValueEndParagraphs) {
  Ada().address = "12 Main St\r\nApt <City>\rFloor 3";
  EXPECT_EQ(Merged(u"To: <Street Address>!"), "To: 12 Main St\nApt Springfield\nFloor 3!");
}

TEST_F(MergeTest, FortyCodesForTwoHundredStudents) {
  std::u16string letter;
  for (int i = 0; i < 40; ++i) letter += u"<First Name> <ID Number>\n";
  for (int i = 3; i <= 200; ++i) EnrolStudent("Last", "First", "x");
  for (i16 student = 3; student <= 200; ++student) {
    std::string wanted;
    for (int i = 0; i < 40; ++i) wanted += "First x\n";
    ASSERT_EQ(Merged(letter, student), wanted);
  }
}

TEST_F(MergeTest, FiguresOfTheClassAreCodesToo) {
  Current().description = "Algebra I ";
  Current().teacher = "Mr B";
  EXPECT_EQ(Merged(u"<Class>|<Teacher>|<Average>|<Final Grade>|<Missing Grades>"),
            "Algebra I|Mr B|||none");
}

TEST_F(MergeTest, WhatLooksLikeACodeAndIsNoneIsTold) {
  EXPECT_THAT(UnknownCodes(RichTextOf(
                  u"<Nickname> <First Name> <nickname> <Nickname> a < b > c <5> <> <a@b.c> <First\n"
                  u"Name> <Parent\u2019s Name>")),
              ElementsAre("<Nickname>", "<nickname>", "<Parent\x92s Name>"));
  EXPECT_THAT(UnknownCodes(RichTextOf(u"<id number><CLASS><")), IsEmpty());
}

TEST_F(MergeTest, CodesThatNothingFillsAreTold) {
  const RichText letter = RichTextOf(u"<city> <Last Name> <Zip Code>");
  EXPECT_THAT(EmptyCodes(letter, 2), ElementsAre("<City>", "<Zip Code>"));
  EXPECT_THAT(EmptyCodes(letter, 1), IsEmpty());
}

TEST_F(MergeTest, WarningsNameTheStudents) {
  for (int i = 3; i <= 9; ++i) EnrolStudent("X", "Y", "");
  const RichText letter = RichTextOf(u"<City> <Oops>");
  EXPECT_THAT(LetterWarnings(letter, {1, 2}),
              ElementsAre("<Oops> is no code: it would stand in the letter as it is.",
                          "<City> is empty for Li, Bo."));
  EXPECT_THAT(LetterWarnings(RichTextOf(u"<City>"), {2, 3, 4, 5, 6, 7, 8}),
              ElementsAre("<City> is empty for Li, Bo; X, Y; X, Y; X, Y; X, Y and 2 more."));
  EXPECT_THAT(LetterWarnings(RichTextOf(u"<City>"), {1}), IsEmpty());
}

}  // namespace
}  // namespace tallyroll
