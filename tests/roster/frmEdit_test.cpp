// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmEdit.h"

#include <vector>

#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

const std::string kCancelQuestion = "Data has been changed. Are you sure you want to CANCEL?";

class FrmEditTest : public RosterTest {
 protected:
  FrmEditTest() {
    OpenState = 25;
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1").comments = "reads a lot";
    Enrol("Orr", "Cy", "3");
  }
  void OpenAt(i16 student) {
    CurrentStudent = student;
    Open(portal);
  }

  frmEdit portal;
};

TEST_F(FrmEditTest, TheListFollowsTheNameMode) {
  OpenAt(0);
  EXPECT_EQ(portal.List1.List, (std::vector<std::string>{"Li, Bo\t2", "Ng, Ada\t1", "Orr, Cy\t3"}));
}

TEST_F(FrmEditTest, WithTheIdFirstTheListHasItFirst) {
  NameMode = 82;
  OpenAt(0);
  EXPECT_EQ(portal.List1.List.at(0), "2\tLi, Bo");
}

TEST_F(FrmEditTest, WithoutIdsTheListHasTheNamesAlone) {
  NameMode = 57;
  OpenAt(0);
  EXPECT_EQ(portal.List1.List, (std::vector<std::string>{"Li, Bo", "Ng, Ada", "Orr, Cy"}));
}

TEST_F(FrmEditTest, WithoutNamesTheListHasTheIdsAlone) {
  NameMode = 73;
  OpenAt(0);
  EXPECT_EQ(portal.List1.List, (std::vector<std::string>{"2", "1", "3"}));
}

TEST_F(FrmEditTest, AnEmptyClassGivesAnEmptyList) {
  Current().NumStudents = 0;
  Current().Students.clear();
  OpenAt(0);
  EXPECT_TRUE(portal.List1.List.empty());
  driver->Press("nextt");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEditTest, TheStudentHandedOverIsShown) {
  OpenAt(2);
  EXPECT_EQ(portal.List1.ListIndex, 1);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
  EXPECT_EQ(driver->Text("comment"), "reads a lot");
  EXPECT_EQ(driver->Focused(), "lastname");
}

TEST_F(FrmEditTest, WithoutAStudentTheFieldsWaitForAPick) {
  OpenAt(0);
  EXPECT_EQ(portal.List1.ListIndex, -1);
  EXPECT_FALSE(driver->Enabled("lastname"));
  EXPECT_FALSE(driver->Enabled("comment"));
  EXPECT_EQ(driver->Focused(), "List1");
  driver->Choose("List1", 2);
  EXPECT_TRUE(driver->Enabled("lastname"));
  EXPECT_EQ(driver->Text("lastname"), "Orr");
  EXPECT_EQ(CurrentStudent, 3);
}

TEST_F(FrmEditTest, AClickOnALineThatTheListAlreadyStandsOnPicks) {
  OpenAt(0);
  portal.List1.ListIndex = 0;
  driver->Press("List1");
  EXPECT_EQ(driver->Text("lastname"), "Li");
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(FrmEditTest, AStudentBeyondTheClassIsNone) {
  OpenAt(4);
  EXPECT_EQ(portal.List1.ListIndex, -1);
}

TEST_F(FrmEditTest, OpenedAtTheCommentTheFocusIsThere) {
  OpenState = kEditAtComment;
  OpenAt(1);
  EXPECT_EQ(driver->Focused(), "comment");
  EXPECT_EQ(portal.TabStrip1.Selected, 0);
}

TEST_F(FrmEditTest, OpenedAtTheCommentAPickGoesOnToIt) {
  OpenState = kEditAtComment;
  OpenAt(0);
  driver->Choose("List1", 1);
  EXPECT_EQ(driver->Focused(), "comment");
  EXPECT_EQ(driver->Text("comment"), "reads a lot");
}

TEST_F(FrmEditTest, OpenedAtTheCommentNextGoesOnToTheNextComment) {
  OpenState = kEditAtComment;
  OpenAt(1);
  driver->Press("nextt");
  EXPECT_EQ(driver->Focused(), "comment");
  EXPECT_EQ(driver->Text("comment"), "reads a lot");
}

TEST_F(FrmEditTest, AnOrdinaryPickLeavesTheFocusInTheList) {
  OpenAt(0);
  driver->Choose("List1", 1);
  EXPECT_EQ(driver->Focused(), "List1");
}

TEST_F(FrmEditTest, ChangingTabsWithoutAStudentIsRefused) {
  OpenAt(0);
  screen.ExpectBox("Please select a student");
  driver->PickTab("TabStrip1", 1);
  EXPECT_EQ(portal.TabStrip1.Selected, 0);
  EXPECT_EQ(driver->Focused(), "List1");
}

TEST_F(FrmEditTest, ChangingTabsWithAStudentIsFree) {
  OpenAt(1);
  driver->PickTab("TabStrip1", 2);
  EXPECT_EQ(portal.TabStrip1.Selected, 2);
}

TEST_F(FrmEditTest, ExitStoresTheShownStudent) {
  OpenAt(1);
  driver->Type("phone", " 555 ");
  EXPECT_EQ(portal.Dirty, 1);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Students[1].phone, "555");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmEditTest, ExitWithoutAnEditChangesNothing) {
  OpenAt(1);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEditTest, ExitWithoutAStudentLeaves) {
  OpenAt(0);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEditTest, ExitIsRefusedWithABlankName) {
  OpenAt(1);
  driver->Type("firstname", "");
  screen.ExpectBox(kFillFullName);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "firstname");
  EXPECT_EQ(Current().Students[1].firstname, "Bo");
}

TEST_F(FrmEditTest, AnIdOfAnotherStudentIsRefused) {
  OpenAt(1);
  driver->PickTab("TabStrip1", 0);
  driver->Type("id", "3");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_EQ(portal.id.SelLength, 1);
  EXPECT_EQ(Current().Students[1].id, "2");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEditTest, AnEditIsRefusedWhileTheFileHasTheIdTwice) {
  Current().Students[3].id = "2 ";
  OpenAt(1);
  driver->Type("phone", "555");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Press("exit");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_EQ(Current().Students[1].phone, "");
}

TEST_F(FrmEditTest, AStudentThatNobodyEditsIsLeftThoughTheFileHasTheIdTwice) {
  Current().Students[3].id = "2 ";
  OpenAt(1);
  driver->Press("nextt");
  EXPECT_EQ(portal.Position, 2);
}

TEST_F(FrmEditTest, AnotherFieldEditedLeavesNamesAndIdByteForByte) {
  Student& li = Current().Students[1];
  li.lastname = "Li   ";
  li.firstname = " Bo ";
  li.id = " 2          ";
  OpenAt(1);
  EXPECT_EQ(driver->Text("firstname"), "Bo");
  driver->Type("phone", "555");
  driver->Press("exit");
  EXPECT_EQ(li.lastname, "Li   ");
  EXPECT_EQ(li.firstname, " Bo ");
  EXPECT_EQ(li.id, " 2          ");
  EXPECT_EQ(li.phone, "555");
}

TEST_F(FrmEditTest, EachNameAndTheIdAreWrittenWhenTheyAreEdited) {
  Student& li = Current().Students[1];
  li.firstname = "Bo   ";
  OpenAt(1);
  driver->Type("lastname", "Li ");
  driver->Type("id", "20 ");
  driver->Press("exit");
  EXPECT_EQ(li.lastname, "Li ");
  EXPECT_EQ(li.firstname, "Bo   ");
  EXPECT_EQ(li.id, "20");
}

TEST_F(FrmEditTest, TheOtherFieldsAreWrittenTrimmed) {
  Current().Students[1].parent = " Per ";
  OpenAt(1);
  driver->Type("comment", " late ");
  driver->Press("exit");
  EXPECT_EQ(Current().Students[1].parent, "Per");
  EXPECT_EQ(Current().Students[1].comments, "late");
}

TEST_F(FrmEditTest, ShorteningTheLongestNameKeepsTheWidths) {
  Current().LastNameWidth = 3;
  Current().FirstNameWidth = 3;
  OpenAt(3);
  driver->Type("lastname", "Abernathy");
  driver->Press("PREVIOUS");
  EXPECT_EQ(Current().LastNameWidth, 9);
  driver->Press("nextt");
  driver->Type("lastname", "Xu");
  driver->Press("PREVIOUS");
  driver->Type("firstname", "Jo");  // Ada, one of the longest
  driver->Press("exit");
  EXPECT_EQ(Current().LastNameWidth, 9);
  EXPECT_EQ(Current().FirstNameWidth, 3);
}

TEST_F(FrmEditTest, ALastNameOf30CharactersLeavesNothingToTypeInTheFirstName) {
  OpenAt(1);
  driver->Type("firstname", "");
  driver->Type("lastname", std::string(30, 'x'));
  EXPECT_EQ(portal.firstname.MaxLength, -1);
}

TEST_F(FrmEditTest, NextStoresAndMovesTheSelection) {
  OpenAt(1);
  driver->Type("lastname", "Lee");
  driver->Press("nextt");
  EXPECT_EQ(Current().Students[1].lastname, "Lee");
  EXPECT_EQ(portal.List1.ListIndex, 1);
  EXPECT_EQ(CurrentStudent, 2);
  EXPECT_EQ(driver->Text("lastname"), "Ng");
  EXPECT_EQ(portal.Dirty, 0);
}

TEST_F(FrmEditTest, PreviousStoresAndMovesTheSelection) {
  OpenAt(2);
  driver->Type("comment", "");
  driver->Press("PREVIOUS");
  EXPECT_EQ(Current().Students[2].comments, "");
  EXPECT_EQ(portal.List1.ListIndex, 0);
}

TEST_F(FrmEditTest, NextAtTheLastStudentStoresAndStays) {
  OpenAt(3);
  driver->Type("zip", "0150");
  driver->Press("nextt");
  EXPECT_EQ(portal.List1.ListIndex, 2);
  EXPECT_EQ(Current().Students[3].zip, "0150");
}

TEST_F(FrmEditTest, PreviousAtTheFirstStudentStays) {
  OpenAt(1);
  driver->Press("PREVIOUS");
  EXPECT_EQ(portal.List1.ListIndex, 0);
  EXPECT_EQ(portal.Position, 1);
}

TEST_F(FrmEditTest, NextWithoutAStudentTakesTheFirst) {
  OpenAt(0);
  driver->Press("nextt");
  EXPECT_EQ(portal.List1.ListIndex, 0);
  EXPECT_EQ(driver->Text("lastname"), "Li");
}

TEST_F(FrmEditTest, PickingAnotherStudentStoresTheShownOne) {
  OpenAt(1);
  driver->Type("lastname", "Zorn");
  driver->Choose("List1", 2);
  EXPECT_EQ(Current().Students[1].lastname, "Zorn");
  EXPECT_EQ(portal.List1.List.at(0), "Zorn, Bo\t2");
  EXPECT_EQ(driver->Text("lastname"), "Orr");
  EXPECT_EQ(Current().LastNameWidth, 4);
}

TEST_F(FrmEditTest, ARefusedPickPutsTheSelectionBack) {
  OpenAt(1);
  driver->Type("id", "1");
  screen.ExpectBox(kIdMustBeUnique);
  driver->Choose("List1", 2);
  EXPECT_EQ(portal.List1.ListIndex, 0);
  EXPECT_EQ(driver->Text("lastname"), "Li");
  EXPECT_EQ(driver->Text("id"), "1");
  EXPECT_EQ(driver->Focused(), "id");
  EXPECT_EQ(Current().Students[1].id, "2");
}

TEST_F(FrmEditTest, ARefusedPickAtTheCommentLeavesTheFocusInTheFieldToMend) {
  OpenState = kEditAtComment;
  OpenAt(1);
  driver->Type("lastname", "");
  screen.ExpectBox(kFillFullName);
  driver->Choose("List1", 2);
  EXPECT_EQ(driver->Focused(), "lastname");
}

TEST_F(FrmEditTest, TheSameIdTypedAgainIsTheStudentsOwn) {
  OpenAt(1);
  driver->Type("id", "2");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEditTest, NamesLongerThanTheLimitAreShownWhole) {
  Current().Students[1].lastname = std::string(40, 'x');
  OpenAt(1);
  EXPECT_EQ(driver->Text("lastname"), std::string(40, 'x'));
  EXPECT_EQ(portal.lastname.MaxLength, 40);
  EXPECT_EQ(portal.firstname.MaxLength, 2);
}

TEST_F(FrmEditTest, AnIdLongerThanTheLimitIsShownWhole) {
  Current().Students[1].id = "2026-09-0123456";
  OpenAt(1);
  EXPECT_EQ(portal.id.MaxLength, 15);
  driver->Press("nextt");
  EXPECT_EQ(portal.id.MaxLength, 12);
}

TEST_F(FrmEditTest, CancelWithoutAnEditLeavesAtOnce) {
  OpenAt(1);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmEditTest, CancelAfterAnEditAsks) {
  OpenAt(1);
  driver->Type("lastname", "Lee");
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kNo);
  driver->Press("cancel");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
  EXPECT_EQ(driver->Text("lastname"), "Lee");
}

TEST_F(FrmEditTest, CancelLeavesTheStoredRecordAsItWas) {
  OpenAt(1);
  driver->Type("lastname", "Lee");
  driver->Type("phone", "555");
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Students[1].lastname, "Li");
  EXPECT_EQ(Current().Students[1].phone, "");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmEditTest, ClosingTheWindowIsCancelling) {
  OpenAt(1);
  driver->Type("zip", "9");
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmEditTest, CopyNeedsASelection) {
  OpenAt(2);
  screen.clipboard = "kept";
  screen.ExpectBox(
      "You must first select the comment you wish to copy to the clipboard. Select the comment by "
      "dragging the mouse across the text you want to select, and then release the mouse button.");
  driver->Press("copy");
  EXPECT_EQ(screen.clipboard, "kept");
  EXPECT_EQ(driver->Focused(), "comment");
}

TEST_F(FrmEditTest, CopyWithoutAStudentLeadsToTheList) {
  OpenAt(0);
  screen.ExpectBox(
      "You must first select the comment you wish to copy to the clipboard. Select the comment by "
      "dragging the mouse across the text you want to select, and then release the mouse button.");
  driver->Press("copy");
  EXPECT_EQ(driver->Focused(), "List1");
}

TEST_F(FrmEditTest, CopyPutsTheSelectedTextOnTheClipboard) {
  OpenAt(2);
  portal.comment.SelStart = 6;
  portal.comment.SelLength = 5;
  driver->Press("copy");
  EXPECT_EQ(screen.clipboard, "a lot");
  EXPECT_EQ(portal.Dirty, 0);
}

TEST_F(FrmEditTest, PasteInsertsAtTheCaret) {
  OpenAt(2);
  screen.clipboard = "hardly ";
  portal.comment.SelStart = 0;
  driver->Press("paste");
  EXPECT_EQ(driver->Text("comment"), "hardly reads a lot");
  EXPECT_EQ(portal.comment.SelStart, 7);
  EXPECT_EQ(driver->Focused(), "comment");
  driver->Press("exit");
  EXPECT_EQ(Current().Students[2].comments, "hardly reads a lot");
}

TEST_F(FrmEditTest, PasteReplacesTheSelection) {
  OpenAt(2);
  screen.clipboard = "little";
  portal.comment.SelStart = 6;
  portal.comment.SelLength = 5;
  driver->Press("paste");
  EXPECT_EQ(driver->Text("comment"), "reads little");
  EXPECT_EQ(portal.comment.SelLength, 0);
}

TEST_F(FrmEditTest, PasteOfAnEmptyClipboardChangesNothing) {
  OpenAt(2);
  driver->Press("paste");
  EXPECT_EQ(portal.Dirty, 0);
}

TEST_F(FrmEditTest, PasteOfMoreThanAFileHoldsIsRefused) {
  OpenAt(2);
  screen.clipboard = std::string(65525, 'x');  // with the 11 characters there, one too many
  screen.ExpectBox("A comment can hold no more than 65535 characters.");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("comment"), "reads a lot");
  EXPECT_EQ(portal.Dirty, 0);
  EXPECT_EQ(driver->Focused(), "comment");
}

TEST_F(FrmEditTest, PasteWithoutAStudentIsRefused) {
  OpenAt(0);
  screen.clipboard = "text";
  screen.ExpectBox("Please select a student");
  driver->Press("paste");
  EXPECT_EQ(driver->Text("comment"), "");
  EXPECT_EQ(driver->Focused(), "List1");
}

}  // namespace
}  // namespace tallyroll
