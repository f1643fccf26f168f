// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmAdd.h"

#include "platform/class_window.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

class FrmAddTest : public RosterTest {
 protected:
  frmAdd portal;
};

TEST_F(FrmAddTest, OpensEmptyBehindTheLastStudent) {
  Enrol("Ng", "Ada", "1");
  Open(portal);
  EXPECT_EQ(portal.Position, 2);
  EXPECT_FALSE(portal.RecordExists());
  EXPECT_EQ(driver->Text("lastname"), "");
  EXPECT_EQ(driver->Focused(), "lastname");
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddTest, TellsTheHowManythStudentOfWhichClass) {
  Current().FileName = "/home/ann/MATH.TYR";
  Open(portal);
  EXPECT_EQ(driver->Text("where"), "Student 1 of MATH.TYR");
  Current().description = "Mathematics 8 ";
  TypeStudent("Ng", "Ada", "7");
  driver->Press("nextt");
  EXPECT_EQ(driver->Text("where"), "Student 2 of Mathematics 8");
  driver->Press("PREVIOUS");
  EXPECT_EQ(driver->Text("where"), "Student 1 of Mathematics 8");
}

TEST_F(FrmAddTest, AClassThatWasNeverSavedHasNoNameYet) {
  Current().FileName = "";
  Open(portal);
  EXPECT_EQ(driver->Text("where"), "Student 1");
}

TEST_F(FrmAddTest, TheOthersStandAsTheyWereEntered) {
  Open(portal);
  TypeStudent("Orr", "Bo", "9");
  driver->Press("nextt");
  TypeStudent("Ng", "Ada", "7");
  driver->Press("nextt");
  EXPECT_EQ(portal.entered.List, (std::vector<std::string>{"Orr, Bo\t9", "Ng, Ada\t7"}));
  EXPECT_EQ(portal.entered.ListIndex, -1);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.entered.ListIndex, 1);
}

TEST_F(FrmAddTest, ALineOfTheOthersShowsThatStudentAndKeepsWhatWasTyped) {
  Open(portal);
  TypeStudent("Orr", "Bo", "9");
  driver->Press("nextt");
  TypeStudent("Ng", "Ada", "7");
  driver->Choose("entered", 0);
  EXPECT_EQ(portal.Position, 1);
  EXPECT_EQ(driver->Text("lastname"), "Orr");
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[2].lastname, "Ng");
}

TEST_F(FrmAddTest, AStudentWithoutAnIdIsNotLeftForAnother) {
  Open(portal);
  TypeStudent("Orr", "Bo", "9");
  driver->Press("nextt");
  driver->Type("lastname", "Ng");
  screen.ExpectBox("You must fill in FULL name and ID.\nPress Tab for next field.", BoxAnswer::kOk);
  driver->Choose("entered", 0);
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
  EXPECT_EQ(portal.entered.ListIndex, -1);
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddTest, NextStoresTheStudentAndClearsForTheNext) {
  Open(portal);
  TypeStudent("Ng", "Ada", "7");
  driver->PickTab("TabStrip1", 2);
  driver->Type("city", "Oslo");
  driver->Press("nextt");
  ASSERT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Current().Students[1].lastname, "Ng");
  EXPECT_EQ(Current().Students[1].firstname, "Ada");
  EXPECT_EQ(Current().Students[1].id, "7");
  EXPECT_EQ(Current().Students[1].city, "Oslo");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(portal.Dirty, 0);
  EXPECT_EQ(driver->Text("city"), "");
  EXPECT_EQ(driver->Text("id"), "");
  EXPECT_EQ(portal.TabStrip1.Selected, 0);
  EXPECT_EQ(driver->Focused(), "lastname");
}

TEST_F(FrmAddTest, EveryFieldReachesItsRecord) {
  Open(portal);
  TypeStudent("Ng", "Ada", "7");
  for (const char* field :
       {"comments", "email", "work", "parent", "birth", "phone", "address", "city", "state", "zip"})
    driver->Type(field, std::string("my ") + field);
  driver->Press("nextt");
  const Student& ada = Current().Students.at(1);
  EXPECT_EQ(ada.comments, "my comments");
  EXPECT_EQ(ada.email, "my email");
  EXPECT_EQ(ada.work, "my work");
  EXPECT_EQ(ada.parent, "my parent");
  EXPECT_EQ(ada.birth, "my birth");
  EXPECT_EQ(ada.phone, "my phone");
  EXPECT_EQ(ada.address, "my address");
  EXPECT_EQ(ada.city, "my city");
  EXPECT_EQ(ada.state, "my state");
  EXPECT_EQ(ada.zip, "my zip");
}

TEST_F(FrmAddTest, NamesStayAsTypedTheIdLosesTrailingBlanksAndTheRestIsTrimmed) {
  Open(portal);
  TypeStudent(" Ng ", "Ada ", " 7 ");
  driver->Type("parent", "  Per Ng ");
  driver->Press("nextt");
  const Student& ada = Current().Students.at(1);
  EXPECT_EQ(ada.lastname, " Ng ");
  EXPECT_EQ(ada.firstname, "Ada ");
  EXPECT_EQ(ada.id, " 7");
  EXPECT_EQ(ada.parent, "Per Ng");
}

TEST_F(FrmAddTest, ANewRecordFitsTheLists) {
  Class& c = Current();
  c.NumInstruments = 2;
  c.NumDays = 3;
  c.NumSummaries = 1;
  c.NumCharts = 2;
  Open(portal);
  TypeStudent("Ng", "Ada", "7");
  driver->Press("nextt");
  const Student& ada = c.Students.at(1);
  EXPECT_EQ(ada.Marks, (List<ShortText>{"", "NEW", "NEW"}));
  EXPECT_EQ(ada.DailyMarks, (List<FixedText<1>>{" ", " ", " ", " "}));
  EXPECT_EQ(UpperBound(ada.SummaryAbsent), 1);
  EXPECT_EQ(ada.SummaryAbsent[1], "0    ");
  EXPECT_EQ(ada.SummaryLate, (List<ShortText>{"", "0"}));
  EXPECT_EQ(ada.SummaryDetail, (List<ShortText>{"", " 0/ 0/ 0/ 0/"}));
  EXPECT_EQ(ada.SeatRow, (List<i16>{0, -1, -1}));
  EXPECT_EQ(ada.SeatColumn, (List<i16>{0, -1, -1}));
}

TEST_F(FrmAddTest, WithoutChartsSeatsHaveAFirstDimensionOf1) {
  Open(portal);
  TypeStudent("Ng", "Ada", "7");
  driver->Press("nextt");
  EXPECT_EQ(UpperBound(Current().Students.at(1).SeatRow), 1);
  EXPECT_EQ(UpperBound(Current().Students.at(1).SeatColumn), 1);
}

TEST_F(FrmAddTest, TheWidthsRiseWithLongerNamesAndNeverFall) {
  Current().LastNameWidth = 5;
  Current().FirstNameWidth = 4;
  Open(portal);
  TypeStudent("Abernathy", "Jo", "1");
  driver->Press("nextt");
  EXPECT_EQ(Current().LastNameWidth, 9);
  EXPECT_EQ(Current().FirstNameWidth, 4);
  TypeStudent("Li", "Benjamin", "2");
  driver->Press("nextt");
  EXPECT_EQ(Current().LastNameWidth, 9);
  EXPECT_EQ(Current().FirstNameWidth, 8);
}

TEST_F(FrmAddTest, ALastNameOf30CharactersLeavesNothingToTypeInTheFirstName) {
  Open(portal);
  driver->Type("lastname", std::string(30, 'x'));
  EXPECT_EQ(portal.firstname.MaxLength, -1);
}

TEST_F(FrmAddTest, TheTwoNamesShare30Characters) {
  Open(portal);
  driver->Type("lastname", "Abernathy");
  EXPECT_EQ(portal.firstname.MaxLength, 21);
  driver->Type("firstname", "Zoe");
  EXPECT_EQ(portal.lastname.MaxLength, 27);
}

TEST_F(FrmAddTest, AnIdHasUpTo12CharactersAndFreeTextWhatAFileHolds) {
  EXPECT_EQ(portal.id.MaxLength, 12);
  EXPECT_EQ(portal.comments.MaxLength, 65535);
  EXPECT_EQ(portal.zip.MaxLength, 65535);
}

TEST_F(FrmAddTest, ABlankLastNameIsRefusedFirst) {
  Open(portal);
  TypeStudent("  ", "", "7");
  driver->PickTab("TabStrip1", 1);
  screen.ExpectBox(kFillFullName);
  driver->Press("nextt");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(driver->Focused(), "lastname");
  EXPECT_EQ(portal.TabStrip1.Selected, 0);
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, ABlankFirstNameIsRefused) {
  Open(portal);
  TypeStudent("Ng", "", "7");
  screen.ExpectBox(kFillFullName);
  driver->Press("nextt");
  EXPECT_EQ(driver->Focused(), "firstname");
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, ABlankIdIsRefused) {
  Open(portal);
  TypeStudent("Ng", "Ada", "   ");
  screen.ExpectBox(kFillFullName);
  driver->Press("Exitt");
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, ADuplicateIdKeepsTheTeacherOnTheFieldAndNothingIsStored) {
  Enrol("Ng", "Ada", " 7 ");
  Open(portal);
  TypeStudent("Li", "Bo", "7 ");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("nextt");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_EQ(portal.id.SelStart, 0);
  EXPECT_EQ(portal.id.SelLength, 2);
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAddTest, ADuplicateOfTheLastStudentIsFoundToo) {
  Open(portal);
  TypeStudent("Ng", "Ada", "7");
  driver->Press("nextt");
  TypeStudent("Li", "Bo", "7");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("Exitt");
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmAddTest, ADuplicateIdIsToldBeforeAMissingName) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  driver->Type("id", "7");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("nextt");
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddTest, AnEditIsRefusedWhileTheFileHasTheIdTwice) {
  Enrol("Ng", "Ada", "7");
  Enrol("Li", "Bo", "7");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Type("phone", "555");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("nextt");
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_EQ(Current().Students[2].phone, "");
}

TEST_F(FrmAddTest, IdsThatDifferInCaseAreDifferent) {
  Enrol("Ng", "Ada", "a7");
  Open(portal);
  TypeStudent("Li", "Bo", "A7");
  driver->Press("nextt");
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(FrmAddTest, AStudentKeepsTheirOwnId) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Type("id", "7");
  driver->Press("nextt");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddTest, NextOnAnEmptyNewStudentIsRefused) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  screen.ExpectBox(kFillFullName);
  driver->Press("nextt");
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(portal.Position, 2);
}

TEST_F(FrmAddTest, PreviousOnAnEmptyNewStudentShowsTheLastWithoutAsking) {
  Enrol("Ng", "Ada", "7");
  Enrol("Li", "Bo", "8").phone = " 555 ";
  Open(portal);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_TRUE(portal.RecordExists());
  EXPECT_EQ(driver->Text("lastname"), "Li");
  EXPECT_EQ(driver->Text("phone"), "555");
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAddTest, PreviousStoresTheNewStudentAndMovesBack) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  TypeStudent("Li", "Bo", "8");
  driver->Press("PREVIOUS");
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[2].id, "8");
  EXPECT_EQ(portal.Position, 1);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
}

TEST_F(FrmAddTest, PreviousWithOnlyACommentIsHeldToTheRequiredFields) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  driver->Type("comments", "sits in front");
  screen.ExpectBox(kFillFullName);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(driver->Text("comments"), "sits in front");
}

TEST_F(FrmAddTest, PreviousStopsAtTheFirstStudent) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.Position, 1);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
}

TEST_F(FrmAddTest, PreviousInAnEmptyClassStaysAtTheFirstPlace) {
  Open(portal);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.Position, 1);
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, NextWalksForwardAmongTheStudentsToANewPlace) {
  Enrol("Ng", "Ada", "7");
  Enrol("Li", "Bo", "8");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Press("PREVIOUS");
  driver->Type("email", "ada@example.org");
  driver->Press("nextt");
  EXPECT_EQ(Current().Students[1].email, "ada@example.org");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(driver->Text("lastname"), "Li");
  driver->Press("nextt");
  EXPECT_EQ(portal.Position, 3);
  EXPECT_EQ(driver->Text("lastname"), "");
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(FrmAddTest, WalkingThroughWithoutEditingChangesNothing) {
  Enrol("Ng", "Ada", "7").parent = " Per ";
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Press("nextt");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(Current().Students[1].parent, " Per ");
}

TEST_F(FrmAddTest, ExitStoresTheStudentAndSortsByName) {
  Enrol("Ng", "Ada", "1");
  Open(portal);
  TypeStudent("Abel", "Bo", "2");
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Abel");
  EXPECT_EQ(Current().Students[2].lastname, "Ng");
}

TEST_F(FrmAddTest, ExitSortsByIdWhenTheNameModeSaysSo) {
  NameMode = 82;
  Enrol("Abel", "Bo", "2");
  Open(portal);
  TypeStudent("Ng", "Ada", "1");
  driver->Press("Exitt");
  EXPECT_EQ(Current().Students[1].id, "1");
}

TEST_F(FrmAddTest, ExitFromAnEmptyPlaceLeavesWithTheStudentsAddedBeforeSorted) {
  Open(portal);
  TypeStudent("Ng", "Ada", "1");
  driver->Press("nextt");
  TypeStudent("Abel", "Bo", "2");
  driver->Press("nextt");
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Abel");
}

TEST_F(FrmAddTest, ExitWithNothingEnteredAddsNothing) {
  Open(portal);
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAddTest, CancelWithEmptyRequiredFieldsLeavesAtOnce) {
  Open(portal);
  driver->Type("comments", "half a thought");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, CancelAsksWhenDataWasEntered) {
  Open(portal);
  driver->Type("lastname", "Ng");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kNo);
  driver->Press("cancel");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "Cancel");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kQuestion);
}

TEST_F(FrmAddTest, CancelDropsTheStudentInProgressAndKeepsThoseStored) {
  Open(portal);
  TypeStudent("Ng", "Ada", "1");
  driver->Press("nextt");
  TypeStudent("Li", "Bo", "2");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Current().Students.size(), 2u);
  EXPECT_EQ(Current().Students[1].id, "1");
}

TEST_F(FrmAddTest, CancelWithdrawsARecordBegunButNotStored) {
  Enrol("Ng", "Ada", "1");
  Open(portal);
  portal.NewStudentRecord();
  ASSERT_EQ(Current().NumStudents, 2);
  driver->Type("lastname", "Li");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Current().Students.size(), 2u);
  EXPECT_EQ(Current().Students[1].lastname, "Ng");
}

TEST_F(FrmAddTest, ARecordBegunIsNotLeftWithoutItsRequiredFields) {
  Open(portal);
  portal.NewStudentRecord();
  driver->Press("Exitt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddTest, CancelWhileEditingAnEarlierStudentLeavesTheRecordAsItWas) {
  Enrol("Ng", "Ada", "1");
  Enrol("Li", "Bo", "2");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Type("lastname", "Lee");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[2].lastname, "Li");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmAddTest, CancelWhileAStudentIsOnlyShownAsksNothing) {
  Enrol("Ng", "Ada", "1");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddTest, ClosingTheWindowIsCancelling) {
  Open(portal);
  driver->Type("id", "7");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmAddTest, AnIdRefusedOnceIsCheckedAgain) {
  Enrol("Ng", "Ada", "7");
  Open(portal);
  TypeStudent("Li", "Bo", "7");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("nextt");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("PREVIOUS");
  driver->Type("id", "8");
  driver->Press("nextt");
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(FrmAddTest, AnotherFieldEditedLeavesNamesAndIdByteForByte) {
  Enrol(" Ng ", "Ada  ", "7   ");
  Open(portal);
  driver->Press("PREVIOUS");
  driver->Type("phone", "555");
  driver->Press("nextt");
  const Student& ada = Current().Students[1];
  EXPECT_EQ(ada.lastname, " Ng ");
  EXPECT_EQ(ada.firstname, "Ada  ");
  EXPECT_EQ(ada.id, "7   ");
  EXPECT_EQ(ada.phone, "555");
}

}  // namespace
}  // namespace tallyroll
