// SPDX-License-Identifier: GPL-3.0-or-later
// What the grid of a class window tells beside its texts.
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class ClassGridNotesTest : public ShellTest {
 protected:
  // Two students with 80 and 60 of 100; a letter is worth what its class says.
  static Class Marked(const char* letter_value) {
    Class c = Sample(2, 2);
    c.Instruments[1].title = "Fractions";
    c.Instruments[1].typecode = "Q ";
    c.Instruments[1].testdate = "9/18/2026";
    c.Instruments[1].lowpass = "65";
    c.Students[2].Marks[1] = "60";
    c.Students[1].Marks[2] = "D-";
    c.LetterValues[12] = LeadingCurrency(letter_value);
    return c;
  }
};

TEST_F(ClassGridNotesTest, AMarkIsToldByItsGrade) {
  const Grid& grid = Open("A.TYR", Marked("60")).Grid1;
  EXPECT_EQ(grid.Notes.Of(2, 2).mark, CellMark::kNone);
  EXPECT_EQ(grid.Notes.Of(3, 2).mark, CellMark::kFailing);
  EXPECT_EQ(grid.Notes.Of(1, 2).mark, CellMark::kNone) << "a head";
  EXPECT_EQ(grid.Notes.Of(3, 0).mark, CellMark::kNone) << "a name";
  EXPECT_EQ(grid.Notes.Of(3, 9).mark, CellMark::kNone) << "no grade there";
  EXPECT_EQ(grid.Notes.Of(20, 2).mark, CellMark::kNone) << "no student there";
}

TEST_F(ClassGridNotesTest, AWindowBehindIsMeasuredByItsOwnClass) {
  const Grid& behind = Open("A.TYR", Marked("60")).Grid1;
  Open("B.TYR", Marked("90"));
  ASSERT_EQ(CurrentClass, 2);
  EXPECT_EQ(behind.Notes.Of(2, 3).mark, CellMark::kFailing);
  EXPECT_EQ(Window(2)->Grid1.Notes.Of(2, 3).mark, CellMark::kNone);
  EXPECT_EQ(CurrentClass, 2);
}

TEST_F(ClassGridNotesTest, AHeadTellsItsGradeAtLength) {
  const Grid& grid = Open("A.TYR", Marked("60")).Grid1;
  EXPECT_EQ(grid.Notes.BelowHead(2), "of 100");
  EXPECT_EQ(grid.Notes.BelowHead(0), "");
  EXPECT_EQ(grid.Notes.BelowHead(9), "");
  // 80 and 60: 70.
  EXPECT_EQ(grid.Notes.Tip(1, 2), "Fractions\nQuiz\n9/18/2026\nMaximum 100\nClass average 70");
  EXPECT_EQ(grid.Notes.Tip(2, 2), "");
}

}  // namespace
}  // namespace tallyroll
