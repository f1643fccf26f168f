// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/frmfind.h"

#include <optional>

#include "platform/portal_driver.h"
#include "store/settings.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

std::string ran;

FindEntry EntryOf(FindKind kind, const std::string& text, const std::string& place = "") {
  return {.kind = kind,
          .name = kind == FindKind::kCommand ? "mnu" + text.substr(0, 3) : "",
          .text = text,
          .place = place,
          .run = [text] { ran += text + ";"; }};
}

std::vector<FindEntry> FewEntries() {
  std::vector<FindEntry> entries = {EntryOf(FindKind::kStudent, "Graham, Ada", "Student, ID 7"),
                                    EntryOf(FindKind::kStudent, "Young, Bo", "Student, ID 8"),
                                    EntryOf(FindKind::kGrade, "Quiz 5", "Grade Q5"),
                                    EntryOf(FindKind::kCommand, "Grades", "Records"),
                                    EntryOf(FindKind::kCommand, "Seating Chart", "Tools"),
                                    EntryOf(FindKind::kHelp, "Entering a grade", "Help")};
  entries[3].key = "Ctrl+G";
  entries[4].reason = "The class has no students yet.";
  return entries;
}

class FrmFindTest : public PortalTest {
 protected:
  FrmFindTest() {
    MakeFindEntries = FewEntries;
    FindStarts = FindFirst::kStudents;
    ChosenFind = nullptr;
    ran.clear();
  }
  ~FrmFindTest() override {
    MakeFindEntries = nullptr;
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }
  void Open() {
    portal.Load();
    driver.emplace(portal);
  }
  frmfind portal;
  std::optional<PortalDriver> driver;
};

using Lines = std::vector<std::string>;

TEST_F(FrmFindTest, FindBeginsWithStudentsGradesAndClasses) {
  Open();
  EXPECT_EQ(portal.Caption, "Find");
  EXPECT_EQ(portal.found.List, (Lines{"Graham, Ada\tStudent, ID 7\t", "Young, Bo\tStudent, ID 8\t",
                                      "Quiz 5\tGrade Q5\t"}));
  EXPECT_EQ(portal.found.ListIndex, 0);
  EXPECT_EQ(driver->Focused(), "typed");
}

TEST_F(FrmFindTest, CommandBeginsWithCommands) {
  FindStarts = FindFirst::kCommands;
  Open();
  EXPECT_EQ(portal.Caption, "Command");
  EXPECT_EQ(portal.found.List,
            (Lines{"Grades\tRecords\tCtrl+G", "Seating Chart\tThe class has no students yet.\t"}));
}

// The text itself counts before its place; the help, which only explains, comes last.
TEST_F(FrmFindTest, WhatIsTypedIsSoughtInEverything) {
  Open();
  driver->Type("typed", "gra");
  EXPECT_EQ(portal.found.List, (Lines{"Graham, Ada\tStudent, ID 7\t", "Grades\tRecords\tCtrl+G",
                                      "Quiz 5\tGrade Q5\t", "Entering a grade\tHelp\t"}));
  EXPECT_EQ(driver->Text("note"), "4 found");
}

TEST_F(FrmFindTest, AStudentIsFoundByTheIdToo) {
  Open();
  driver->Type("typed", "8");
  EXPECT_EQ(portal.found.List, (Lines{"Young, Bo\tStudent, ID 8\t"}));
  EXPECT_EQ(driver->Text("note"), "1 found");
}

TEST_F(FrmFindTest, NothingFoundSaysSoAndLeadsNowhere) {
  Open();
  driver->Type("typed", "zebra");
  EXPECT_TRUE(portal.found.List.empty());
  EXPECT_EQ(driver->Text("note"), "Nothing of that name");
  EXPECT_FALSE(driver->Enabled("go"));
  driver->PressKey("typed", Key::kDown);
  EXPECT_EQ(portal.found.ListIndex, -1);
}

TEST_F(FrmFindTest, KeysInTheTextWalkTheList) {
  Open();
  driver->PressKey("typed", Key::kDown);
  driver->PressKey("typed", Key::kDown);
  EXPECT_EQ(portal.found.ListIndex, 2);
  EXPECT_EQ(driver->Text("note"), "Grade Q5");
  driver->PressKey("typed", Key::kDown);
  EXPECT_EQ(portal.found.ListIndex, 2);
  driver->PressKey("typed", Key::kPageUp);
  EXPECT_EQ(portal.found.ListIndex, 0);
  driver->PressKey("typed", Key::kUp);
  EXPECT_EQ(portal.found.ListIndex, 0);
  driver->PressKey("typed", Key::kPageDown);
  EXPECT_EQ(portal.found.ListIndex, 2);
}

TEST_F(FrmFindTest, GoHandsOverWhatWasChosenAndLeaves) {
  Open();
  driver->Type("typed", "quiz");
  driver->Press("go");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ran, "");
  ASSERT_TRUE(ChosenFind);
  ChosenFind();
  EXPECT_EQ(ran, "Quiz 5;");
}

TEST_F(FrmFindTest, WhatCannotBeHadIsListedWithItsReasonAndStays) {
  Open();
  driver->Type("typed", "seating");
  EXPECT_EQ(driver->Text("note"), "The class has no students yet.");
  driver->Press("go");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_FALSE(ChosenFind);
}

TEST_F(FrmFindTest, WhatWasUsedLastStandsOnTopByItsName) {
  FindStarts = FindFirst::kCommands;
  RememberFind(FewEntries()[4]);
  Open();
  EXPECT_EQ(portal.found.List,
            (Lines{"Seating Chart\tThe class has no students yet.\t", "Grades\tRecords\tCtrl+G"}));
}

TEST_F(FrmFindTest, EightAreRememberedAndNoStudents) {
  for (int i = 0; i < 10; ++i) {
    FindEntry entry{.kind = FindKind::kCommand, .name = "mnu" + std::to_string(i)};
    RememberFind(entry);
  }
  RememberFind(FewEntries()[0]);
  RememberFind({.kind = FindKind::kCommand, .name = "mnu5"});
  EXPECT_EQ(RecentFinds(), (Lines{"mnu5", "mnu9", "mnu8", "mnu7", "mnu6", "mnu4", "mnu3", "mnu2"}));
}

TEST_F(FrmFindTest, MoreThanTwoHundredAreCountedButNotListed) {
  MakeFindEntries = [] {
    return std::vector<FindEntry>(300, EntryOf(FindKind::kStudent, "Twin, Ada"));
  };
  Open();
  driver->Type("typed", "twin");
  EXPECT_EQ(portal.found.List.size(), 200U);
  EXPECT_EQ(driver->Text("note"), "300 found");
}

}  // namespace
}  // namespace tallyroll
