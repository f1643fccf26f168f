// SPDX-License-Identifier: GPL-3.0-or-later
// The first page beside the options of the Printer Portal.
#include "printing/first_page.h"

#include <utility>

#include "averages/engine/average_state.h"
#include "printing/frmprintall.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

constexpr i16 kFullClassTab = 1, kRosterTab = 3, kAverageTab = 4;

class FirstPageTest : public PrintPortalTest {
 protected:
  FirstPageTest() {
    Current().FileName = "/home/ann/MATH8.TYR";
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ");
    AddGrade("Test 1", "T ");
    Job = PrintJob();
  }
  static void Mark(int student, int grade, const char* mark) {
    Current().Students[static_cast<std::size_t>(student)].Marks[static_cast<std::size_t>(grade)] =
        mark;
  }
  Rows DrawnRows() {
    const auto box = Platform().MakePrintBox(false);
    page.Draw(*box);
    return FixedPrintTarget::RowsOf(Drawn(*box));
  }

  FirstPage page;
  ReportChoice choice;
};

TEST_F(FirstPageTest, IsThatOfTheWholeReport) {
  EnrolMany(200);
  EXPECT_EQ(page.LayOut(kRosterTab, 19, choice), "");
  const Rows seen = DrawnRows();
  Job.PrintTab = kRosterTab;
  Job.PrintFlag = kPrintRuns;
  Job.PrintTitle = "MATH8";  // as it is offered
  LayOut(19);
  ASSERT_GE(Job.PageCount, 3);
  EXPECT_EQ(seen, PageRows(1));
  EXPECT_EQ(seen.back(), "Page 1");
}

TEST_F(FirstPageTest, AsksNothingTellsNothingAndLetsNoEventIn) {
  EnrolMany(200);
  for (const int code : {1, 2, 3, 11, 16, 19, 20, 22, 23})
    page.LayOut(code == 11 ? kAverageTab : kFullClassTab, code, choice);
  DrawnRows();
  EXPECT_TRUE(screen.boxes.empty());
  EXPECT_EQ(screen.pumped, 0);
}

TEST_F(FirstPageTest, LeavesTheRunTheChoiceAndTheClassAsTheyWere) {
  EnrolMany(3);
  for (int s = 1; s <= 3; ++s) {
    Mark(s, 1, "90");
    Mark(s, 2, "80");
    Current().Students[static_cast<std::size_t>(s)].Marks[0] = "old";
  }
  Current().Weights.assign(3, Currency::FromWhole(50));
  Job.PrintTitle = "Before";
  Job.PageCount = 7;
  Choice.grade = 2;
  CurrentStudent = 2;
  ExactAverage = Currency::FromWhole(12);
  EXPECT_EQ(page.LayOut(kAverageTab, 11, choice), "");
  EXPECT_FALSE(DrawnRows().empty());
  EXPECT_EQ(Job.PrintTitle, "Before");
  EXPECT_EQ(Job.PageCount, 7);
  EXPECT_FALSE(Job.FirstPageAlone);
  EXPECT_EQ(Choice.grade, 2);
  EXPECT_EQ(CurrentStudent, 2);
  EXPECT_EQ(ExactAverage, Currency::FromWhole(12));
  for (int s = 1; s <= 3; ++s)
    EXPECT_EQ(Current().Students[static_cast<std::size_t>(s)].Marks[0].str(), "old") << s;
}

TEST_F(FirstPageTest, AnAverageThatCannotBeIsSaidInItsPlace) {
  EnrolMany(1);
  Mark(1, 1, "9E99");
  Current().Weights.assign(3, Currency::FromWhole(50));
  const std::string why = page.LayOut(kAverageTab, 11, choice);
  EXPECT_EQ(why.rfind("The average of Last101, First can't be computed: ", 0), 0u) << why;
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(FirstPageTest, WhatHasNothingToReportIsSaidInItsPlace) {
  EXPECT_EQ(page.LayOut(kRosterTab, 19, choice), "There are no students in this class.");
}

class FirstPagePortalTest : public FirstPageTest {
 protected:
  void OpenAt(int tab) {
    EnrolMany(3);
    OpenState = tab;
    Open(portal);
  }
  // What the screen raises once the teacher's choices rest.
  void Rest() { portal.firstpage_Change(); }

  frmprintall portal;
};

TEST_F(FirstPagePortalTest, FollowsWhatIsChosenAndNothingElse) {
  OpenAt(1);
  unsigned seen = portal.firstpage.Revision;
  EXPECT_GT(seen, 0u);
  const auto moved = [&] { return std::exchange(seen, portal.firstpage.Revision) != seen; };
  driver->Tick("comments");
  EXPECT_TRUE(moved());
  driver->Tick("missing");
  EXPECT_TRUE(moved());
  driver->PickTab("TabStrip1", 2);
  EXPECT_TRUE(moved());
  driver->PickTab("TabStrip1", 1);  // of students: their list stands there
  EXPECT_FALSE(moved());
  EXPECT_FALSE(driver->Visible("firstframe"));
  driver->PickTab("TabStrip1", 2);
  EXPECT_FALSE(moved());
  EXPECT_TRUE(driver->Visible("firstframe"));
}

TEST_F(FirstPagePortalTest, SaysWhatMustBeChosenFirst) {
  OpenAt(1);
  driver->Tick("onegrade");
  Rest();
  EXPECT_FALSE(driver->Visible("firstpage"));
  EXPECT_EQ(driver->Text("firsttold"),
            "Choose the TITLE of the evaluation item you wish to print.");
  driver->Choose("lsttitle", 1);
  Rest();
  EXPECT_TRUE(driver->Visible("firstpage"));
  EXPECT_FALSE(driver->Visible("firsttold"));
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(FirstPagePortalTest, IsDrawnOnTheSheetOfThePrinter) {
  OpenAt(1);
  Rest();
  EXPECT_EQ(portal.firstpage.SheetWidth, 12240);
  EXPECT_EQ(portal.firstpage.SheetHeight, 15840);
  EXPECT_EQ(portal.firstpage.Fit, SheetFit::kPage);
  const auto box = Platform().MakePrintBox(false);
  portal.firstpage.Draw(*box);
  EXPECT_EQ(FixedPrintTarget::RowsOf(Drawn(*box))[1], " Full Grades Printout");
}

TEST_F(FirstPagePortalTest, StaysAwayWhileARunGoesOn) {
  OpenAt(1);
  int layouts = 0;
  screen.on_pump = [&] {
    const int pages = Job.PageCount;
    portal.firstpage_Change();
    layouts += Job.PageCount == pages ? 0 : 1;
  };
  ExpectTitle();
  driver->Press("prints");
  EXPECT_GT(screen.pumped, 0);
  EXPECT_EQ(layouts, 0);
  EXPECT_EQ(portal.firstpage.SheetWidth, 0);
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
}

}  // namespace
}  // namespace tallyroll
