// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/compared_grades.h"

#include "analysis/distribution_printout.h"
#include "analysis/grade_figures.h"
#include "analysis/open_classes.h"
#include "printing/page/print_job.h"
#include "tests/analysis/analysis_test.h"

namespace tallyroll {
namespace {

class ComparedGradesTest : public AnalysisTest {
 protected:
  ComparedGradesTest() { OpenSlot(1, "/a/ONE.TYR"); }
  static ComparedFigures Compared() { return FiguresOf({1, 1, "ONE.TYR"}); }
};

// Eleven marks of 74 and one of 73.7: 887.7 / 12 = 73.975, which goes to the even 73.98, as where
// the grade stands alone.
TEST_F(ComparedGradesTest, TheAverageIsThatOfTheGradeAlone) {
  std::vector<const char*> marks(11, "74");
  marks.push_back("73.7");
  GradeWith(marks);
  EXPECT_EQ(Compared().average, Currency::FromDouble(73.98));
  ASSERT_TRUE(FiguresOfGrade(1));
  EXPECT_EQ(Compared().average, FiguresOfGrade(1)->average);
}

// 70 and 75.35 lie 2.675 from their mean: 2.675 * 2.675 = 7.155625, kept as 7.1556, whose root
// 2.674995 is 2.675 with four decimals and 2.68 with two.
TEST_F(ComparedGradesTest, TheDeviationIsRoundedAsTheGradesOwn) {
  GradeWith({"70", "75.35"});
  EXPECT_EQ(Compared().deviation, 2.68);
}

// Of a maximum of 30 a blank passing grade is 19.5, and compared in whole numbers 20.
TEST_F(ComparedGradesTest, ABlankPassingGradeIsTheUsualShareInWholeNumbers) {
  GradeWith({"19.5", "20"}, 30, "");
  EXPECT_EQ(Compared().passed, 1);
  EXPECT_EQ(Compared().failed, 1);
}

TEST_F(ComparedGradesTest, AMarkBeyondAllNumbersLeavesTheCountsAlone) {
  GradeWith({"80", "90", "9e99"});
  const ComparedFigures figures = Compared();
  EXPECT_TRUE(figures.too_large);
  const auto texts = PanelTexts(figures);
  for (const std::size_t i : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u}) EXPECT_EQ(texts[i], "") << i;
  EXPECT_EQ(texts[8], " 3");
  const ComparedFigures totals = TotalsOf({figures});
  EXPECT_EQ(totals.present, 3);
  EXPECT_EQ(totals.passed + totals.failed, 0);
}

TEST_F(ComparedGradesTest, NamesOfFilesAreInCapitalsWhereverTheyLie) {
  OpenSlot(2, "one.TYR");
  OpenSlot(3, "sub/two.tyr");
  OpenSlot(4, "");
  EXPECT_EQ(ClassNames({1, 2, 3, 4}),
            (std::vector<std::string>{"ONE.TYR (/a)", "ONE.TYR (.)", "TWO.TYR", "NewClass 4"}));
}

// Five classes and their total, each with a long name: nothing leaves the page.
TEST_F(ComparedGradesTest, TheWidestTableStaysOnThePage) {
  ColumnLine line = {{1, "Range"}};
  for (int i = 0; i < 6; ++i)
    line.push_back({20 + 22 * i, "MATHEMATICS.TYR (/home/teacher/classes)"});
  screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("continue"); });
  PrintColumnLines("Head", {line});
  for (const PrintedText& text : screen.print_jobs[0]->pages[0].texts) {
    const double right = text.x + 10 * text.size * static_cast<double>(text.text.size());
    EXPECT_LE(right, Job.PageTextWidth + 1) << text.text;
  }
}

}  // namespace
}  // namespace tallyroll
