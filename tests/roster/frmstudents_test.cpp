// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmstudents.h"

#include "roster/chosen_students.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

using Lines = std::vector<std::string>;

class FrmStudentsTest : public RosterTest {
 protected:
  FrmStudentsTest() {
    NameMode = 57;
    Enrol("Le", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Enrol("Orr", "Cy", "3");
  }
  frmstudents portal;
};

TEST_F(FrmStudentsTest, OpensWithAllStudentsAndNoneChosen) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Student Portal");
  EXPECT_EQ(driver->Text("Label3"), "For E-mail, choose only ONE student");
  EXPECT_EQ(portal.orglist.List, (Lines{"Le, Bo", "Ng, Ada", "Orr, Cy"}));
  EXPECT_TRUE(portal.printlist.List.empty());
}

TEST_F(FrmStudentsTest, EnterMovesTheChosenLineAndRemoveTakesItBack) {
  Open(portal);
  driver->Choose("orglist", 2);
  driver->Press("enter");
  driver->Choose("orglist", 0);
  driver->Press("enter");
  EXPECT_EQ(portal.orglist.List, (Lines{"Ng, Ada"}));
  EXPECT_EQ(portal.printlist.List, (Lines{"Le, Bo", "Orr, Cy"}));
  driver->Choose("printlist", 0);
  driver->Press("remove");
  EXPECT_EQ(portal.orglist.List, (Lines{"Le, Bo", "Ng, Ada"}));
  EXPECT_EQ(portal.printlist.List, (Lines{"Orr, Cy"}));
}

TEST_F(FrmStudentsTest, TheNextLineIsChosenAfterAMove) {
  Open(portal);
  driver->Choose("orglist", 1);
  driver->Press("enter");
  EXPECT_EQ(portal.orglist.ListIndex, 1);
  driver->Press("enter");
  EXPECT_EQ(portal.printlist.List, (Lines{"Ng, Ada", "Orr, Cy"}));
  EXPECT_EQ(portal.orglist.ListIndex, 0);
}

TEST_F(FrmStudentsTest, ADoubleClickMovesToo) {
  Open(portal);
  driver->Choose("orglist", 1);
  driver->DoubleClick("orglist");
  EXPECT_EQ(portal.printlist.List, (Lines{"Ng, Ada"}));
}

TEST_F(FrmStudentsTest, WithoutAChosenLineNothingMoves) {
  Open(portal);
  driver->Press("enter");
  driver->Press("remove");
  EXPECT_EQ(portal.orglist.List.size(), 3u);
}

TEST_F(FrmStudentsTest, FinishedKeepsTheChoiceByStudent) {
  Open(portal);
  driver->Press("allstudents");
  EXPECT_TRUE(portal.orglist.List.empty());
  driver->Choose("printlist", 1);
  driver->Press("remove");
  driver->Press("finished");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{1, 3}));
}

TEST_F(FrmStudentsTest, ClearEmptiesTheChoice) {
  Open(portal);
  driver->Press("allstudents");
  driver->Press("clear");
  EXPECT_EQ(portal.orglist.List.size(), 3u);
  EXPECT_TRUE(portal.printlist.List.empty());
}

TEST_F(FrmStudentsTest, OpensWithTheEarlierChoiceAsFarAsThereAreSuchStudents) {
  ChooseStudents({3, 9, 2});
  Open(portal);
  EXPECT_EQ(portal.printlist.List, (Lines{"Ng, Ada", "Orr, Cy"}));
  driver->CloseWindow();
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{2, 3}));
}

TEST_F(FrmStudentsTest, EveryMarkedLineMovesAtOnce) {
  Open(portal);
  driver->Mark("orglist", {0, 2});
  driver->Press("enter");
  EXPECT_EQ(portal.orglist.List, (Lines{"Ng, Ada"}));
  EXPECT_EQ(portal.printlist.List, (Lines{"Le, Bo", "Orr, Cy"}));
  driver->Mark("printlist", {0, 1});
  driver->Press("remove");
  EXPECT_EQ(portal.orglist.List, (Lines{"Le, Bo", "Ng, Ada", "Orr, Cy"}));
  EXPECT_TRUE(portal.printlist.List.empty());
}

TEST_F(FrmStudentsTest, ADeletionDoesNotMakeTheChoiceMeanSomebodyElse) {
  ChooseStudents({2});
  Current().Students.erase(Current().Students.begin() + 1);
  Current().NumStudents = 2;
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{1}));
  Current().Students.erase(Current().Students.begin() + 1);
  Current().NumStudents = 1;
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{}));
}

TEST_F(FrmStudentsTest, AnotherOrderDoesNotMakeTheChoiceMeanSomebodyElse) {
  ChooseStudents({1, 3});
  std::swap(Current().Students[1], Current().Students[2]);
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{2, 3}));
}

TEST_F(FrmStudentsTest, TheChoiceIsOfItsClassAlone) {
  Current().FileName = "/a/MATH.TYR";
  ChooseStudents({1});
  Current().FileName = "/a/ART.TYR";
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{}));
  Current().FileName = "/a/MATH.TYR";
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{1}));
}

TEST_F(FrmStudentsTest, AClassThatWasNeverSavedIsKnownByItsSlot) {
  ChooseStudents({1});
  const i16 slot = std::exchange(CurrentClass, i16{2});
  EnrolStudent("Le", "Bo", "2");
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{}));
  CurrentClass = slot;
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{1}));
}

TEST_F(FrmStudentsTest, OneOfTwoWithOneNameIsKnownByTheId) {
  EnrolStudent("Le", "Bo", "9");
  ChooseStudents({4});
  EXPECT_EQ(ChosenStudents(), (std::vector<i16>{4}));
}

}  // namespace
}  // namespace tallyroll
