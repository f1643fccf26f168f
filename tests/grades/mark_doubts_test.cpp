// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_doubts.h"

#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class MarkDoubtsTest : public GradePortalTest {
 protected:
  static CellNote Note(std::string_view mark, const char* mvalue) {
    return NoteOfTypedMark(mark, BoundsOf("0", mvalue));
  }
};

TEST_F(MarkDoubtsTest, ANumberAboveTheMaximumIsDoubtedAndTheMaximumItselfIsNot) {
  EXPECT_EQ(DoubtOfMark("95", 50), "95 is above the maximum of 50");
  EXPECT_EQ(DoubtOfMark("50.5", 50), "50.5 is above the maximum of 50");
  EXPECT_EQ(DoubtOfMark("50", 50), "");
  EXPECT_EQ(DoubtOfMark("95", 0), "");  // there is no maximum yet
}

TEST_F(MarkDoubtsTest, ALetterIsDoubtedWhereItsValueIsAboveTheMaximum) {
  EXPECT_EQ(DoubtOfMark("B+", 20), "B+ counts as 88 of 20");
  EXPECT_EQ(DoubtOfMark("B+", 100), "");
  EXPECT_EQ(DoubtOfMark("F", 55), "");
  Current().LetterValues[4] = Currency::FromWhole(18);  // letters of a class that counts to 20
  EXPECT_EQ(DoubtOfMark("B+", 20), "");
}

TEST_F(MarkDoubtsTest, AnUnknownTextIsDoubtedAndToldByItsValue) {
  EXPECT_EQ(DoubtOfMark("B*", 100), "B* is no mark and counts as 0");
  EXPECT_EQ(DoubtOfMark("85*", 100), "85* is no mark and counts as 85");
  EXPECT_EQ(DoubtOfMark("E", 0), "E is no mark and counts as 0");
}

TEST_F(MarkDoubtsTest, SpecialMarksAndEmptyCellsAreNot) {
  for (const char* mark : {"NEW", "ABS", "EXC", "CUT", "NON", "", "  ", "0", "5E1"})
    EXPECT_EQ(DoubtOfMark(mark, 60), "") << mark;
}

TEST_F(MarkDoubtsTest, WhatIsDoubtedIsUnderlinedWithItsReasonInWords) {
  EXPECT_EQ(Note("95", "50").mark, CellMark::kAbove);
  EXPECT_EQ(Note("95", "50").words, "above the maximum");
  EXPECT_EQ(Note("B+", "20").mark, CellMark::kAbove);
  EXPECT_EQ(Note("B+", "20").words, "a letter that counts above the maximum");
  EXPECT_EQ(Note("B*", "100").mark, CellMark::kAbove);
  EXPECT_EQ(Note("B*", "100").words, "no mark as it stands");
  EXPECT_EQ(Note("ABS", "100").mark, CellMark::kWarning);
  EXPECT_EQ(Note("50", "50").mark, CellMark::kNone);
}

}  // namespace
}  // namespace tallyroll
