// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmgradesave.h"

#include "averages/engine/average_state.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

const std::string kFillBoth = "You must fill in both a Title and a 3 character code.";

class FrmGradeSaveTest : public AveragePortalTest {
 protected:
  FrmGradeSaveTest() {
    AddGrade("Quiz 1", "Q ");
    Enrol("Ng", {"96"});
    Enrol("Orr", {"30"});
    Class& c = Current();
    c.Method = 0;
    c.Weights = {Currency(), Money("100")};
    c.AverageWork1 = 2;
    c.AverageWork2 = 2;
    screen.now = 46266 + 0.5;  // noon of 1 September 2026
    Open(portal);
  }
  void Save() {
    driver->Type("title", "Term 1");
    driver->Type("code", "T1");
    driver->Press("save");
  }

  frmgradesave portal;
};

TEST_F(FrmGradeSaveTest, BothFieldsAreAsked) {
  screen.ExpectBox(kFillBoth);
  driver->Press("save");
  EXPECT_EQ(driver->Focused(), "title");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  driver->Type("title", "Term 1");
  screen.ExpectBox(kFillBoth);
  driver->Press("save");
  EXPECT_EQ(driver->Focused(), "code");
  EXPECT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(portal.code.MaxLength, 3);
  EXPECT_EQ(portal.title.MaxLength, 65535);
}

TEST_F(FrmGradeSaveTest, TheSavedAveragesAreConfirmedWithTheNameOfTheFile) {
  Current().FileName = "/classes/math.tyr";
  Save();
  EXPECT_EQ(window.status, "The averages stand as Term 1. math.tyr saved.");
}

TEST_F(FrmGradeSaveTest, AddsAGradeOfFinalGrades) {
  Save();
  const Class& c = Current();
  EXPECT_TRUE(portal.Unloaded());
  ASSERT_EQ(c.NumInstruments, 2);
  const Instrument& grade = c.Instruments[2];
  EXPECT_EQ(grade.title, "Term 1");
  EXPECT_EQ(grade.code, "T1");
  EXPECT_EQ(grade.mvalue, 100);
  EXPECT_EQ(grade.lowpass, "65");
  EXPECT_EQ(grade.dropyn, "N");
  EXPECT_EQ(grade.typecode, "A ");
  EXPECT_EQ(grade.countflag, "N");
  EXPECT_EQ(grade.weight, Currency());
  EXPECT_EQ(grade.testdate, "9/1/2026 12:00");
  EXPECT_EQ(c.Weights.size(), 3U);
  EXPECT_EQ(c.InstrumentUse.size(), 3U);
  EXPECT_EQ(c.InstrumentUse[2], Currency());
  EXPECT_EQ(c.Students[1].Marks[2], "95");   // 96 reaches the row of 92.5
  EXPECT_EQ(c.Students[2].Marks[2], " 30");  // 40 or less: the whole number
  EXPECT_EQ(c.Students[1].Marks[0], "95");
  EXPECT_EQ(CurrentStudent, 2);
  EXPECT_EQ(window.saved, 1);
  EXPECT_EQ(window.refills, 1);
}

TEST_F(FrmGradeSaveTest, EveryMinuteOfADayIsWrittenAsItself) {
  const Class before = Current();
  for (int minute = 0; minute < 24 * 60; ++minute) {
    Current() = before;
    screen.now = 46266 + minute / 1440.0;
    frmgradesave each;
    each.title.Text = "Term 1";
    each.code.Text = "T1";
    each.save_Click();
    const std::string hours = PlainNumberText(100 + minute / 60).substr(1);
    const std::string minutes = PlainNumberText(100 + minute % 60).substr(1);
    EXPECT_EQ(Current().Instruments[2].testdate, "9/1/2026 " + hours + ":" + minutes);
  }
}

TEST_F(FrmGradeSaveTest, TheTimeIsCutToItsMinute) {
  screen.now = 46266 + 845 / 1440.0 + 59 / 86400.0;  // 14:05:59
  Save();
  EXPECT_EQ(Current().Instruments[2].testdate, "9/1/2026 14:05");
}

TEST_F(FrmGradeSaveTest, TheLastHalfSecondBelongsToTheNextDay) {
  screen.now = 46266 + 86399.6 / 86400.0;
  Save();
  EXPECT_EQ(Current().Instruments[2].testdate, "9/2/2026 00:00");
}

TEST_F(FrmGradeSaveTest, ItsWorkIsSavedThen) {
  Save();
  EXPECT_EQ(Current().AverageWork1, 0);
  EXPECT_EQ(Current().AverageWork2, 2);
}

TEST_F(FrmGradeSaveTest, UnderTypesTheirWorkIsSaved) {
  Current().Method = 1;
  Current().TypePercents[10] = Money("100");
  Save();
  EXPECT_EQ(Current().AverageWork1, 2);
  EXPECT_EQ(Current().AverageWork2, 0);
}

TEST_F(FrmGradeSaveTest, UnderPointsAndTypesBothWorksAreSaved) {
  Class& c = Current();
  c.Method = 3;
  c.InstrumentUse = {Currency(), Money("1")};
  c.TypePercents[10] = Money("100");
  Save();
  EXPECT_EQ(c.AverageWork1, 0);
  EXPECT_EQ(c.AverageWork2, 0);
  EXPECT_EQ(c.InstrumentUse[2], Money("2"));
  EXPECT_EQ(c.Students[1].Marks[2], "95");
}

TEST_F(FrmGradeSaveTest, AnAverageAbove327IsSaved) {
  Current().RoundMode = 1;
  UseLetterValuesAsScale();
  Current().Students[1].Marks[1] = "400";
  Save();
  EXPECT_EQ(Current().Students[1].Marks[2], "400");
}

TEST_F(FrmGradeSaveTest, WorkStillToBeSavedStays) {
  Current().AverageWork1 = 1;
  Save();
  EXPECT_EQ(Current().AverageWork1, 1);
}

TEST_F(FrmGradeSaveTest, UnderPointsTheNewGradeDoesNotCount) {
  Current().Method = 2;
  Current().InstrumentUse = {Currency(), Money("1")};
  Save();
  EXPECT_EQ(Current().InstrumentUse[2], Money("2"));
  EXPECT_EQ(Current().Students[1].Marks[2], "95");
}

TEST_F(FrmGradeSaveTest, TheNewGradeTakesNoPartInItsOwnAverages) {
  Class& c = Current();
  c.Method = 1;
  c.TypePercents[1] = Money("50");
  c.TypePercents[10] = Money("50");
  Save();
  EXPECT_EQ(c.Students[1].Marks[2], "95");
}

TEST_F(FrmGradeSaveTest, AnErrorNamesStudentAndGradeAndChangesNothing) {
  Class& c = Current();
  c.Students[1].Marks[0] = "-";
  c.Students[2].Marks[1] = "1e17";
  const Class before = c;
  ExactAverage = Money("77");
  screen.ExpectBox(
      "The average of Orr, Ada can't be computed: a number is too large in the grade \"Quiz 1\".");
  Save();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).icon, BoxIcon::kCritical);
  EXPECT_EQ(ExactAverage, Money("77"));
  EXPECT_EQ(c.NumInstruments, 1);
  EXPECT_EQ(c.Students, before.Students);
  EXPECT_EQ(c.Instruments, before.Instruments);
  EXPECT_EQ(window.saved, 0);
  EXPECT_FALSE(screen.wait_cursor);
  c.Students[2].Marks[1] = "50";
  driver->Press("save");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmGradeSaveTest, AFinalGradeBeyond16BitsNamesTheStudentAndChangesNothing) {
  Class& c = Current();
  c.AverageFlag2 = kTrue;
  c.TypeWeights[10] = Money("2");
  c.Students[2].Marks[1] = "40000";
  const Class before = c;
  screen.ExpectBox("The average of Orr, Ada can't be computed: a number is too large.");
  Save();
  EXPECT_EQ(c.TypeWeights, before.TypeWeights);
  EXPECT_EQ(c.Students, before.Students);
  EXPECT_EQ(c.NumInstruments, 1);
}

TEST_F(FrmGradeSaveTest, CancelAddsNothing) {
  driver->Type("title", "Term 1");
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumInstruments, 1);
}

}  // namespace
}  // namespace tallyroll
