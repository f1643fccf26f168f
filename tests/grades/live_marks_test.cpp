// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside the marks while they are typed, in each Portal that has them.
#include "grades/live_marks.h"

#include "grades/frmEMarksS.h"
#include "grades/frmEmarks.h"
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

class LiveMarksTest : public FrmMarksTest {};

TEST_F(LiveMarksTest, ProgressFollowsEveryKey) {
  OpenMarks();
  EXPECT_EQ(driver->Text("progress"), "0 of 3 entered");
  TypeMark(1, "81");
  EXPECT_EQ(driver->Text("progress"), "1 of 3 entered, average 81");
  TypeMark(2, "80");
  EXPECT_EQ(driver->Text("progress"), "2 of 3 entered, average 80.5");
  driver->PressKey("Grid1", Key::kF9);
  EXPECT_EQ(driver->Text("progress"), "2 of 3 entered, average 81");
}

// As Statistics takes them: a special mark is no grade; 80 + 88 + 0 by 3.
TEST_F(LiveMarksTest, TheAverageCountsWhatStatisticsCounts) {
  Enrol("Quist", "Dan", "4");
  OpenMarks();
  TypeMark(1, "80");
  TypeMark(2, "B+");
  TypeMark(3, "Q");
  driver->PickCell("Grid1", 4, kMarkColumn);
  driver->PressKey("Grid1", Key::kF8);
  EXPECT_EQ(driver->Text("progress"), "4 of 4 entered, average 56, 1 to look at");
}

TEST_F(LiveMarksTest, ABlankIsNoMarkThatWasEntered) {
  OpenMarks();
  TypeMark(1, " ");
  EXPECT_EQ(driver->Text("progress"), "0 of 3 entered");
}

TEST_F(LiveMarksTest, TheReasonStandsThereWhileItIsTypedAndWhereTheCellIs) {
  OpenMarks();
  driver->Type("mvalue", "20");
  TypeMark(1, "B");
  driver->TypeKeys("Grid1", "+");
  EXPECT_EQ(driver->Text("doubt"), "B+ counts as 88 of 20");
  EXPECT_EQ(portal.Grid1.Notes.Of(1, kMarkColumn).mark, CellMark::kAbove);
  EXPECT_EQ(portal.Grid1.Notes.Tip(1, kMarkColumn), "B+ counts as 88 of 20");
  driver->PressKey("Grid1", Key::kEnter);
  EXPECT_EQ(driver->Text("doubt"), "");
  driver->PickCell("Grid1", 1, kMarkColumn);
  EXPECT_EQ(driver->Text("doubt"), "B+ counts as 88 of 20");
  driver->Type("mvalue", "100");
  EXPECT_EQ(driver->Text("doubt"), "");
  EXPECT_EQ(driver->Text("progress"), "1 of 3 entered, average 88");
}

TEST_F(LiveMarksTest, AMarkWithADoubtIsCountedAtExitAndNotRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "50");
  TypeMark(1, "90");
  TypeMark(2, "45");
  TypeMark(3, "B*");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(1, 1), "90");
  EXPECT_EQ(Mark(3, 1), "B*");
  EXPECT_EQ(window.status,
            "To look at: 2 marks. Li, Bo: 90 is above the maximum of 50; Orr, Cy: B* is no mark "
            "and counts as 0");
}

TEST_F(LiveMarksTest, BesideTheReminderTheyAreCountedToo) {
  OpenMarks();
  TypeMark(1, "101");
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_EQ(window.status, "To look at: 1 mark. Li, Bo: 101 is above the maximum of 100");
  EXPECT_EQ(driver->Text("progress"), "1 of 3 entered, average 101, 1 to look at");
}

TEST_F(LiveMarksTest, TheNextEmptyCellIsBehindTheCurrentOneAndThenFromTheTop) {
  OpenMarks();
  TypeMark(2, "80");
  driver->Press("nextempty");
  EXPECT_EQ(portal.Grid1.Row, 3);
  driver->TypeKeys("Grid1", "9");
  driver->Press("nextempty");
  EXPECT_EQ(portal.Grid1.Row, 1);
  EXPECT_EQ(driver->Focused(), "Grid1");
  driver->TypeKeys("Grid1", "7");
  EXPECT_FALSE(driver->Enabled("nextempty"));
}

TEST_F(LiveMarksTest, FromTheHeaderItIsTheCurrentCellItselfWhereThatIsEmpty) {
  OpenMarks();
  driver->Type("title", "Rivers");
  driver->Press("nextempty");
  EXPECT_EQ(portal.Grid1.Row, 1);
  driver->PressKey("Grid1", Key::kEnter);
  driver->PressKey("Grid1", Key::kEnter);
  EXPECT_EQ(portal.Grid1.Row, 3);
}

TEST_F(LiveMarksTest, AMarkIsTakenBackWholeAndDoneAgain) {
  OpenMarks();
  EXPECT_FALSE(driver->Enabled("undomark"));
  TypeMark(1, "81");
  TypeMark(2, "70");
  driver->Press("undomark");
  EXPECT_EQ(Cell(2), "");
  EXPECT_EQ(portal.Grid1.Row, 2);
  driver->Press("undomark");
  EXPECT_EQ(Cell(1), "");
  EXPECT_FALSE(driver->Enabled("undomark"));
  driver->Press("redomark");
  driver->Press("redomark");
  EXPECT_EQ(Cell(1), "81");
  EXPECT_EQ(Cell(2), "70");
  EXPECT_FALSE(driver->Enabled("redomark"));
}

TEST_F(LiveMarksTest, ASpecialMarkAndTheKeyAfterItAreTwoSteps) {
  OpenMarks();
  driver->PickCell("Grid1", 1, kMarkColumn);
  driver->PressKey("Grid1", Key::kF6);
  driver->TypeKeys("Grid1", "85");
  EXPECT_EQ(Cell(1), "85");
  driver->Press("undomark");
  EXPECT_EQ(Cell(1), "ABS");
  driver->Press("undomark");
  EXPECT_EQ(Cell(1), "");
}

TEST_F(LiveMarksTest, AFillIsOneStep) {
  OpenMarks();
  TypeMark(2, "80");
  driver->Press("fill");
  EXPECT_FALSE(driver->Enabled("pastemarks"));
  driver->Press("Command5");
  EXPECT_EQ(Cell(3), "ABS");
  driver->Press("undomark");
  EXPECT_EQ(Cell(1), "");
  EXPECT_EQ(Cell(2), "80");
  EXPECT_EQ(Cell(3), "");
}

TEST_F(LiveMarksTest, APasteOfAColumnAndOneOfAHeaderAreOneStepEach) {
  OpenMarks();
  driver->Press("copy");
  const std::string header = screen.clipboard;
  screen.clipboard = "81\n82\n83\n";
  driver->Press("pastemarks");
  screen.clipboard = header;
  driver->Press("paste");
  EXPECT_EQ(Cell(2), "");
  driver->Press("undomark");
  EXPECT_EQ(Cell(2), "82");
  driver->Press("undomark");
  EXPECT_EQ(Cell(2), "");
}

TEST_F(LiveMarksTest, AnotherGradeBeginsWithoutStepsToTakeBack) {
  OpenMarks();
  TypeHeader();
  TypeMarks();
  driver->Press("another");
  EXPECT_FALSE(driver->Enabled("undomark"));
  EXPECT_EQ(driver->Text("progress"), "0 of 3 entered");
}

TEST_F(LiveMarksTest, AClassWithoutStudentsShowsNothing) {
  DropStudents();
  OpenMarks();
  EXPECT_EQ(driver->Text("progress"), "");
  for (const char* button : {"nextempty", "pastemarks", "undomark", "redomark"})
    EXPECT_FALSE(driver->Enabled(button)) << button;
}

class LiveEditTest : public GradePortalTest {
 protected:
  LiveEditTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Give("Rivers", "RIV", "T ", {"81", "90"});
    Give("Lakes", "LAK", "T ", {"15", "B+"}).mvalue = 20;
  }
};

TEST_F(LiveEditTest, ByTitleItIsThatGradeAndStepsEndWithIt) {
  frmEmarks portal;
  Open(portal);
  EXPECT_EQ(driver->Text("progress"), "");
  EXPECT_FALSE(driver->Enabled("pastemarks"));
  driver->Choose("list1", 0);
  EXPECT_EQ(driver->Text("progress"), "2 of 2 entered, average 85.5");
  driver->TypeKeys("Grid1", "71");
  EXPECT_EQ(driver->Text("progress"), "2 of 2 entered, average 80.5");
  driver->Choose("list1", 1);
  EXPECT_FALSE(driver->Enabled("undomark"));
  EXPECT_EQ(driver->Text("progress"), "2 of 2 entered, average 51.5, 1 to look at");
  driver->PickCell("Grid1", 2, kMarkColumn);
  EXPECT_EQ(driver->Text("doubt"), "B+ counts as 88 of 20");
  driver->TypeKeys("Grid1", "18");
  driver->Press("undomark");
  driver->Press("Exitt");
  EXPECT_EQ(Mark(1, 1), "71");
  EXPECT_EQ(Mark(2, 2), "B+");
}

TEST_F(LiveEditTest, ByStudentEachMarkStandsAgainstItsOwnGrade) {
  frmEMarksS portal;
  Open(portal);
  EXPECT_FALSE(driver->Enabled("nextempty"));
  driver->Choose("lstName", 1);
  EXPECT_EQ(driver->Text("progress"), "2 of 2 entered, 1 to look at");
  driver->PickCell("grdgrade", 2, kMarkColumn);
  EXPECT_EQ(driver->Text("doubt"), "B+ counts as 88 of 20");
  driver->PickCell("grdgrade", 1, kMarkColumn);
  screen.clipboard = "77\n19\n";
  driver->Press("pastemarks");
  EXPECT_EQ(driver->Text("progress"), "2 of 2 entered");
  driver->Press("Exitt");
  EXPECT_EQ(Mark(2, 1), "77");
  EXPECT_EQ(Mark(2, 2), "19");
}

TEST_F(LiveEditTest, ByStudentTheOneBeforeIsNotTakenBackIntoTheNext) {
  frmEMarksS portal;
  Open(portal);
  driver->Choose("lstName", 0);
  driver->TypeKeys("grdgrade", "60");
  driver->Choose("lstName", 1);
  EXPECT_FALSE(driver->Enabled("undomark"));
  EXPECT_EQ(Mark(1, 1), "60");
}

}  // namespace
}  // namespace tallyroll
