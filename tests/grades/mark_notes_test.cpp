// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_notes.h"

#include "grades/frmMarks.h"
#include "grades/frmMgrade.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class MarkNotesTest : public GradePortalTest {
 protected:
  static CellMark Of(std::string_view mark, const char* lowpass = "65",
                     const char* mvalue = "100") {
    return NoteOfMark(mark, BoundsOf(lowpass, mvalue)).mark;
  }
  static std::string WordsOf(std::string_view mark) {
    return std::string(NoteOfMark(mark, BoundsOf("65", "100")).words);
  }
};

TEST_F(MarkNotesTest, AMarkBelowThePassingScoreFailsAndOneOnItDoesNot) {
  EXPECT_EQ(Of("64.9"), CellMark::kFailing);
  EXPECT_EQ(Of("65"), CellMark::kNone);
  EXPECT_EQ(Of(" 64 "), CellMark::kFailing);
  EXPECT_EQ(Of("0"), CellMark::kFailing);
  EXPECT_EQ(Of(""), CellMark::kNone);
}

TEST_F(MarkNotesTest, ALetterFailsByItsValue) {
  // D is worth 65, D- 60.
  EXPECT_EQ(Of("D"), CellMark::kNone);
  EXPECT_EQ(Of("D-"), CellMark::kFailing);
  EXPECT_EQ(Of("F"), CellMark::kFailing);
}

TEST_F(MarkNotesTest, EachSpecialMarkIsToldInItsOwnWay) {
  EXPECT_EQ(Of("CUT"), CellMark::kAlarm);
  EXPECT_EQ(Of("NON"), CellMark::kAlarm);
  EXPECT_EQ(Of("ABS"), CellMark::kWarning);
  EXPECT_EQ(Of("EXC"), CellMark::kSoft);
  EXPECT_EQ(Of("NEW"), CellMark::kMuted);
  for (const char* mark : {"CUT", "NON", "ABS", "EXC", "NEW", "12", "101"})
    EXPECT_NE(WordsOf(mark), "") << mark;
  EXPECT_EQ(WordsOf("80"), "");
}

TEST_F(MarkNotesTest, OnlyANumberIsAboveTheMaximum) {
  EXPECT_EQ(Of("100"), CellMark::kNone);
  EXPECT_EQ(Of("100.5"), CellMark::kAbove);
  EXPECT_EQ(Of("A+", "13", "20"), CellMark::kNone);  // worth 99
  EXPECT_EQ(Of("200", "65", ""), CellMark::kNone);
}

TEST_F(MarkNotesTest, ANumberBeyondCurrencyIsToldNothingOf) {
  EXPECT_EQ(Of("9E99", "65", "0"), CellMark::kNone);
  EXPECT_EQ(Of("12", "9E99"), CellMark::kNone);
}

TEST_F(MarkNotesTest, ABlankPassingScoreIsTheUsualShareOfTheMaximum) {
  Instrument grade;
  grade.mvalue = 30;  // 19.5
  EXPECT_EQ(NoteOfMark("19", BoundsOf(grade)).mark, CellMark::kFailing);
  EXPECT_EQ(NoteOfMark("19.5", BoundsOf(grade)).mark, CellMark::kNone);
}

TEST_F(MarkNotesTest, NobodyFailsExtraCredit) {
  Instrument grade;
  grade.mvalue = 10;
  grade.typecode = "X ";
  EXPECT_EQ(NoteOfMark("0", BoundsOf(grade)).mark, CellMark::kNone);
  EXPECT_EQ(NoteOfMark("11", BoundsOf(grade)).mark, CellMark::kAbove);
}

TEST_F(MarkNotesTest, WhatIsTypedIsMeasuredByTheHeaderAsItStands) {
  Enrol("Ng", "Ada", "1");
  frmMarks portal;
  Open(portal);
  driver->PickCell("Grid1", 1, 2);
  driver->TypeKeys("Grid1", "40");
  EXPECT_EQ(portal.Grid1.Notes.Of(1, 2).mark, CellMark::kFailing);
  const auto before = portal.Grid1.Revision();
  driver->Type("mvalue", "50");  // so 32.5 passes
  EXPECT_EQ(portal.Grid1.Notes.Of(1, 2).mark, CellMark::kNone);
  EXPECT_GT(portal.Grid1.Revision(), before) << "the screen learns of it";
  driver->Type("mvalue", "30");
  EXPECT_EQ(portal.Grid1.Notes.Of(1, 2).mark, CellMark::kAbove);
}

TEST_F(MarkNotesTest, WhatIsMissingIsToldAsInTheClass) {
  Enrol("Ng", "Ada", "1");
  Give("Quiz", "Q1", "Q ", {"NON"});
  frmMgrade portal;
  Open(portal);
  EXPECT_EQ(portal.grdgrade.Notes.Of(1, 3).mark, CellMark::kAlarm);
  EXPECT_EQ(portal.grdgrade.Notes.Of(1, 0).mark, CellMark::kNone);
}

}  // namespace
}  // namespace tallyroll
