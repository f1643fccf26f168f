// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/month_printout.h"

#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

class MonthPrintoutTest : public PrintPortalTest {};

TEST_F(MonthPrintoutTest, PrintsTheMonthOfThatDayAlone) {
  Enrol("Ng", "Ada", "1");
  for (int j = 0; j < 61; ++j) AddDay(46266 + j);  // September and October 2026
  Current().Students[1].DailyMarks[1] = "A";
  Current().Students[1].DailyMarks[61] = "L";
  ExpectTitle();
  PrintAttendanceMonth(46266 + 30);
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  const PrintedJob& job = *screen.print_jobs.back();
  EXPECT_TRUE(job.ended);
  ASSERT_EQ(job.pages.size(), 1u);
  int octobers = 0, septembers = 0;
  for (const PrintedText& text : job.pages[0].texts) {
    octobers += text.text.find("October, 2026") != std::string::npos;
    septembers += text.text.find("September, 2026") != std::string::npos;
  }
  EXPECT_GE(octobers, 1);
  EXPECT_EQ(septembers, 0);
}

TEST_F(MonthPrintoutTest, LeavesTheStudentsInTheirOrder) {
  Enrol("Ng", "Ada", "1");
  Enrol("Abe", "Bo", "2");
  AddDay(46266);
  ExpectTitle();
  PrintAttendanceMonth(46266);
  EXPECT_EQ(Current().Students[1].lastname, "Ng");
}

TEST_F(MonthPrintoutTest, WithoutATitleNothingIsPrinted) {
  Enrol("Ng", "Ada", "1");
  AddDay(46266);
  screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("exit"); });
  PrintAttendanceMonth(46266);
  EXPECT_TRUE(screen.print_jobs.empty());
}

}  // namespace
}  // namespace tallyroll
