// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/unusual_marks.h"

#include "insight/chosen_cell.h"
#include "insight/frmunusual.h"
#include "tests/averages/portals/portal_class.h"
#include "tests/support/played_progress.h"

namespace tallyroll {
namespace {

class UnusualMarksTest : public AveragePortalTest {
 protected:
  void AddGrades(int count) {
    for (int i = 1; i <= count; ++i) AddGrade("Quiz " + PlainNumberText(i), "Q ");
  }
  // "1/2 empty": student, grade and kind of each.
  static Texts Found() {
    Texts found;
    for (const UnusualMark& mark : UnusualMarks())
      found.push_back(PlainNumberText(mark.student) + "/" + PlainNumberText(mark.grade) + " " +
                      std::string(NameOfKind(mark.kind)));
    return found;
  }
};

TEST_F(UnusualMarksTest, MarksThatAreNoneOrNoGrade) {
  AddGrades(3);
  Enrol("Ng", {"", "85*", "90"});
  Enrol("Orr", {"ABS", "NEW", "CUT"});
  EXPECT_EQ(Found(), (Texts{"1/1 empty", "1/2 unknown text"}));
}

TEST_F(UnusualMarksTest, NumbersOutsideTheirGrade) {
  AddGrades(3);
  Enrol("Ng", {"100.5", "100", "-1"});
  EXPECT_EQ(Found(), (Texts{"1/1 above the maximum", "1/3 negative"}));
}

TEST_F(UnusualMarksTest, ALetterIsUnusualAmongNumbersAlone) {
  AddGrades(2);
  Enrol("Ng", {"B+", "B+"});
  Enrol("Orr", {"80", "80"});
  Enrol("Poe", {"90", "A"});
  EXPECT_EQ(Found(), (Texts{"1/1 letter among numbers"}));
}

// The others are 80, 82, 84, 86, 88: their median is 84, and half of them lie within 2. 63 is 21
// away, 64 only 20, which is not more.
TEST_F(UnusualMarksTest, AMarkFarFromTheStudentsOthers) {
  AddGrades(6);
  Enrol("Ng", {"80", "82", "84", "86", "88", "63"});
  const std::vector<UnusualMark> marks = UnusualMarks();
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].grade, 6);
  EXPECT_EQ(marks[0].kind, Unusual::kFarFromStudent);
  EXPECT_EQ(marks[0].told, "63 percent; the median of the others is 84, half of them lie within 2");
  Current().Students[1].Marks[6] = "64";
  EXPECT_EQ(Found(), Texts{});
}

// Half of the others lie within 10 of their median 80, so 40 away is no more than four times that.
TEST_F(UnusualMarksTest, WhereMarksLieWideApartOneMustLieWider) {
  AddGrades(6);
  Enrol("Ng", {"60", "70", "80", "90", "100", "40"});
  EXPECT_EQ(Found(), Texts{});
  Current().Students[1].Marks[6] = "39";
  EXPECT_EQ(Found(), (Texts{"1/6 far from the student's others"}));
}

TEST_F(UnusualMarksTest, FourOthersAreTooFew) {
  AddGrades(5);
  Enrol("Ng", {"84", "84", "84", "84", "1"});
  EXPECT_EQ(Found(), Texts{});
}

TEST_F(UnusualMarksTest, AMarkFarFromTheClass) {
  AddGrades(1);
  for (const char* mark : {"80", "82", "84", "86", "88"}) Enrol("Ng", {mark});
  Enrol("Orr", {"20"});
  EXPECT_EQ(Found(), (Texts{"6/1 far from the class"}));
}

TEST_F(UnusualMarksTest, AGradeWithoutAMaximumHasNoPercents) {
  AddGrades(1);
  Current().Instruments[1].mvalue = 0;
  for (const char* mark : {"80", "82", "84", "86", "88", "1"}) Enrol("Ng", {mark});
  for (const std::string& found : Found())
    EXPECT_TRUE(found.ends_with("above the maximum")) << found;
}

TEST_F(UnusualMarksTest, ThePortalLeadsToTheCell) {
  AddGrades(3);
  Enrol("Ng", {"90", "95", "90"});
  Enrol("Orr", {"90", "", "-5"});
  frmunusual portal;
  Open(portal);
  EXPECT_EQ(driver->Text("found"), "2 marks are unusual.");
  EXPECT_EQ(Column(portal.Grid1, 0), (Texts{"Orr, Ada", "Orr, Ada"}));
  EXPECT_EQ(portal.Grid1.LeftCol, 0) << "the students' names are in sight";
  EXPECT_EQ(Column(portal.Grid1, 3), (Texts{"empty", "negative"}));
  driver->PickCell("Grid1", 2, 0);
  driver->Press("goto_cell");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ChosenCell.student, 2);
  EXPECT_EQ(ChosenCell.grade, 3);
}

TEST_F(UnusualMarksTest, AClassWithoutSlipsSaysSo) {
  AddGrades(1);
  Enrol("Ng", {"90"});
  frmunusual portal;
  Open(portal);
  EXPECT_EQ(driver->Text("found"), "No mark of this class is unusual.");
  EXPECT_FALSE(driver->Enabled("goto_cell"));
}

TEST_F(UnusualMarksTest, ACancelledSearchSaysSoAndShowsNoHalfList) {
  AddGrades(1);
  Enrol("Ng", {""});
  Enrol("Orr", {""});
  TickingScreen ticking;
  SetPlatform(&ticking);
  frmunusual portal;
  {
    const PlayedProgress progress("Looking for unusual marks", 1);
    portal.Load();
  }
  EXPECT_TRUE(portal.Unloaded());
  frmunusual again;
  again.Load();
  EXPECT_FALSE(again.Unloaded());
  EXPECT_EQ(again.Grid1.Rows(), 3);
  SetPlatform(&screen);
}

// An odd and an even number of others, and equal ones among them.
TEST_F(UnusualMarksTest, TheMarkItselfIsNoneOfItsOthers) {
  AddGrades(7);
  Enrol("Ng", {"80", "80", "84", "84", "88", "30", "80"});
  const std::vector<UnusualMark> marks = UnusualMarks();
  ASSERT_EQ(marks.size(), 1U);
  // 80 80 80 84 84 88: between 80 and 84; they lie 2 2 2 2 2 and 6 away.
  EXPECT_EQ(marks[0].told, "30 percent; the median of the others is 82, half of them lie within 2");
}

}  // namespace
}  // namespace tallyroll
