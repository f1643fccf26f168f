// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_entry.h"

#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

// A grid of three marks.
struct ThreeMarks : Portal {
  ThreeMarks() : Portal("ThreeMarks") {
    grid.SetSize(4, 2);
    grid.SetTextMatrix(2, 1, "ABS");
  }
  void Declare(ControlTable& table) override { marks.Declare(table, "grid"); }

  Grid grid;
  int edits = 0;
  MarkEntry marks{*this, grid, 1, [this] { ++edits; }};
};

class MarkEntryTest : public GradePortalTest {
 protected:
  MarkEntryTest() { Open(portal); }
  std::string Cell(int row) const { return std::string(portal.grid.TextMatrix(row, 1)); }

  ThreeMarks portal;
};

TEST_F(MarkEntryTest, SixCharactersAreCutToFive) {
  driver->TypeKeys("grid", "123456");
  EXPECT_EQ(Cell(1), "12345");
}

TEST_F(MarkEntryTest, CharactersBecomeUpperCase) {
  driver->TypeKeys("grid", "b+\xe9");
  EXPECT_EQ(Cell(1), "B+\xc9");
}

TEST_F(MarkEntryTest, BackspaceTakesTheLastCharacter) {
  driver->TypeKeys("grid", "85\b");
  EXPECT_EQ(Cell(1), "8");
}

TEST_F(MarkEntryTest, BackspaceInAnEmptyCellDoesNothing) {
  driver->TypeKeys("grid", "8\b\b");
  EXPECT_EQ(Cell(1), "");
}

TEST_F(MarkEntryTest, TheFirstKeyInAFilledCellReplacesTheMark) {
  driver->PickCell("grid", 2, 1);
  driver->TypeKeys("grid", "90");
  EXPECT_EQ(Cell(2), "90");
}

TEST_F(MarkEntryTest, BackspaceAsFirstKeyEmptiesTheCell) {
  driver->PickCell("grid", 2, 1);
  driver->TypeKeys("grid", "\b");
  EXPECT_EQ(Cell(2), "");
}

TEST_F(MarkEntryTest, ComingBackTheFirstKeyReplacesAgain) {
  driver->TypeKeys("grid", "70");
  driver->PickCell("grid", 2, 1);
  driver->PickCell("grid", 1, 1);
  driver->TypeKeys("grid", "8");
  EXPECT_EQ(Cell(1), "8");
}

TEST_F(MarkEntryTest, ABlankIsACharacter) {
  driver->TypeKeys("grid", " ");
  EXPECT_EQ(Cell(1), " ");
}

TEST_F(MarkEntryTest, FunctionKeysWriteTheSpecialMarks) {
  driver->PressKey("grid", Key::kF6);
  EXPECT_EQ(Cell(1), "ABS");
  driver->PressKey("grid", Key::kF7);
  EXPECT_EQ(Cell(1), "NON");
  driver->PressKey("grid", Key::kF8);
  EXPECT_EQ(Cell(1), "CUT");
  driver->PressKey("grid", Key::kF9);
  EXPECT_EQ(Cell(1), "EXC");
}

TEST_F(MarkEntryTest, ButtonsWriteTheSpecialMarks) {
  driver->Press("Command1");
  EXPECT_EQ(Cell(1), "ABS");
  driver->Press("Command2");
  EXPECT_EQ(Cell(1), "NON");
  driver->Press("Command3");
  EXPECT_EQ(Cell(1), "CUT");
  driver->Press("Command4");
  EXPECT_EQ(Cell(1), "EXC");
  EXPECT_EQ(driver->Focused(), "grid");
}

TEST_F(MarkEntryTest, TheButtonsSayTheirKeys) {
  EXPECT_EQ(driver->Text("Command1"), " ABS [F6]");
  EXPECT_EQ(driver->Text("Command2"), " NON [F7]");
  EXPECT_EQ(driver->Text("Command3"), "CUT [F8]");
  EXPECT_EQ(driver->Text("Command4"), "EXC [F9]");
}

TEST_F(MarkEntryTest, AKeyAfterASpecialMarkBeginsANewMark) {
  driver->TypeKeys("grid", "7");
  driver->PressKey("grid", Key::kF8);
  driver->TypeKeys("grid", "8");
  EXPECT_EQ(Cell(1), "8");
}

TEST_F(MarkEntryTest, EachEditIsTold) {
  driver->TypeKeys("grid", "85");
  driver->PressKey("grid", Key::kF6);
  EXPECT_EQ(portal.edits, 3);
}

TEST_F(MarkEntryTest, ReturnGoesDownAndStaysAtTheLastRow) {
  for (int row = 2; row <= 3; ++row) {
    driver->PressKey("grid", Key::kEnter);
    EXPECT_EQ(portal.grid.Row, row);
  }
  driver->PressKey("grid", Key::kEnter);
  EXPECT_EQ(portal.grid.Row, 3);
}

TEST_F(MarkEntryTest, EndGoesToTheLastRow) {
  driver->PressKey("grid", Key::kEnd);
  EXPECT_EQ(portal.grid.Row, 3);
}

TEST_F(MarkEntryTest, AClickOnTheHeadingsGoesBackToTheRowLastActive) {
  driver->PickCell("grid", 2, 1);
  driver->TypeKeys("grid", "5");
  driver->PickCell("grid", 3, 1);
  driver->PickCell("grid", 0, 1);
  EXPECT_EQ(portal.grid.Row, 2);
}

TEST_F(MarkEntryTest, AClickOnANameGoesToItsMark) {
  driver->PickCell("grid", 3, 0);
  EXPECT_EQ(portal.grid.Row, 3);
  EXPECT_EQ(portal.grid.Col, 1);
}

TEST_F(MarkEntryTest, WithoutRowsKeysDoNothing) {
  portal.grid.SetSize(1, 2);
  driver->TypeKeys("grid", "5\b");
  driver->PressKey("grid", Key::kF6);
  driver->PressKey("grid", Key::kEnd);
  driver->PressKey("grid", Key::kEnter);
  EXPECT_EQ(portal.edits, 0);
}

}  // namespace
}  // namespace tallyroll
