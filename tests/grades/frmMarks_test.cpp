// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmMarks.h"

#include "grades/student_grid.h"
#include "store/safe_file.h"
#include "store/text_layout.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class FrmMarksTest : public GradePortalTest {
 protected:
  FrmMarksTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Enrol("Orr", "Cy", "3");
  }
  void OpenMarks() { Open(portal); }
  std::string Cell(int student) const {
    return std::string(portal.Grid1.TextMatrix(student, kMarkColumn));
  }
  void TypeMark(int student, std::string_view mark) {
    driver->PickCell("Grid1", student, kMarkColumn);
    driver->TypeKeys("Grid1", mark);
  }
  void TypeMarks() {
    TypeMark(1, "81");
    TypeMark(2, "82");
    TypeMark(3, "83");
  }
  void TypeHeader() {
    driver->Type("title", "Rivers");
    driver->Type("code", "RIV");
  }
  void ChooseType(int type) { driver->Choose("ttypelist", type - 1); }
  // Opens the Portal on a file in comma layout.
  void ImportMarks(std::string_view text, int by) {
    ImportFile = Path("marks.txt");
    ASSERT_EQ(ReplaceFile(ImportFile, text, OldTail::kDrop), 0);
    TextMode = kCommasText;
    OpenState = by;
    OpenMarks();
  }
  // A quiz for every student, accepted.
  void AddQuiz() {
    OpenMarks();
    TypeHeader();
    ChooseType(10);
    TypeMarks();
    driver->Press("exit");
    EXPECT_TRUE(portal.Unloaded());
  }

  frmMarks portal;
};

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
  EXPECT_GE(window.refills, 1);
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
  Current().NumStudents = 0;
  ReDim(Current().Students, 0);
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

TEST_F(FrmMarksTest, AMaximumScoreOf50PassesAt32Point5) {
  OpenMarks();
  driver->Type("mvalue", "50");
  EXPECT_EQ(driver->Text("lowpass"), "32.5");
}

TEST_F(FrmMarksTest, TheLowestPassMayBeTypedOver) {
  OpenMarks();
  TypeHeader();
  driver->Type("lowpass", "C-");
  TypeMarks();
  driver->Press("exit");
  EXPECT_EQ(Grade(1).lowpass, "C-");
}

TEST_F(FrmMarksTest, ADecimalPointInTheMaximumScoreIsRefused) {
  OpenMarks();
  screen.ExpectBox("Maximum Score must be a whole number");
  driver->Type("mvalue", "12.");
  EXPECT_EQ(driver->Text("mvalue"), "12");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the teacher.");
}

TEST_F(FrmMarksTest, MaximumAndLowestPassAreSelectedWhenEntered) {
  OpenMarks();
  driver->Focus("mvalue");
  EXPECT_EQ(portal.mvalue.SelLength, 3);
  driver->Focus("lowpass");
  EXPECT_EQ(portal.lowpass.SelLength, 2);
}

TEST_F(FrmMarksTest, AMaximumScoreOf0IsRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "0");
  TypeMarks();
  for (const char* button : {"another", "exit"}) {
    screen.ExpectBox(kScoreMustBeAbove0);
    driver->Press(button);
    EXPECT_FALSE(portal.Unloaded());
    EXPECT_EQ(driver->Focused(), "mvalue");
  }
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, ExitTellsOfTheMaximumScoreBeforeWhatIsMissing) {
  OpenMarks();
  driver->Type("mvalue", "0");
  screen.ExpectBox(kScoreMustBeAbove0);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmMarksTest, AnotherTellsOfWhatIsMissingBeforeTheMaximumScore) {
  OpenMarks();
  driver->Type("mvalue", "0");
  screen.ExpectBox(kReminder);
  driver->Press("another");
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmMarksTest, ANegativeMaximumScorePasses) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "-5");
  TypeMarks();
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, -5);
}

TEST_F(FrmMarksTest, AMaximumScoreBeyond16BitsIsRefused) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "32768");
  TypeMarks();
  screen.ExpectBox("The value for Maximum Score must not be greater than 32767");
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "mvalue");
  driver->Type("mvalue", "32767");
  driver->Press("exit");
  EXPECT_EQ(Grade(1).mvalue, 32767);
}

TEST_F(FrmMarksTest, AMaximumScoreThatRoundsTo0IsRefused) {
  screen.clipboard = "7z\rRivers\rRIV\r0.4\r30\r9/10/2026\rN\rHW  - Homework\r";
  OpenMarks();
  driver->Press("paste");
  TypeMarks();
  screen.ExpectBox(kScoreMustBeAbove0);
  driver->Press("exit");
  EXPECT_EQ(Current().NumInstruments, 0);
}

TEST_F(FrmMarksTest, AnyKeyFlipsWhetherTheGradeMayBeDropped) {
  OpenMarks();
  driver->TypeKeys("dropyn", "n");
  EXPECT_EQ(driver->Text("dropyn"), "Y");
  driver->TypeKeys("dropyn", "\b");
  EXPECT_EQ(driver->Text("dropyn"), "N");
  driver->PressKey("dropyn", Key::kDelete);
  EXPECT_EQ(driver->Text("dropyn"), "Y");
}

TEST_F(FrmMarksTest, OneOfTheTwoLettersStandsWhateverIsCutOut) {
  OpenMarks();
  driver->Type("dropyn", "");
  EXPECT_EQ(driver->Text("dropyn"), "N");
}

TEST_F(FrmMarksTest, ACodeHasThreeCharacters) {
  OpenMarks();
  EXPECT_EQ(portal.code.MaxLength, 3);
}

TEST_F(FrmMarksTest, ATitleIsNoLongerThanAFileHolds) {
  OpenMarks();
  EXPECT_EQ(portal.title.MaxLength, 65535);
  EXPECT_EQ(portal.lowpass.MaxLength, 65535);
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

TEST_F(FrmMarksTest, WhileTheFillIsOpenTheRestWaits) {
  OpenMarks();
  driver->Press("fill");
  for (const char* control : {"headerframe", "specialframe", "clipframe", "Grid1", "exit"})
    EXPECT_FALSE(driver->Enabled(control)) << control;
  driver->Press("Command6");
  for (const char* control : {"headerframe", "specialframe", "clipframe", "Grid1", "exit"})
    EXPECT_TRUE(driver->Enabled(control)) << control;
  EXPECT_EQ(Cell(1), "");
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

TEST_F(FrmMarksTest, AQuizUnderMethod1InAClassWithoutOneForgetsTheMethod) {
  Give("Essay", "E", "E", {"1", "2", "3"});
  UseMethod(1);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, AQuizUnderMethod1InAClassWithOneKeepsTheMethod) {
  Give("Quiz", "Q", "Q", {"1", "2", "3"});
  UseMethod(1);
  AddQuiz();
  ExpectMethodKept(1);
}

TEST_F(FrmMarksTest, Method3IsAsMethod1) {
  Give("Quiz", "Q", "Q ", {"1", "2", "3"});
  UseMethod(3);
  AddQuiz();
  ExpectMethodKept(3);
}

TEST_F(FrmMarksTest, UnderMethod0AGradeAlwaysForgetsTheMethod) {
  Give("Quiz", "Q", "Q", {"1", "2", "3"});
  UseMethod(0);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, UnderMethod2AGradeNeverDoes) {
  UseMethod(2);
  AddQuiz();
  ExpectMethodKept(2);
}

TEST_F(FrmMarksTest, WithoutAMethodTheSettingsAreEmptied) {
  UseMethod(5);
  AddQuiz();
  ExpectMethodForgotten();
}

TEST_F(FrmMarksTest, TheClipboardDecidesWhatCanBePasted) {
  OpenMarks();
  EXPECT_FALSE(driver->Enabled("paste"));
  EXPECT_FALSE(driver->Enabled("pastegrade"));
}

TEST_F(FrmMarksTest, AHeaderOnTheClipboardCanBePasted) {
  screen.clipboard = "7z\r";
  OpenMarks();
  EXPECT_TRUE(driver->Enabled("paste"));
  EXPECT_FALSE(driver->Enabled("pastegrade"));
}

TEST_F(FrmMarksTest, CopyWritesTheHeaderALineEach) {
  OpenMarks();
  TypeHeader();
  driver->Type("mvalue", "50");
  ChooseType(6);
  driver->Press("copy");
  EXPECT_EQ(screen.clipboard, "7z\rRivers\rRIV\r50\r32.5\r9/1/2026\rN\rHW  - Homework\r");
  EXPECT_TRUE(driver->Enabled("paste"));
}

TEST_F(FrmMarksTest, PasteFillsTheHeaderAndEmptiesTheMarks) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\rHW  - Homework\r";
  OpenMarks();
  TypeMark(1, "90");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("code"), "RIV");
  EXPECT_EQ(driver->Text("mvalue"), "50");
  EXPECT_EQ(driver->Text("lowpass"), "30");
  EXPECT_EQ(portal.testdate.Value, 46275);
  EXPECT_EQ(driver->Text("dropyn"), "Y");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(Cell(1), "");
  EXPECT_TRUE(portal.DataEntered);
  EXPECT_EQ(driver->Focused(), "Grid1");
  EXPECT_EQ(portal.Grid1.Col, kMarkColumn);
}

TEST_F(FrmMarksTest, PasteWithoutATypeTakesTheNoTypeEntry) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\r\r";
  OpenMarks();
  driver->Press("paste");
  EXPECT_EQ(portal.ttypelist.ListIndex, 25);
}

TEST_F(FrmMarksTest, PasteAsksBeforeItReplacesATitle) {
  screen.clipboard = "7z\rRivers\rRIV\r50\r30\r9/10/2026\rY\r\r";
  OpenMarks();
  driver->Type("title", "Lakes");
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kNo);
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Lakes");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to The Teacher");
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kYes);
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "Rivers");
}

TEST_F(FrmMarksTest, PasteOfSomethingElseIsRefused) {
  screen.clipboard = "7z\r";
  OpenMarks();
  screen.clipboard = "3z\rLi\r";
  screen.ExpectBox(
      "There are no appropriate fields to be found on the clipboard. The data on the clipboard may "
      "not be the right type for inserting in the current module.  You need to go back to a "
      "compatible module, then copy the information to the clipboard and try again.");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "");
}

TEST_F(FrmMarksTest, PasteOfAnEmptyClipboardDoesNothing) {
  screen.clipboard = "7z\r";
  OpenMarks();
  screen.clipboard = "";
  driver->Press("paste");
  EXPECT_FALSE(portal.DataEntered);
}

TEST_F(FrmMarksTest, PasteOfATornHeaderIsRefused) {
  screen.clipboard = "7z\rRivers\rRIV\r";
  OpenMarks();
  screen.ExpectBox("Can not read from Clipboard.");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("title"), "");
}

TEST_F(FrmMarksTest, LinesThatPassedThroughAnotherProgramAreRead) {
  screen.clipboard = "7z\r\nRivers\r\nRIV\n50\r\n30\r\n9/10/2026\r\nY\r\nHW  - Homework\r\n";
  OpenMarks();
  driver->Press("paste");
  EXPECT_EQ(driver->Text("code"), "RIV");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
}

TEST_F(FrmMarksTest, AGradeTakesTheMarksOfTheStudentsItKnows) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r2\r 1 , 41 \r9,42\r";
  OpenMarks();
  EXPECT_TRUE(driver->Enabled("pastegrade"));
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("ttypelist"), "HW  - Homework");
  EXPECT_EQ(Cell(1), "NEW");
  EXPECT_EQ(Cell(2), "41");
  EXPECT_EQ(Cell(3), "NEW");
  EXPECT_TRUE(portal.DataEntered);
}

TEST_F(FrmMarksTest, AGradeWithFewerLinesThanStudentsIsAddedAtOnce) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r1\r1,41\r";
  OpenMarks();
  driver->Press("pastegrade");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Mark(1, 1), "NEW");
  EXPECT_EQ(Mark(2, 1), "41");
  EXPECT_EQ(Grade(1).typecode, "HW");
}

TEST_F(FrmMarksTest, TwoStudentsOfOneIdTheFirstTakesTheMark) {
  Current().Students[3].id = "1";
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r1\r1,41\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(2), "41");
  EXPECT_EQ(Cell(3), "NEW");
}

TEST_F(FrmMarksTest, ATypeOfTwoCodesIsFoundByTheCodeOfOneCharacter) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rQ \r0\r";
  OpenMarks();
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("ttypelist"), "Q    -  Quiz");
}

TEST_F(FrmMarksTest, AGradeAsksBeforeItReplacesATitle) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r0\r";
  OpenMarks();
  driver->Type("title", "Lakes");
  screen.ExpectBox("There is already a Title - Replace with Clip Board", BoxAnswer::kNo);
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "Lakes");
}

TEST_F(FrmMarksTest, AGradeWithLinesMissingIsRefused) {
  screen.clipboard = "8z\rRivers\rRIV\r50\r30\r9/10/2026\rN\rHW\r2\r1,41\r";
  OpenMarks();
  screen.ExpectBox("Can not read from Clipboard.");
  driver->Press("pastegrade");
  EXPECT_EQ(Cell(1), "");
}

TEST_F(FrmMarksTest, AGradePastedFromAHeaderIsRefused) {
  screen.clipboard = "8z\r";
  OpenMarks();
  screen.clipboard = "7z\rRivers\r";
  screen.ExpectBox(
      "There are no appropriate fields to be found on the clipboard. The data on the clipboard may "
      "not be the right type for inserting in the current module.  You need to go back to a "
      "compatible module, then copy the information to the clipboard and try again.");
  driver->Press("pastegrade");
  EXPECT_EQ(driver->Text("title"), "");
}

// ---- A file of marks ----

TEST_F(FrmMarksTest, MarksOfAFileFillTheColumn) {
  ImportMarks("1,91\n3,abs\n", kGradesById);
  EXPECT_EQ(Cell(1), "");
  EXPECT_EQ(Cell(2), "91");
  EXPECT_EQ(Cell(3), "ABS");
  EXPECT_TRUE(portal.DataEntered);
  EXPECT_EQ(window.status, "Students found in the file: 2.");
}

TEST_F(FrmMarksTest, MarksOfAFileAreCutAsTypedOnesAre) {
  ImportMarks("Ng Ada,1234567\n", kGradesByName);
  EXPECT_EQ(Cell(2), "12345");
}

TEST_F(FrmMarksTest, AStudentWhomTheFileLacksStillNeedsAMark) {
  ImportMarks("1,91\n2,82\n", kGradesById);
  TypeHeader();
  screen.ExpectBox(kReminder);
  driver->Press("exit");
  TypeMark(3, "70");
  driver->Press("exit");
  EXPECT_EQ(Mark(2, 1), "91");
  EXPECT_EQ(Mark(3, 1), "70");
}

TEST_F(FrmMarksTest, AnotherTakesTheNextGradeOfTheFile) {
  ImportMarks("ID,NAME,Rivers,Lakes\n,,RIV,LAK\n1,Ng Ada,91,A\n2,Li Bo,82,B\n3,Orr Cy,73,C\n",
              kGradesById);
  EXPECT_EQ(driver->Text("title"), "Rivers");
  EXPECT_EQ(driver->Text("code"), "RIV");
  driver->Press("another");
  EXPECT_EQ(driver->Text("title"), "Lakes");
  EXPECT_EQ(Cell(1), "B");
  driver->Press("another");
  EXPECT_EQ(driver->Text("title"), "");
  EXPECT_EQ(Cell(1), "");
  driver->Press("exit");
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Rivers", "Lakes"}));
  EXPECT_EQ(Mark(2, 2), "A");
}

TEST_F(FrmMarksTest, AFileThatCannotBeReadLeavesThePortalClean) {
  ImportFile = Path("none.txt");
  OpenState = kGradesById;
  screen.ExpectBox("File Error 53");
  OpenMarks();
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 0);
}

}  // namespace
}  // namespace tallyroll
