// SPDX-License-Identifier: GPL-3.0-or-later
// A student read from the clipboard into the Add Student Portal.
#include "roster/frmAdd.h"
#include "store/class_defaults.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

const std::string kAlreadyRead = "You have already read this information into the class.";
const std::string kOtherClipboard =
    "There are no appropriate fields to be found on the clipboard. The data on the clipboard may "
    "not be the right type for inserting in the current module.  You need to go back to a "
    "compatible module, then copy the information to the clipboard and try again.";

std::string Clipboard(const std::string& lastname = "Ng", const std::string& id = "7") {
  return "3z\r" + lastname + "\rAda\r" + id +
         "\r=\r555\r=\r=\r=\rOslo\r=\r=\r=\rone\r\ntwo<END FIELD>\r2\r1\r1\r95\rA-\rT\r3    \r12\r"
         " 1/ 2/ 0/ 0/\r";
}

class FrmAddClipboardTest : public RosterTest {
 protected:
  FrmAddClipboardTest() {
    Current().NumInstruments = 3;
    Current().NumDays = 2;
    Current().NumSummaries = 1;
    screen.clipboard = Clipboard();
  }
  static const Student& Last() { return Current().Students.back(); }
  frmAdd portal;
};

TEST_F(FrmAddClipboardTest, TheFieldsStandOnTheFormAndTheListsInTheRecord) {
  Open(portal);
  driver->Press("addclip");
  EXPECT_EQ(driver->Text("lastname"), "Ng");
  EXPECT_EQ(driver->Text("id"), "7");
  EXPECT_EQ(driver->Text("parent"), "");
  EXPECT_EQ(driver->Text("city"), "Oslo");
  EXPECT_EQ(driver->Text("comments"), "one\r\ntwo");
  ASSERT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Last().Marks[1], "95");
  EXPECT_EQ(Last().Marks[2], "A-");
  EXPECT_EQ(Last().Marks[3], "NEW");
  EXPECT_EQ(Last().DailyMarks[1], "T");
  EXPECT_EQ(Last().DailyMarks[2], " ");
  EXPECT_EQ(Last().SummaryLate[1], "12");
  driver->Press("Exitt");
  EXPECT_EQ(Last().lastname, "Ng");
  EXPECT_EQ(Last().phone, "555");
  EXPECT_EQ(Last().comments, "one\r\ntwo");
  EXPECT_EQ(Last().parent, "");
  EXPECT_EQ(Last().Marks[1], "95");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmAddClipboardTest, AClassWithFewerGradesKeepsOnlyTheFirstMarks) {
  Current().NumInstruments = 1;
  Open(portal);
  driver->Press("addclip");
  driver->Press("Exitt");
  EXPECT_EQ(UpperBound(Last().Marks), 1);
  EXPECT_EQ(Last().Marks[1], "95");
}

TEST_F(FrmAddClipboardTest, TheSameClipboardIsNotReadTwice) {
  Open(portal);
  driver->Press("addclip");
  screen.ExpectBox(kAlreadyRead);
  driver->Press("addclip");
  driver->Press("nextt");
  screen.ExpectBox(kAlreadyRead);
  driver->Press("addclip");
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(FrmAddClipboardTest, AnotherStudentMayFollow) {
  Open(portal);
  driver->Press("addclip");
  screen.clipboard = Clipboard("Le", "8");
  driver->Press("addclip");
  driver->Press("Exitt");
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Le");
  EXPECT_EQ(Current().Students[2].lastname, "Ng");
}

TEST_F(FrmAddClipboardTest, WhatWasTypedIsStoredFirst) {
  Open(portal);
  TypeStudent("Orr", "Cy", "3");
  driver->Press("addclip");
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Orr");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
}

TEST_F(FrmAddClipboardTest, WhatWasTypedIsCheckedAsByNext) {
  Open(portal);
  driver->Type("lastname", "Orr");
  screen.ExpectBox(kFillFullName, BoxAnswer::kOk);
  driver->Press("addclip");
  EXPECT_EQ(driver->Text("lastname"), "Orr");
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddClipboardTest, FromAnEarlierStudentItGoesBehindTheLast) {
  Enrol("Abel", "Bo", "1");
  Open(portal);
  driver->Press("PREVIOUS");
  EXPECT_EQ(driver->Text("lastname"), "Abel");
  driver->Press("addclip");
  EXPECT_EQ(portal.Position, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Abel");
  EXPECT_EQ(driver->Text("lastname"), "Ng");
}

TEST_F(FrmAddClipboardTest, AnotherClipboardIsRefusedAndNothingChanges) {
  Open(portal);
  TypeStudent("Orr", "Cy", "3");
  for (const char* text : {"", "hello", "8z\rTitle\r", "z3"}) {
    screen.clipboard = text;
    screen.ExpectBox(kOtherClipboard);
    driver->Press("addclip");
  }
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_EQ(driver->Text("lastname"), "Orr");
}

TEST_F(FrmAddClipboardTest, ADamagedClipboardIsRefusedAndNothingChanges) {
  Open(portal);
  screen.clipboard = Clipboard().substr(0, 40);
  screen.ExpectBox("Can not read from Clipboard.");
  driver->Press("addclip");
  EXPECT_EQ(driver->Text("lastname"), "");
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmAddClipboardTest, AClashOfIdsEndsTheReadAndWaitsForAnotherId) {
  Enrol("Abel", "Bo", "7");
  Open(portal);
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("addclip");
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(driver->Focused(), "id");
  driver->Type("id", "77");
  driver->Press("Exitt");
  ASSERT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[2].id, "77");
  EXPECT_EQ(Current().Students[2].Marks[1], "95");
}

TEST_F(FrmAddClipboardTest, AnotherStudentTypedAfterAClashIsNew) {
  Enrol("Abel", "Bo", "7");
  Open(portal);
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("addclip");
  TypeStudent("Orr", "Cy", "8");
  driver->Press("Exitt");
  EXPECT_EQ(Current().Students[2].Marks[1], "NEW");
}

TEST_F(FrmAddClipboardTest, CancelWithdrawsTheStudentAgain) {
  Open(portal);
  driver->Press("addclip");
  screen.ExpectBox("Data has been entered. Are you sure you want to CANCEL?", BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmAddClipboardTest, ALongIdAndLongNamesStandWhole) {
  screen.clipboard = Clipboard(std::string(40, 'n'), "1234567890123456");
  Open(portal);
  driver->Press("addclip");
  driver->Press("Exitt");
  EXPECT_EQ(Last().lastname, std::string(40, 'n'));
  EXPECT_EQ(Last().id, "1234567890123456");
}

TEST_F(FrmAddClipboardTest, AValueThatBeginsLikeNothingArrives) {
  Student ada;
  ada.lastname = "Ng";
  ada.firstname = "Ada";
  ada.id = "=7";
  ada.comments = "=5 points";
  screen.clipboard = StudentOnClipboard(ada, false);
  Open(portal);
  driver->Press("addclip");
  EXPECT_EQ(driver->Text("comments"), "=5 points");
  driver->Press("Exitt");
  EXPECT_EQ(Last().id, "=7");
  EXPECT_EQ(Last().comments, "=5 points");
}

TEST_F(FrmAddClipboardTest, AFullClassTakesNobody) {
  constexpr int kMost = 32767;
  Class& c = Current();
  c.NumStudents = kMost;
  ReDim(c.Students, kMost);
  c.Students.back().lastname = "Zorn";
  c.Students.back().firstname = "Ed";
  c.Students.back().id = "9";
  const std::string full = "You may only have 32767 students in a class.";
  screen.ExpectBox(full);
  Open(portal);
  EXPECT_EQ(driver->Text("lastname"), "Zorn");
  screen.ExpectBox(full);
  driver->Press("nextt");
  screen.ExpectBox(full);
  driver->Press("addclip");
  EXPECT_EQ(driver->Text("lastname"), "Zorn");
  driver->Press("Exitt");
  EXPECT_EQ(c.NumStudents, kMost);
  EXPECT_EQ(c.Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
