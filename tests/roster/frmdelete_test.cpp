// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmdelete.h"

#include "roster/student_clipboard.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

const std::string kSelectOne = "You must select a student to delete or press Exit.";

class FrmDeleteTest : public RosterTest {
 protected:
  FrmDeleteTest() {
    Enrol("Le", "Bo", "2");
    Enrol("Ng ", "Ada", " 1 ");
    Enrol("Zimmermann", "Alexandra", "3");
    Current().LastNameWidth = 10;
    Current().FirstNameWidth = 9;
  }
  static std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int i = 1; i <= Current().NumStudents; ++i)
      names.push_back(Current().Students.at(static_cast<std::size_t>(i)).firstname);
    return names;
  }
  frmdelete portal;
};

TEST_F(FrmDeleteTest, ListsTheStudentsAsTheDisplayHasThem) {
  NameMode = 82;
  Open(portal);
  EXPECT_EQ(portal.List1.List,
            (std::vector<std::string>{"2\tLe, Bo", "1\tNg, Ada", "3\tZimmermann, Alexandra"}));
  EXPECT_EQ(portal.List1.ListIndex, -1);
  EXPECT_EQ(driver->Text("info"), "All Information (incl. grades)");
  EXPECT_EQ(driver->Text("nid"), "Basic Info");
  EXPECT_TRUE(portal.info.Value);
}

TEST_F(FrmDeleteTest, ThePickIsTheCurrentStudent) {
  CurrentStudent = 2;
  Open(portal);
  EXPECT_EQ(CurrentStudent, 0);
  driver->Choose("List1", 2);
  EXPECT_EQ(CurrentStudent, 3);
}

TEST_F(FrmDeleteTest, WithoutAPickNothingIsDeleted) {
  Open(portal);
  screen.ExpectBox(kSelectOne);
  driver->Press("delete");
  screen.ExpectBox(kSelectOne);
  driver->Press("delclip");
  EXPECT_EQ(Current().NumStudents, 3);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(screen.clipboard, "");
}

TEST_F(FrmDeleteTest, DeleteAsksAndTakesTheStudentOut) {
  Open(portal);
  driver->Choose("List1", 1);
  screen.ExpectBox("Delete 1 Ng, Ada?", BoxAnswer::kOk);
  driver->Press("delete");
  EXPECT_EQ(screen.boxes.back().title, "Delete Portal");
  EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::kOkCancel);
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kQuestion);
  EXPECT_EQ(Names(), (std::vector<std::string>{"Bo", "Alexandra"}));
  EXPECT_EQ(UpperBound(Current().Students), 2);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(portal.List1.List.size(), 2u);
  EXPECT_EQ(portal.List1.ListIndex, -1);
  EXPECT_EQ(CurrentStudent, 0);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmDeleteTest, CancelKeepsTheStudent) {
  Open(portal);
  driver->Choose("List1", 1);
  screen.ExpectBox("Delete 1 Ng, Ada?", BoxAnswer::kCancel);
  driver->Press("delete");
  EXPECT_EQ(Current().NumStudents, 3);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(portal.List1.ListIndex, 1);
}

TEST_F(FrmDeleteTest, TheWidthsAreThoseOfTheStudentsLeft) {
  Open(portal);
  driver->Choose("List1", 2);
  screen.ExpectBox("Delete 3 Zimmermann, Alexandra?");
  driver->Press("delete");
  EXPECT_EQ(Current().LastNameWidth, 2);
  EXPECT_EQ(Current().FirstNameWidth, 3);
}

TEST_F(FrmDeleteTest, TheLastStudentLeavesAnEmptyClass) {
  Open(portal);
  for (const char* box :
       {"Delete 2 Le, Bo?", "Delete 1 Ng, Ada?", "Delete 3 Zimmermann, Alexandra?"}) {
    driver->Choose("List1", 0);
    screen.ExpectBox(box);
    driver->Press("delete");
  }
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_TRUE(portal.List1.List.empty());
  EXPECT_EQ(Current().LastNameWidth, 0);
  screen.ExpectBox(kSelectOne);
  driver->Press("delete");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmDeleteTest, DeleteToClipboardPutsTheStudentThereFirst) {
  Current().NumInstruments = 1;
  ReDim(Current().Students[2].Marks, 1, ShortText("95"));
  const std::string all = StudentOnClipboard(Current().Students[2], true);
  Open(portal);
  driver->Choose("List1", 1);
  screen.ExpectBox(
      "NOTE: The Clipboard can hold only ONE student at a time. Delete Ng, Ada and save the "
      "student "
      "to the CLIPBOARD? ",
      BoxAnswer::kOk);
  driver->Press("delclip");
  EXPECT_EQ(screen.boxes.back().title, "Delete Portal");
  EXPECT_EQ(screen.clipboard, all);
  EXPECT_EQ(Names(), (std::vector<std::string>{"Bo", "Alexandra"}));
}

TEST_F(FrmDeleteTest, BasicInfoLeavesTheMarksBehind) {
  Current().NumInstruments = 1;
  ReDim(Current().Students[2].Marks, 1, ShortText("95"));
  Open(portal);
  driver->Choose("List1", 1);
  driver->Tick("info", false);
  driver->Tick("nid");
  screen.ExpectBox(
      "NOTE: The Clipboard can hold only ONE student at a time. Delete Ng, Ada and save the "
      "student "
      "to the CLIPBOARD? ");
  driver->Press("delclip");
  EXPECT_EQ(ReadStudent(screen.clipboard)->marks, (std::vector<std::string>{"NEW  "}));
}

TEST_F(FrmDeleteTest, CancelOfTheClipboardKeepsStudentAndClipboard) {
  screen.clipboard = "before";
  Open(portal);
  driver->Choose("List1", 0);
  screen.ExpectBox(
      "NOTE: The Clipboard can hold only ONE student at a time. Delete Le, Bo and save the student "
      "to the CLIPBOARD? ",
      BoxAnswer::kCancel);
  driver->Press("delclip");
  EXPECT_EQ(screen.clipboard, "before");
  EXPECT_EQ(Current().NumStudents, 3);
}

// A clipboard that takes nothing.
class DeafSurroundings : public HeadlessSurroundings {
 public:
  void SetClipboardText(std::string_view) override {}
};

TEST_F(FrmDeleteTest, AStudentWhoDidNotReachTheClipboardStays) {
  DeafSurroundings deaf;
  SetPlatform(&deaf);
  Open(portal);
  driver->Choose("List1", 0);
  deaf.ExpectBox(
      "NOTE: The Clipboard can hold only ONE student at a time. Delete Le, Bo and save the student "
      "to the CLIPBOARD? ");
  deaf.ExpectBox("An error has occured writing on Clipboard.");
  driver->Press("delclip");
  EXPECT_EQ(Current().NumStudents, 3);
  EXPECT_TRUE(deaf.Complaints().empty());
  SetPlatform(&screen);
}

TEST_F(FrmDeleteTest, EscapeLeaves) {
  Open(portal);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmDeleteTest, AnIdThatTheClipboardWritesOtherwiseIsNoFault) {
  Open(portal);
  const std::pair<const char*, const char*> ids[] = {{"=2", " =2"}, {"  ", ""}};
  for (const auto& [id, read] : ids) {
    Current().Students[1].id = id;
    driver->Choose("List1", 0);
    const std::string name = Current().Students[1].lastname == "Le" ? "Le, Bo" : "Ng, Ada";
    screen.ExpectBox("NOTE: The Clipboard can hold only ONE student at a time. Delete " + name +
                     " and save the student to the CLIPBOARD? ");
    driver->Press("delclip");
    EXPECT_EQ(ReadStudent(screen.clipboard)->fields.id, read);
  }
  EXPECT_EQ(Current().NumStudents, 1);
}

}  // namespace
}  // namespace tallyroll
