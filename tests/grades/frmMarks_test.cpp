// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/grades/frmMarks_test.h"

namespace tallyroll {
namespace {

TEST_F(FrmMarksTest, OpensCleanWithTheUsualHeader) {
  screen.now = 46266.5;  // noon of 1 September 2026
  OpenMarks();
  EXPECT_EQ(portal.Caption, "Enter  Grades  Portal");
  EXPECT_EQ(driver->Text("title"), "");
  EXPECT_EQ(driver->Text("code"), "");
  EXPECT_EQ(driver->Text("mvalue"), "100");
  EXPECT_EQ(driver->Text("dropyn"), "N");
  EXPECT_EQ(driver->Text("lowpass"), "65");
  EXPECT_EQ(portal.testdate.Value, 46266);
  EXPECT_EQ(driver->Text("ttypelist"), "A    -  Averaged Grade");
  EXPECT_EQ(portal.ttypelist.List.size(), 26u);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(Cell(i), "");
  EXPECT_EQ(portal.Grid1.Row, 1);
  EXPECT_EQ(portal.Grid1.Col, kMarkColumn);
}

TEST_F(FrmMarksTest, TheStudentsStandInTheOrderOfTheClass) {
  OpenMarks();
  EXPECT_EQ(portal.Grid1.TextMatrix(0, 0), "NAME");
  EXPECT_EQ(portal.Grid1.TextMatrix(0, 1), "      ID ");
  EXPECT_EQ(portal.Grid1.TextMatrix(2, 0), "Ng, Ada");
  EXPECT_EQ(portal.Grid1.TextMatrix(2, 1), "1");
}

TEST_F(FrmMarksTest, SortedByIdTheIdComesFirst) {
  NameMode = 82;
  OpenMarks();
  EXPECT_EQ(portal.Grid1.TextMatrix(0, 0), "ID");
  EXPECT_EQ(portal.Grid1.TextMatrix(0, 1), "     NAME");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 0), "2");
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 1), "Li, Bo");
}

TEST_F(FrmMarksTest, WithoutNamesOrWithoutIdsThatColumnIsHidden) {
  for (const i16 mode : {i16{57}, i16{73}}) {
    NameMode = mode;
    frmMarks other;
    other.Load();
    EXPECT_EQ(other.Grid1.ColWidth(1), 0);
  }
}

TEST_F(FrmMarksTest, ExitOnAnUntouchedPortalAddsNothingAndSaysNothing) {
  OpenMarks();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window.refills, 1);
}

TEST_F(FrmMarksTest, ExitWithATitleAndNoMarksReminds) {
  OpenMarks();
  driver->Type("title", "Rivers");
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(driver->Focused(), "code");
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, WithoutATitleTheReminderLeadsThere) {
  OpenMarks();
  driver->Type("code", "RIV");
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  EXPECT_EQ(driver->Focused(), "title");
}

TEST_F(FrmMarksTest, WithAFullHeaderTheReminderLeadsToTheRowLastActive) {
  OpenMarks();
  TypeHeader();
  TypeMark(2, "80");
  driver->PickCell("Grid1", 3, kMarkColumn);
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Row, 2);
}

TEST_F(FrmMarksTest, ABlankMarkCountsAsEmptyForAnother) {
  OpenMarks();
  TypeHeader();
  TypeMarks();
  TypeMark(2, " ");
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, ExitAddsTheGrade) {
  screen.date_order = DateOrder::kMonthFirst;
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "50");
  driver->PickDate("testdate", 46275);  // nine days after 1 September 2026
  driver->TypeKeys("dropyn", "x");
  ChooseType(10);
  TypeMarks();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  ASSERT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Grade(1).title, "Rivers");
  EXPECT_EQ(Grade(1).code, "RIV");
  EXPECT_EQ(Grade(1).mvalue, 50);
  EXPECT_EQ(Grade(1).lowpass, "32.5");
  EXPECT_EQ(Grade(1).dropyn, "Y");
  EXPECT_EQ(Grade(1).testdate, "9/10/2026");
  EXPECT_EQ(Grade(1).typecode, "Q ");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Mark(2, 1), "82");
  EXPECT_EQ(Mark(3, 1), "83");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.refills, 2);  // as it exits, and with the new grade
}

TEST_F(FrmMarksTest, ANewGradeStandsBehindTheOthers) {
  Give("Old", "O", "Q", {"1", "2", "3"});
  AddQuiz();
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Old", "Rivers"}));
  EXPECT_EQ(Mark(2, 1), "2");
  EXPECT_EQ(Mark(2, 2), "82");
  EXPECT_EQ(UpperBound(Current().Weights), 2);
  EXPECT_EQ(UpperBound(Current().InstrumentUse), 2);
}

TEST_F(FrmMarksTest, AClassWithoutStudentsTakesAGradeToo) {
  DropStudents();
  OpenMarks();
  TypeHeader();
  driver->Press("exit");
  EXPECT_EQ(Current().NumInstruments, 1);
}

TEST_F(FrmMarksTest, AnotherAddsAndStartsOver) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "50");
  ChooseType(6);
  TypeMarks();
  driver->Press("another");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.refills, 1);
  EXPECT_EQ(driver->Text("title"), "");
  EXPECT_EQ(driver->Text("code"), "");
  EXPECT_EQ(driver->Text("mvalue"), "100");
  EXPECT_EQ(driver->Text("lowpass"), "65");
  EXPECT_EQ(portal.ttypelist.ListIndex, 0);
  EXPECT_EQ(Cell(1), "");
  EXPECT_EQ(driver->Focused(), "title");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmMarksTest, TheFillFillsEmptyCellsOnly) {
  OpenMarks();
  TypeMark(2, "90");
  TypeMark(3, " ");
  driver->Press("fill");
  EXPECT_TRUE(driver->Visible("fillframe"));
  EXPECT_TRUE(portal.Option1.Value);
  driver->Press("Command5");
  EXPECT_EQ(Cell(1), "ABS");
  EXPECT_EQ(Cell(2), "90");
  EXPECT_EQ(Cell(3), "ABS");
  EXPECT_FALSE(driver->Visible("fillframe"));
}

TEST_F(FrmMarksTest, EachFillHasItsMark) {
  const std::pair<const char*, const char*> fills[] = {
      {"Option2", "CUT"}, {"Option3", "NON"}, {"Option4", "EXC"}};
  for (const auto& [option, mark] : fills) {
    frmMarks other;
    other.Load();
    PortalDriver hand(other);
    hand.Press("fill");
    other.Option1.Value = false;  // the form lets one of the group go when another is taken
    hand.Tick(option);
    hand.Press("Command5");
    EXPECT_EQ(other.Grid1.TextMatrix(3, kMarkColumn), mark);
    EXPECT_TRUE(hand.Complaints().empty());
  }
}

TEST_F(FrmMarksTest, AFillWithAValueTakesItsFirstFiveCharacters) {
  OpenMarks();
  driver->Press("fill");
  EXPECT_FALSE(driver->Enabled("Text1"));
  portal.Option1.Value = false;
  driver->Tick("Option5");
  EXPECT_TRUE(driver->Enabled("Text1"));
  driver->Type("Text1", "12345678");
  driver->Press("Command5");
  EXPECT_EQ(Cell(1), "12345");
  EXPECT_EQ(Cell(3), "12345");
}

TEST_F(FrmMarksTest, AFillWithAValueIsUpperCasedAsTypingIs) {
  OpenMarks();
  driver->Press("fill");
  portal.Option1.Value = false;
  driver->Tick("Option5");
  driver->Type("Text1", "b+\xE9");
  driver->Press("Command5");
  EXPECT_EQ(Cell(1), "B+\xC9");
}

TEST_F(FrmMarksTest, WhileTheFillIsOpenTheRestWaits) {
  const char* const controls[] = {"headerframe", "specialframe", "clipframe", "Grid1",     "fill",
                                  "another",     "exit",         "cancel",    "pastegrade"};
  screen.clipboard = "8z\r";
  OpenMarks();
  driver->Press("fill");
  for (const char* control : controls) EXPECT_FALSE(driver->Enabled(control)) << control;
  driver->Press("Command6");
  for (const char* control : controls) EXPECT_TRUE(driver->Enabled(control)) << control;
  EXPECT_EQ(Cell(1), "");
}

TEST_F(FrmMarksTest, AFillThatIsOverDoesNotOfferAGradeThatIsNotThere) {
  OpenMarks();
  driver->Press("fill");
  EXPECT_FALSE(driver->Enabled("pastegrade"));
  driver->Press("Command5");
  EXPECT_FALSE(driver->Enabled("pastegrade"));
}

TEST_F(FrmMarksTest, EscapeInTheFillLeavesTheFillAlone) {
  OpenMarks();
  driver->Press("fill");
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_FALSE(driver->Visible("fillframe"));
}

TEST_F(FrmMarksTest, CancelWithNothingEnteredCloses) {
  OpenMarks();
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmMarksTest, CancelAfterAMarkAsks) {
  OpenMarks();
  TypeMark(1, "8");
  screen.ExpectBox(kDataEntered, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "CANCEL");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  screen.ExpectBox(kDataEntered, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, CancelAfterAMarkThatWasTakenBackCloses) {
  OpenMarks();
  TypeMark(1, "8\b");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmMarksTest, CancelAfterAFillAloneCloses) {
  OpenMarks();
  driver->Press("fill");
  driver->Press("Command5");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, AnotherForgetsTheRowLastActive) {
  OpenMarks();
  TypeHeader();
  TypeMarks();
  driver->Press("another");
  TypeHeader();
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Row, 1);
}

TEST_F(FrmMarksTest, ABlankMarkIsAnEntryOfWhichExitReminds) {
  OpenMarks();
  TypeMark(2, " ");
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, ABlankInTitleOrCodeIsAnEntryOfWhichExitReminds) {
  for (const char* box : {"title", "code"}) {
    frmMarks other;
    other.Load();
    PortalDriver hand(other);
    hand.Type(box, " ");
    screen.ExpectBox(kReminder);
    hand.Press("exit");
    EXPECT_FALSE(other.Unloaded()) << box;
    EXPECT_EQ(hand.Focused(), "title");
  }
}

TEST_F(FrmMarksTest, CancelAfterABlankMarkAsks) {
  OpenMarks();
  TypeMark(1, " ");
  screen.ExpectBox(kDataEntered, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmMarksTest, KeysWriteTheSpecialMarks) {
  const std::pair<Key, const char*> keys[] = {
      {Key::kF6, "ABS"}, {Key::kF7, "NON"}, {Key::kF8, "CUT"}, {Key::kF9, "EXC"}};
  OpenMarks();
  driver->PickCell("Grid1", 2, kMarkColumn);
  for (const auto& [key, mark] : keys) {
    driver->PressKey("Grid1", key);
    EXPECT_EQ(Cell(2), mark);
  }
  EXPECT_TRUE(portal.DataEntered);
}

TEST_F(FrmMarksTest, ButtonsWriteTheSpecialMarks) {
  const std::pair<const char*, const char*> buttons[] = {
      {"Command1", "ABS"}, {"Command2", "NON"}, {"Command3", "CUT"}, {"Command4", "EXC"}};
  OpenMarks();
  driver->PickCell("Grid1", 2, kMarkColumn);
  for (const auto& [button, mark] : buttons) {
    driver->Press(button);
    EXPECT_EQ(Cell(2), mark);
    EXPECT_EQ(driver->Focused(), "Grid1");
  }
  EXPECT_TRUE(portal.DataEntered);
}

}  // namespace
}  // namespace tallyroll
