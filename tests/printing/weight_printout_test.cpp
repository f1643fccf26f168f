// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/weight_printout.h"

#include <map>

#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

using WeightPrintoutTest = PrintPortalTest;

PrintedTable Points(int rows) {
  PrintedTable table{" Points Printout",
                     7,
                     {"NAME", "Types", "MAX PTS.", "COUNT IN"},
                     {"", "", "", "TOTAL PTS."},
                     {}};
  for (int i = 1; i <= rows; ++i)
    table.rows.push_back({"Quiz " + PlainNumberText(i), "Q", "50", "Y"});
  return table;
}

TEST_F(WeightPrintoutTest, PrintsHeadsAndRowsWithARuleAfterEach) {
  ExpectTitle();
  PrintWeights(Points(2));
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  const PrintedJob& job = *screen.print_jobs.back();
  EXPECT_TRUE(job.ended);
  EXPECT_FALSE(job.killed);
  ASSERT_EQ(job.pages.size(), 1u);
  EXPECT_EQ(FixedPrintTarget::RowsOf(job.pages[0]),
            (Rows{"9/1/2026", " Points Printout", "NAME Types MAX PTS. COUNT IN", "TOTAL PTS.",
                  "Quiz 1 Q 50 Y", "Quiz 2 Q 50 Y", "Page 1"}));
  EXPECT_EQ(job.pages[0].lines.size(), 3u);
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(WeightPrintoutTest, OnlyTheHeadIsBoldAndStandsOverItsColumn) {
  ExpectTitle();
  PrintWeights(Points(1));
  const PrintedPage& page = screen.print_jobs.back()->pages[0];
  std::map<std::string, double> bold, plain;
  for (const PrintedText& text : page.texts) (text.bold ? bold : plain)[text.text] = text.x;
  EXPECT_EQ(bold.size(), 5u);
  // 100 twips a character. NAME at tab 7; "Quiz 1" and three blanks; 5 + 3; 8 + 3.
  EXPECT_EQ(bold["NAME"], 600);
  EXPECT_EQ(bold["Types"], 1500);
  EXPECT_EQ(bold["MAX PTS."], 2300);
  EXPECT_EQ(bold["COUNT IN"], 3400);
  EXPECT_EQ(bold["TOTAL PTS."], 3400);
  EXPECT_EQ(plain["Quiz 1"], 600);
  EXPECT_EQ(plain["Q"], 1500);
  EXPECT_EQ(plain["50"], 2300);
  EXPECT_EQ(plain["Y"], 3400);
}

TEST_F(WeightPrintoutTest, ATableMayBeginAtTheLeftEdge) {
  ExpectTitle();
  PrintedTable table = Points(1);
  table.first_column = 1;
  PrintWeights(table);
  std::map<std::string, double> columns;
  for (const PrintedText& text : screen.print_jobs.back()->pages[0].texts)
    columns[text.text] = text.x;
  EXPECT_EQ(columns["NAME"], 0);
  EXPECT_EQ(columns["Quiz 1"], 0);
  EXPECT_EQ(columns["Types"], 900);
  EXPECT_EQ(columns["TOTAL PTS."], 2800);
}

TEST_F(WeightPrintoutTest, LongNamesKeepAllColumnsOnThePage) {
  ExpectTitle();
  PrintedTable table = Points(1);
  table.rows[0][0] = std::string(200, 'n');
  PrintWeights(table);
  std::map<std::string, double> columns;
  for (const PrintedText& text : screen.print_jobs.back()->pages[0].texts) {
    columns[text.text] = text.x;
    EXPECT_LE(text.x + static_cast<double>(text.text.size()) * text.size * 10, 11240) << text.text;
  }
  // The last head, 8 characters, ends at the margin; the others stand before it as ever.
  EXPECT_EQ(columns["COUNT IN"], 11240 - 800);
  EXPECT_EQ(columns["Types"], 11240 - 800 - 1100 - 800);
}

TEST_F(WeightPrintoutTest, ALongTableGoesOnWithItsHead) {
  ExpectTitle();
  PrintWeights(Points(80));
  const PrintedJob& job = *screen.print_jobs.back();
  ASSERT_EQ(job.pages.size(), 2u);
  const Rows first = FixedPrintTarget::RowsOf(job.pages[0]);
  const Rows second = FixedPrintTarget::RowsOf(job.pages[1]);
  EXPECT_EQ(first.back(), "Page 1");
  EXPECT_EQ(second.front(), "NAME Types MAX PTS. COUNT IN");
  EXPECT_EQ(second.back(), "Page 2");
  EXPECT_EQ(second[second.size() - 2], "Quiz 80 Q 50 Y");
  // Heads and feet: four lines above the rows of the first page and one below, two and one then.
  EXPECT_EQ(first.size() - 5 + second.size() - 3, 80u);
  for (const PrintedPage& page : job.pages)
    for (const PrintedText& text : page.texts) EXPECT_LE(text.y, 13880 + 240);
}

TEST_F(WeightPrintoutTest, WithoutATitleNothingIsPrinted) {
  screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("exit"); });
  PrintWeights(Points(2));
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(WeightPrintoutTest, CancelInTheMiddleDropsTheJob) {
  ExpectTitle();
  CancelAtPump(10);
  PrintWeights(Points(80));
  const PrintedJob& job = *screen.print_jobs.back();
  EXPECT_TRUE(job.killed);
  EXPECT_TRUE(job.ended);
  EXPECT_EQ(job.pages.size(), 1u);
}

TEST_F(WeightPrintoutTest, APrinterThatRefusesIsTold) {
  ExpectTitle();
  screen.printer_refuses = true;
  screen.ExpectBox("The printer can't be used. Choose one at Printer Set Up.");
  PrintWeights(Points(1));
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(WeightPrintoutTest, ATableWithoutRowsHasItsHeads) {
  ExpectTitle();
  PrintWeights(Points(0));
  EXPECT_EQ(FixedPrintTarget::RowsOf(screen.print_jobs.back()->pages[0]).back(), "Page 1");
}

}  // namespace
}  // namespace tallyroll
