// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that drop grades, and the Portal beside them that chooses the types.
#include "averages/portals/frmdropgrade.h"

#include "averages/portals/frmweights.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

class FrmDropGradeTest : public AveragePortalTest {
 protected:
  FrmDropGradeTest() {
    AddGrade("Quiz 1", "Q ", "Y");
    AddGrade("Quiz 2", "Q ");
    AddGrade("Test 1", "T ", "Y");
    AddGrade("Essay", "E ");
  }
  frmdropgrade* Drop() { return dynamic_cast<frmdropgrade*>(screen.PortalBeside("frmdropgrade")); }
  // Flips the choice of the type in that row.
  void FlipRow(int row) {
    PortalDriver beside(*Drop());
    beside.PickCell("grdgrade", row, 3);
    beside.TypeKeys("grdgrade", " ");
    EXPECT_EQ(beside.Complaints(), Texts{});
  }
  void Accept() {
    driver->Press("equal");
    screen.ExpectBox(kSaveWeights, BoxAnswer::kYes);
    driver->Press("exit");
  }
  static void NothingMayBeDropped() {
    for (Instrument& grade : Current().Instruments) grade.dropyn = "N";
  }

  frmweights portal;
};

TEST_F(FrmDropGradeTest, ListsTheTypesThatHaveAGradeToDrop) {
  frmdropgrade drop;
  Open(drop);
  EXPECT_EQ(drop.Caption, "Drop Lowest Grade Portal");
  EXPECT_EQ(Headings(drop.grdgrade), (Texts{"NAME of TYPE", "Type", "#", "Drop"}));
  EXPECT_EQ(Column(drop.grdgrade, 0), (Texts{"Quiz", "Test"}));
  EXPECT_EQ(Column(drop.grdgrade, 1), (Texts{"Q", "T"}));
  EXPECT_EQ(Column(drop.grdgrade, 2), (Texts{"2", "1"}));
  EXPECT_EQ(Column(drop.grdgrade, 3), (Texts{"N", "N"}));
}

TEST_F(FrmDropGradeTest, AnyKeyFlipsTheChoice) {
  frmdropgrade drop;
  Open(drop);
  driver->PickCell("grdgrade", 2, 3);
  driver->TypeKeys("grdgrade", "n");
  EXPECT_EQ(Column(drop.grdgrade, 3), (Texts{"N", "Y"}));
  driver->TypeKeys("grdgrade", "y");
  EXPECT_EQ(Column(drop.grdgrade, 3), (Texts{"N", "N"}));
}

TEST_F(FrmDropGradeTest, WithoutAGradeToDropItSaysSoAndCloses) {
  NothingMayBeDropped();
  frmdropgrade drop;
  screen.ExpectBox(kNoneToDrop);
  drop.Load();
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kNone);
  EXPECT_TRUE(drop.Unloaded());
}

TEST_F(FrmDropGradeTest, TheBoxOpensItBesideAndShowsLabs) {
  Open(portal);
  EXPECT_FALSE(driver->Visible("labs"));
  driver->Tick("droptype");
  EXPECT_NE(Drop(), nullptr);
  EXPECT_TRUE(driver->Visible("labs"));
  driver->Tick("labs");
  driver->Tick("droptype", false);
  EXPECT_EQ(Drop(), nullptr);
  EXPECT_FALSE(driver->Visible("labs"));
  EXPECT_FALSE(portal.labs.Value);
}

TEST_F(FrmDropGradeTest, TheBoxWithoutAGradeToDropIsClearedAgain) {
  NothingMayBeDropped();
  Open(portal);
  screen.ExpectBox(kNoneToDrop);
  driver->Tick("droptype");
  EXPECT_FALSE(portal.droptype.Value);
  EXPECT_FALSE(driver->Visible("labs"));
  EXPECT_EQ(Drop(), nullptr);
}

TEST_F(FrmDropGradeTest, TheSingleLowestWithoutAGradeToDropIsClearedAgain) {
  NothingMayBeDropped();
  Open(portal);
  screen.ExpectBox(kNoneToDrop);
  driver->Tick("dropyn");
  EXPECT_FALSE(portal.dropyn.Value);
  EXPECT_FALSE(driver->Visible("labs"));
}

TEST_F(FrmDropGradeTest, TheTwoBoxesExcludeEachOther) {
  Open(portal);
  driver->Tick("dropyn");
  EXPECT_TRUE(driver->Visible("labs"));
  driver->Tick("droptype");
  EXPECT_FALSE(portal.dropyn.Value);
  EXPECT_NE(Drop(), nullptr);
  driver->Tick("dropyn");
  EXPECT_FALSE(portal.droptype.Value);
  EXPECT_EQ(Drop(), nullptr);
  EXPECT_TRUE(driver->Visible("labs"));
  driver->Tick("dropyn", false);
  EXPECT_FALSE(driver->Visible("labs"));
}

TEST_F(FrmDropGradeTest, ContinueStoresTheChosenTypes) {
  Open(portal);
  driver->Tick("droptype");
  FlipRow(1);
  driver->Tick("labs");
  Accept();
  const Class& c = Current();
  EXPECT_EQ(c.TypeWeights[10], Money("2"));
  EXPECT_EQ(c.TypeWeights[12], Money("0"));
  EXPECT_EQ(c.AverageFlag1, kTrue);
  EXPECT_EQ(c.AverageFlag2, kFalse);
  EXPECT_EQ(c.AverageFlag4, kTrue);
  EXPECT_EQ(c.AverageSettings, "0,1,0,0,1,0,0,0,0,0,0,0,0,0,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0");
  EXPECT_EQ(Drop(), nullptr);
}

TEST_F(FrmDropGradeTest, TheSingleLowestStoresNoType) {
  Current().TypeWeights[10] = Money("2");
  Open(portal);
  driver->Tick("dropyn");
  Accept();
  const Class& c = Current();
  EXPECT_EQ(c.TypeWeights[10], Money("0"));
  EXPECT_EQ(c.AverageFlag1, kFalse);
  EXPECT_EQ(c.AverageFlag2, kTrue);
  EXPECT_EQ(c.AverageFlag4, kFalse);
  EXPECT_EQ(c.AverageSettings.substr(0, 9), "0,0,1,0,0");
}

TEST_F(FrmDropGradeTest, ContinueWithoutATypeOpensItAgain) {
  Open(portal);
  driver->Tick("droptype");
  driver->Press("equal");
  PortalDriver(*Drop()).Press("exit");
  EXPECT_EQ(Drop(), nullptr);
  screen.ExpectBox(kNoTypeChosen);
  driver->Press("exit");
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kNone);
  EXPECT_FALSE(portal.Unloaded());
  ASSERT_NE(Drop(), nullptr);
  FlipRow(2);
  screen.ExpectBox(kSaveWeights, BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_EQ(Current().TypeWeights[12], Money("2"));
}

TEST_F(FrmDropGradeTest, AChoiceSurvivesASumThatIsRefused) {
  Open(portal);
  driver->Tick("droptype");
  FlipRow(1);
  screen.ExpectBox(kMustBeHundred);
  driver->Press("exit");
  EXPECT_EQ(Current().TypeWeights[10], Money("0"));
  Accept();
  EXPECT_EQ(Current().TypeWeights[10], Money("2"));
}

TEST_F(FrmDropGradeTest, AChoiceSurvivesASecondTick) {
  Open(portal);
  driver->Tick("droptype");
  FlipRow(2);
  driver->Tick("droptype", false);
  EXPECT_EQ(Drop(), nullptr);
  driver->Tick("droptype");
  EXPECT_EQ(Column(Drop()->grdgrade, 3), (Texts{"N", "Y"}));
  driver->Tick("dropyn");
  driver->Tick("droptype");
  EXPECT_EQ(Column(Drop()->grdgrade, 3), (Texts{"N", "Y"}));
  Accept();
  EXPECT_EQ(Current().TypeWeights[10], Money("0"));
  EXPECT_EQ(Current().TypeWeights[12], Money("2"));
}

TEST_F(FrmDropGradeTest, WhatWasChosenLastIsOfferedAgain) {
  Class& c = Current();
  c.AverageFlag1 = c.AverageFlag4 = kTrue;
  c.TypeWeights[12] = Money("2");
  Open(portal);
  EXPECT_TRUE(portal.droptype.Value);
  EXPECT_TRUE(portal.labs.Value);
  EXPECT_EQ(Drop(), nullptr);
  Accept();
  EXPECT_EQ(c.TypeWeights[10], Money("0"));
  EXPECT_EQ(c.TypeWeights[12], Money("2"));
}

TEST_F(FrmDropGradeTest, BoxesOfAClassWithNothingToDropStartClear) {
  NothingMayBeDropped();
  Current().AverageFlag1 = Current().AverageFlag4 = kTrue;
  Open(portal);
  EXPECT_FALSE(portal.droptype.Value);
  EXPECT_FALSE(portal.labs.Value);
}

// The one grade that may be dropped is of no type, so that no type can be chosen.
TEST_F(FrmDropGradeTest, OpeningNeverSaysThatThereIsNoneToDrop) {
  NothingMayBeDropped();
  AddGrade("Odd", "ZZ", "Y");
  Current().AverageFlag4 = kTrue;
  Open(portal);
  EXPECT_TRUE(screen.boxes.empty());
  EXPECT_FALSE(portal.droptype.Value);
  EXPECT_FALSE(driver->Visible("labs"));
  driver->Tick("dropyn");
  EXPECT_TRUE(portal.dropyn.Value);
  screen.ExpectBox(kNoneToDrop);
  driver->Tick("droptype");
  EXPECT_FALSE(portal.droptype.Value);
}

TEST_F(FrmDropGradeTest, FlagsOfTheSingleLowestAreNoChoice) {
  Current().AverageFlag2 = kTrue;
  Current().TypeWeights[10] = Money("2");
  Open(portal);
  EXPECT_TRUE(portal.dropyn.Value);
  driver->Tick("droptype");
  EXPECT_EQ(Column(Drop()->grdgrade, 3), (Texts{"N", "N"}));
}

}  // namespace
}  // namespace tallyroll
