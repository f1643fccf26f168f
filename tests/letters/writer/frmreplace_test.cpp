// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/writer/frmreplace.h"

#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

class FrmReplaceTest : public RosterTest {
 protected:
  void OpenOn(std::u16string_view text) {
    letter.Load(RichTextOf(text));
    portal.letter = &letter;
    portal.edited = [this] { ++edits; };
    Open(portal);
  }
  std::string Letter() const { return Utf8FromUtf16(PlainText(letter.Document)); }

  RichTextBox letter;
  frmreplace portal;
  int edits = 0;
};

TEST_F(FrmReplaceTest, OpensWithNothingToReplace) {
  OpenOn(u"one two");
  EXPECT_EQ(portal.Caption, "Find and Replace Portal");
  EXPECT_EQ(driver->Focused(), "Text1");
  EXPECT_FALSE(driver->Enabled("ReplaceWord"));
  EXPECT_FALSE(driver->Enabled("ReplaceAll"));
}

TEST_F(FrmReplaceTest, FindsFromTheEndOfTheSelectionOn) {
  OpenOn(u"ab ab ab");
  driver->Type("Text1", "ab");
  driver->Press("FindNext");
  EXPECT_EQ(letter.SelStart, 0);
  EXPECT_EQ(letter.SelLength, 2);
  EXPECT_TRUE(driver->Enabled("ReplaceWord"));
  EXPECT_TRUE(driver->Enabled("ReplaceAll"));
  driver->Press("FindNext");
  EXPECT_EQ(letter.SelStart, 3);
}

TEST_F(FrmReplaceTest, WhatIsNotFoundIsToldAndReplacesNothing) {
  OpenOn(u"ab cd");
  driver->Type("Text1", "ab");
  driver->Press("FindNext");
  screen.ExpectBox("String not found");
  driver->Press("FindNext");
  EXPECT_FALSE(driver->Enabled("ReplaceWord"));
  EXPECT_FALSE(driver->Enabled("ReplaceAll"));
  EXPECT_EQ(letter.SelStart, 0);
  EXPECT_EQ(letter.SelLength, 2);
}

TEST_F(FrmReplaceTest, AnEmptyTextIsNowhere) {
  OpenOn(u"ab");
  screen.ExpectBox("String not found");
  driver->Press("FindNext");
}

TEST_F(FrmReplaceTest, CaseMattersWhereItIsAskedFor) {
  OpenOn(u"Ab ab");
  driver->Type("Text1", "ab");
  driver->Tick("Check1");
  driver->Press("FindNext");
  EXPECT_EQ(letter.SelStart, 3);
}

TEST_F(FrmReplaceTest, AWholeWordStandsAlone) {
  OpenOn(u"cart art");
  driver->Type("Text1", "art");
  driver->Tick("Check2");
  driver->Press("FindNext");
  EXPECT_EQ(letter.SelStart, 5);
}

TEST_F(FrmReplaceTest, ReplacingOneSearchesOn) {
  OpenOn(u"ab ab");
  driver->Type("Text1", "ab");
  driver->Type("Text2", "xyz");
  driver->Press("FindNext");
  driver->Press("ReplaceWord");
  EXPECT_EQ(Letter(), "xyz ab");
  EXPECT_EQ(letter.SelStart, 4);
  EXPECT_EQ(letter.SelLength, 2);
  EXPECT_EQ(edits, 1);
}

TEST_F(FrmReplaceTest, WhatWasSelectedOtherwiseMeanwhileStays) {
  OpenOn(u"ab keep ab");
  driver->Type("Text1", "ab");
  driver->Type("Text2", "x");
  driver->Press("FindNext");
  letter.Select(3, 4);
  driver->Press("ReplaceWord");
  EXPECT_EQ(Letter(), "ab keep ab");
  EXPECT_EQ(letter.SelStart, 8);
}

TEST_F(FrmReplaceTest, AllAreReplacedFromTheStart) {
  OpenOn(u"ab\ncd ab");
  driver->Type("Text1", "ab");
  driver->Type("Text2", "abab");
  letter.Select(4, 0);
  driver->Press("FindNext");
  screen.ExpectBox("          Replacing Completed");
  driver->Press("ReplaceAll");
  EXPECT_EQ(Letter(), "abab\ncd abab");
  EXPECT_EQ(edits, 1);
}

TEST_F(FrmReplaceTest, AnotherTextIsSearchedBeforeItIsReplaced) {
  OpenOn(u"ab cd");
  driver->Type("Text1", "ab");
  driver->Press("FindNext");
  driver->Type("Text1", "cd");
  EXPECT_FALSE(driver->Enabled("ReplaceAll"));
}

}  // namespace
}  // namespace tallyroll
