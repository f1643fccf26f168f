// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/pasted_marks.h"

#include <random>

#include "base/text.h"
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

TEST(PastedMarks, ALineIsAMarkAndEmptyLinesAtTheEndAreNone) {
  const auto column = MarksOfColumn("81\r\n\r\nb+\n 7 \n\n\n");
  ASSERT_TRUE(column);
  ASSERT_EQ(column->size(), 4u);
  EXPECT_EQ((*column)[0].mark, "81");
  EXPECT_EQ((*column)[1].mark, "");
  EXPECT_EQ((*column)[2].mark, "B+");
  EXPECT_EQ((*column)[3].mark, "7");
}

TEST(PastedMarks, SeveralColumnsAreNotOneOfMarks) {
  EXPECT_FALSE(MarksOfColumn("81\t82\n"));
  EXPECT_TRUE(MarksOfColumn("81\t\n82\t \n"));  // the cells beside it are empty
  EXPECT_FALSE(MarksOfColumn("\t82\n"));
}

TEST(PastedMarks, ADecimalCommaIsAPoint) {
  EXPECT_EQ(MarkOfCopied("85,5"), "85.5");
  EXPECT_EQ(MarkOfCopied("-0,25"), "-0.25");
  EXPECT_EQ(MarkOfCopied("85,1234"), "85.12");
  // These may be thousands, or no numbers.
  EXPECT_EQ(MarkOfCopied("1,000"), "1,000");
  EXPECT_EQ(MarkOfCopied("1,5,2"), "1,5,2");
  EXPECT_EQ(MarkOfCopied(",5"), ",5");
  EXPECT_EQ(MarkOfCopied("5,"), "5,");
}

TEST(PastedMarks, WhatDoesNotStandAsItWasCopiedIsToldWithWhatItBecomes) {
  const auto doubt = [](std::string_view copied) {
    return DoubtOfPasted({std::string(Trim(copied)), MarkOfCopied(copied)});
  };
  EXPECT_EQ(doubt("85"), "");
  EXPECT_EQ(doubt("b+"), "");
  EXPECT_EQ(doubt("abs"), "");
  EXPECT_EQ(doubt(""), "");
  EXPECT_EQ(doubt("85,5"), "85,5 becomes 85.5");
  EXPECT_EQ(doubt("123456"), "123456 becomes 12345");
  EXPECT_EQ(doubt("B*"), "B* is no mark and counts as 0");
  EXPECT_EQ(doubt("Quiz 1"), "Quiz 1 becomes QUIZ is no mark and counts as 0");
  EXPECT_EQ(doubt("1,000"), "1,000 is no mark and counts as 1");
  EXPECT_EQ(doubt("\x01"), "\x01 is left out");
}

class PasteTest : public FrmMarksTest {
 protected:
  PasteTest() { OpenMarks(); }
  void Paste(std::string_view text) {
    screen.clipboard = text;
    driver->Press("pastemarks");
  }
};

TEST_F(PasteTest, AColumnGoesIntoTheMarksFromTheCurrentCellOn) {
  TypeMark(1, "70");
  driver->PickCell("Grid1", 2, kMarkColumn);
  Paste("81\n82\n");
  EXPECT_EQ(Cell(1), "70");
  EXPECT_EQ(Cell(2), "81");
  EXPECT_EQ(Cell(3), "82");
  EXPECT_EQ(portal.Grid1.Row, 2);
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_TRUE(portal.DataEntered);
}

TEST_F(PasteTest, ABlankLineLeavesItsMark) {
  TypeMarks();
  driver->PickCell("Grid1", 1, kMarkColumn);
  Paste("71\n\n73\n");
  EXPECT_EQ(Cell(1), "71");
  EXPECT_EQ(Cell(2), "82");
  EXPECT_EQ(Cell(3), "73");
}

TEST_F(PasteTest, WhatIsNoMarkIsShownFirstAndNoLeavesAllAsItWas) {
  TypeMark(1, "70");
  driver->PickCell("Grid1", 1, kMarkColumn);
  screen.ExpectBox(
      "Not everything on the clipboard stands here as it was copied. Paste it so?\n"
      "\nLi, Bo: B* is no mark and counts as 0\nNg, Ada: 85,5 becomes 85.5",
      BoxAnswer::kNo);
  Paste("B*\n85,5\n83\n");
  EXPECT_EQ(Cell(1), "70");
  EXPECT_EQ(Cell(2), "");
  EXPECT_EQ(Cell(3), "");
}

TEST_F(PasteTest, LinesBelowTheLastStudentAreToldAndLeftOut) {
  screen.ExpectBox(
      "Not everything on the clipboard stands here as it was copied. Paste it so?\n"
      "\nLeft out, since the list ends: 2",
      BoxAnswer::kYes);
  Paste("81\n82\n83\n84\n85\n");
  EXPECT_EQ(Cell(3), "83");
}

TEST_F(PasteTest, AClipboardWithoutAColumnOfMarksIsTold) {
  screen.ExpectBox("The clipboard holds no marks. Copy a column of marks and try again.");
  Paste("\n\n");
  screen.ExpectBox("The clipboard holds more than one column. Copy the column of marks alone.");
  Paste("81\t82");
  ExpectOtherClipboardTold();
  Paste("8z\nRivers\n");
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(Cell(i), "");
}

// Whatever is pasted: a mark that stands is one that the keys would have made, and the lines that
// hold no comma became what their own characters make when they are typed.
TEST_F(PasteTest, NothingIsStoredThatTypingWouldNotHaveStored) {
  const std::string_view pieces[] = {"85",   "7",  "0",    "100",  ".",  ",",   "a",
                                     "B",    "+",  "-",    "*",    " ",  "abs", "e",
                                     "\xE9", "12", "\x7F", "\x02", "\"", "5,5"};
  std::mt19937 random(20260901);
  const auto below = [&](int n) { return std::uniform_int_distribution(0, n - 1)(random); };
  for (int shape = 0; shape < 300; ++shape) {
    frmMarks pasted, typed;
    pasted.Load();
    typed.Load();
    PortalDriver pasting(pasted), typing(typed);
    const int from = 1 + below(3);
    pasting.PickCell("Grid1", from, kMarkColumn);
    std::vector<std::string> lines(static_cast<std::size_t>(1 + below(6)));
    std::string text;
    for (std::string& line : lines) {
      for (int k = below(5); k > 0; --k) line += pieces[below(std::size(pieces))];
      text += line + (below(2) ? "\n" : "\r\n");
    }
    class Yes : public HeadlessSurroundings {
     public:
      BoxAnswer MessageBox(const MessageRequest&) override { return BoxAnswer::kYes; }
    } yes;
    yes.clipboard = text;
    SetPlatform(&yes);
    pasting.Press("pastemarks");
    SetPlatform(&screen);
    for (int row = 1; row <= 3; ++row) {
      const std::string mark(pasted.Grid1.TextMatrix(row, kMarkColumn));
      typing.PickCell("Grid1", row, kMarkColumn);
      typing.TypeKeys("Grid1", mark);
      EXPECT_EQ(typed.Grid1.TextMatrix(row, kMarkColumn), mark) << "shape " << shape;
      const auto line = static_cast<std::size_t>(row - from);
      if (row < from || line >= lines.size()) {
        EXPECT_EQ(mark, "") << "shape " << shape;
        continue;
      }
      const std::string& copied = lines[line];
      if (copied.find_first_of(",\x7F\x02") != std::string::npos) continue;
      typing.PickCell("Grid1", row, kMarkColumn);
      if (!mark.empty()) typing.TypeKeys("Grid1", Trim(copied));
      EXPECT_EQ(Trim(typed.Grid1.TextMatrix(row, kMarkColumn)), mark) << "shape " << shape;
      EXPECT_EQ(mark.empty(), Trim(copied).empty()) << "shape " << shape;
    }
    EXPECT_TRUE(pasting.Complaints().empty());
    EXPECT_TRUE(typing.Complaints().empty());
  }
}

}  // namespace
}  // namespace tallyroll
