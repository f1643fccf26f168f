// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/print_chart.h"

#include <algorithm>

#include "platform/fixed_print_target.h"
#include "printing/page/print_job.h"
#include "seating/fill_chart.h"
#include "tests/seating/seating_test.h"

namespace tallyroll {
namespace {

class PrintChartTest : public SeatingTest {
 protected:
  PrintedPage Page(const SeatPlan& plan, bool landscape = false) {
    FixedPrintTarget target;
    if (landscape) std::swap(target.ScaleWidth, target.ScaleHeight);
    SetupPage(target);
    DrawChartPage(target, plan, "Chart 1");
    EXPECT_EQ(target.job->pages.size(), 1u);
    return target.job->pages[0];
  }
  // Nothing leaves the page, and no text stands over another.
  static void ExpectReadable(const PrintedPage& page) {
    for (std::size_t i = 0; i < page.texts.size(); ++i) {
      const Rectangle a = RectangleOf(page.texts[i]);
      EXPECT_GE(a.left, 0) << page.texts[i].text;
      EXPECT_LE(a.right, Job.PageTextWidth + 1) << page.texts[i].text;
      EXPECT_LE(a.bottom, Job.PageBottom + 600) << page.texts[i].text;
      for (std::size_t k = i + 1; k < page.texts.size(); ++k) {
        const Rectangle b = RectangleOf(page.texts[k]);
        const bool apart = a.right <= b.left + 1 || b.right <= a.left + 1 ||
                           a.bottom <= b.top + 1 || b.bottom <= a.top + 1;
        EXPECT_TRUE(apart) << page.texts[i].text << " over " << page.texts[k].text;
      }
    }
  }

 private:
  struct Rectangle {
    double left, top, right, bottom;
  };
  static Rectangle RectangleOf(const PrintedText& text) {
    return {text.x, text.y, text.x + 10 * text.size * static_cast<double>(text.text.size()),
            text.y + 24 * text.size};
  }
};

bool Has(const PrintedPage& page, const std::string& text) {
  return std::ranges::any_of(page.texts, [&](const PrintedText& t) { return t.text == text; });
}

TEST_F(PrintChartTest, ThePageNamesClassChartAndFront) {
  Enrol(3);
  Current().description = "Algebra I";
  SeatPlan plan = EmptyPlan(2, 2);
  FillAsSorted(plan);
  const PrintedPage page = Page(plan);
  for (const char* text :
       {"Chart Form", "Algebra I - Chart 1", "FRONT OF THE ROOM", "Aa,", "X", "1"})
    EXPECT_TRUE(Has(page, text)) << text;
  ExpectReadable(page);
}

TEST_F(PrintChartTest, TheWidestNamesOfTheLargestChartsAreReadable) {
  for (int i = 1; i <= 165; ++i)
    EnrolStudent("Wwwwwwwwwwww", "Mmmmmmmmmm", std::to_string(1000000000 + i));
  for (const auto& [rows, columns] : {std::pair{11, 13}, {15, 11}, {1, 1}, {15, 1}, {1, 13}}) {
    SeatPlan plan = EmptyPlan(rows, columns);
    FillAsSorted(plan);
    ExpectReadable(Page(plan, columns >= kLandscapeColumns));
  }
}

TEST_F(PrintChartTest, WhoHasNoSeatIsNamedBelow) {
  Enrol(2);
  SeatPlan plan = EmptyPlan(1, 1);
  FillAsSorted(plan);
  EXPECT_TRUE(Has(Page(plan), "Without a seat: Ba, X"));
}

// Whom the page has no room to name is counted: names and count together are all of them.
TEST_F(PrintChartTest, NobodyIsMissingBelowAFullChart) {
  Enrol(600);
  SeatPlan plan = EmptyPlan(15, 1);
  FillAsSorted(plan);
  int named = 0, counted = 0;
  for (const PrintedText& text : Page(plan).texts) {
    for (std::size_t at = text.text.find(", X"); at != std::string::npos;
         at = text.text.find(", X", at + 1))
      ++named;
    if (text.text.starts_with("... and ")) counted = std::stoi(text.text.substr(8));
  }
  EXPECT_GT(counted, 0);
  EXPECT_EQ(named + counted, 585);
}

TEST_F(PrintChartTest, FromNineRowsOnThePageLiesAcrossAndTheTeacherIsTold) {
  const auto print = [this](int columns) {
    screen.ExpectPortal("printmsg", [](PortalDriver& driver) { driver.Press("continue"); });
    PrintChart(EmptyPlan(1, columns), "Chart 1");
    return screen.print_jobs.back();
  };
  EXPECT_FALSE(print(8)->landscape);
  screen.ExpectBox("Please provide your printer with 8.5\" by 14\" paper");
  const auto job = print(9);
  EXPECT_TRUE(job->landscape);
  EXPECT_TRUE(job->ended);
}

}  // namespace
}  // namespace tallyroll
