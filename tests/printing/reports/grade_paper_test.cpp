// SPDX-License-Identifier: GPL-3.0-or-later
// The grade reports on paper: columns, heads, and which of them a method has. At 10 points the
// print font's "N" is 100 twips.
#include <algorithm>

#include "averages/engine/average_state.h"
#include "averages/engine/engine.h"
#include "store/settings.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

class GradePaperTest : public SmallClassTest {
 protected:
  PrintedPage OnPaper(i16 code) {
    LayOut(code);
    return Page(1);
  }
  // A row of PageRows, wherever it stands.
  static bool Has(const Rows& rows, const std::string& row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
  }
  Rows RowsOnPaper(i16 code) {
    LayOut(code);
    return PageRows(1);
  }
};

// ---- All grades of a student, columns in bases of 33 characters ----

TEST_F(GradePaperTest, RowsStandALittleBesideTheirHeads) {
  const PrintedPage page = OnPaper(12);
  // The head of the report ends at 1392, an empty line follows.
  EXPECT_EQ(Find(page, "TITLE"), (PrintedText{0, 1632, "TITLE", 10}));
  EXPECT_NEAR(Find(page, "CODE").x, 0.96 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "TP.").x, 1.1 * 3300, 0.01);
  EXPECT_NEAR(Find(page, " DATE").x, 1.2 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "GRADE").x, 1.44 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "MAX.").x, 1.61 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "WT.").x, 1.79 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "SCORE").x, 1.61 * 3300, 0.01);
  EXPECT_EQ(Find(page, "SCORE").y, 1872);
  // An empty line below the heads.
  EXPECT_EQ(Find(page, "Fractions"), (PrintedText{0, 2352, "Fractions", 10}));
  EXPECT_NEAR(Find(page, "Q1").x, 0.96 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "9/3/2026").x, 1.2 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "18").x, 1.45 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "20").x, 1.61 * 3300, 0.01);
  EXPECT_NEAR(Find(page, "25").x, 1.78 * 3300, 0.01);
}

TEST_F(GradePaperTest, ASmallFontHasWiderBases) {
  PrinterFontSize = 8;  // "N" is 80 twips
  EXPECT_NEAR(Find(OnPaper(13), "GRADE").x, 1.44 * 37 * 80, 0.01);
  PrinterFontSize = 9;
  EXPECT_NEAR(Find(OnPaper(13), "GRADE").x, 1.44 * 33 * 90, 0.01);
}

TEST_F(GradePaperTest, TheMethodHeadsTheLastColumn) {
  const auto head = [this](i16 code, i16 method) {
    Current().Method = method;
    return RowsOnPaper(code)[3];
  };
  const std::string plain = "TITLE CODE TP.  DATE GRADE MAX.";
  Current().TypePercents.fill(Currency::FromWhole(10));
  Current().InstrumentUse.assign(4, Currency::FromWhole(1));
  EXPECT_EQ(head(12, 0), plain + " WT.");
  EXPECT_EQ(head(12, 1), plain);
  EXPECT_EQ(head(12, 3), plain + " PT.");
  EXPECT_EQ(head(12, 5), plain);
  EXPECT_EQ(head(13, 0), plain);
  EXPECT_EQ(head(13, 3), plain);
}

TEST_F(GradePaperTest, PointsTellWhatCounts) {
  Class& c = Current();
  c.Method = 2;
  c.InstrumentUse = {Currency(), Currency::FromWhole(1), Currency::FromWhole(2),
                     Currency::FromWhole(1)};
  const Rows rows = RowsOnPaper(12);
  EXPECT_TRUE(Has(rows, "Fractions Q1 Q 9/3/2026 18 20 Y"));
  EXPECT_EQ(Find(Page(1), "N").y, Find(Page(1), "Midterm").y);
  // 18 and 9 of 20 and 10.
  EXPECT_TRUE(Has(rows, "TOTAL POINTS: 27.00/30  AVERAGE = 90"));
}

TEST_F(GradePaperTest, GradesSortedByTypeKeepTheirOrderWithinIt) {
  Choice.sort = TypeSort::kAllTypes;
  const Rows rows = RowsOnPaper(13);
  EXPECT_EQ(rows[5].substr(0, 9), "Fractions");
  EXPECT_EQ(rows[6].substr(0, 8), "Decimals");
  EXPECT_EQ(rows[7].substr(0, 7), "Midterm");
}

TEST_F(GradePaperTest, SomeTypesAlone) {
  Choice.sort = TypeSort::kSomeTypes;
  Choice.types = {"T"};
  const Rows rows = RowsOnPaper(13);
  EXPECT_EQ(rows[5].substr(0, 7), "Midterm");
  EXPECT_EQ(rows[6].substr(0, 8), "CATEGORY");
}

TEST_F(GradePaperTest, WithoutAWantedTypeTheHeadStandsAlone) {
  Choice.sort = TypeSort::kSomeTypes;
  const Rows rows = RowsOnPaper(13);
  EXPECT_EQ(rows[3], "TITLE CODE TP.  DATE GRADE MAX.");
  EXPECT_EQ(rows[4], "SCORE");
  EXPECT_EQ(rows[5].substr(0, 8), "CATEGORY");
  EXPECT_EQ(TextOf(13)[6], "   ");
}

TEST_F(GradePaperTest, WhatClosesAStudent) {
  Choice.attendance1 = Choice.comment1 = Choice.parentsig = true;
  Current().Students[1].comments = "Reads well.";
  const Rows rows = RowsOnPaper(12);
  EXPECT_EQ(Rows(rows.end() - 7, rows.end()),
            (Rows{"Att. Summary FT SEP", "(Total Abs/Late) 2/1 1/1", "COMMENTS: Reads well.",
                  "AVERAGE IS: 90", "ROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     ",
                  "Parent's Signature", "Page 1"}));
  EXPECT_EQ(Find(Page(1), "Parent's Signature").x, 1650);
}

TEST_F(GradePaperTest, TheSignatureStandsBelowThreeLinesARuleAndALine) {
  Choice.parentsig = true;
  const PrintedPage page = OnPaper(17);
  const double signature = Find(page, "Parent's Signature").y;
  // The table's last row, two empty lines of the report, three more, then the rule.
  EXPECT_EQ(page.lines.back().y1, signature - 240);
  EXPECT_EQ(Find(page, "Test").y, signature - 240 - 6 * 240);
}

// ---- The table of types ----

TEST_F(GradePaperTest, TypesStandInBasesOf25Characters) {
  const PrintedPage page = OnPaper(18);
  EXPECT_EQ(Find(page, "CATEGORY"), (PrintedText{0, 1392, "CATEGORY", 10}));
  EXPECT_NEAR(Find(page, "NUMBER").x, 1.33 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "TOTAL").x, 1.7 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "MAX. SCORE").x, 2 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "AVG.").x, 2.4 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "OF GRADES").x, 1.33 * 2500, 0.01);
  EXPECT_EQ(Find(page, "POSSIBLE").y, 1632);
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 1872, 11240, 1872}}));
  EXPECT_EQ(Find(page, "Quiz"), (PrintedText{0, 1872, "Quiz", 10}));
  EXPECT_EQ(Find(page, "Q").x, 2500);
  EXPECT_NEAR(Find(page, "27").x, 1.7 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "30").x, 2 * 2500, 0.01);
  EXPECT_NEAR(Find(page, "90").x, 2.4 * 2500, 0.01);
}

TEST_F(GradePaperTest, TheBaseOfTypesFollowsTheFont) {
  PrinterFontSize = 9;
  EXPECT_NEAR(Find(OnPaper(17), "MAX. SCORE").x, 2 * 27 * 90, 0.01);
  PrinterFontSize = 11;
  EXPECT_NEAR(Find(OnPaper(17), "MAX. SCORE").x, 2 * 22.2 * 110, 0.01);
}

TEST_F(GradePaperTest, WeightsByTypeHaveAColumn) {
  Current().TypePercents[10] = Currency::FromWhole(40);
  Current().TypePercents[12] = Currency::FromWhole(60);
  Current().Method = 1;
  EXPECT_TRUE(Has(RowsOnPaper(17), "CATEGORY TYPE NUMBER TOTAL MAX. SCORE WEIGHT"));
  EXPECT_TRUE(Has(PageRows(1), "Quiz Q 2 27 30 40"));
  Current().Method = 0;
  EXPECT_TRUE(Has(RowsOnPaper(17), "CATEGORY TYPE NUMBER TOTAL MAX. SCORE"));
}

TEST_F(GradePaperTest, TheClassesTableHasThePercentsOfAllStudents) {
  const Rows rows = RowsOnPaper(11);
  // 53.4 of 60 and 129 of 150.
  EXPECT_TRUE(Has(rows, "Quiz Q 4 60 89"));
  EXPECT_TRUE(Has(rows, "Test T 3 150 86"));
  EXPECT_EQ(Find(Page(1), "WT.").x, 6100);
  EXPECT_EQ(Find(Page(1), "25").x, 6100);
}

TEST_F(GradePaperTest, AMarkBeyondAllNumbersEndsTheReportWithItsReason) {
  SetMarks(2, {"9E99"});
  Job.ReportCode = 17;
  Choice.students = {2};
  CurrentStudent = 2;
  screen.ExpectBox(AverageErrorText({6, 2, 0}));
  EXPECT_FALSE(LayOutReport());
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
}

// ---- Full grades ----

TEST_F(GradePaperTest, GradesStandInColumnsOfFourCharacters) {
  const PrintedPage page = OnPaper(1);
  EXPECT_EQ(Find(page, "17 Ng, Ada"), (PrintedText{0, 1392, "17 Ng, Ada", 10}));
  EXPECT_EQ(Find(page, "T1"), (PrintedText{400, 1632, "T1", 10}));
  EXPECT_EQ(Find(page, "Q2"), (PrintedText{800, 1632, "Q2", 10}));
  EXPECT_EQ(Find(page, "45"), (PrintedText{400, 1872, "45", 10}));
  // An empty line, then the rule.
  EXPECT_EQ(page.lines.front(), (PrintedLine{0, 2352, 11240, 2352}));
  EXPECT_EQ(Find(page, "23 O'Hara, Bo").y, 2592);
}

TEST_F(GradePaperTest, AGradeStandsInARowWhileAWholeColumnIsLeft) {
  for (int i = 4; i <= 29; ++i) AddGrade("Grade", "g" + PlainNumberText(i), "Q ", 10, "");
  const PrintedPage page = OnPaper(1);
  // 11240 hold 28 columns of 400; the 29th goes to the next row.
  EXPECT_EQ(Job.WrapFirst, (std::vector<int>{0, 1, 29}));
  EXPECT_EQ(Job.WrapLast, (std::vector<int>{0, 28, 29}));
  EXPECT_EQ(Find(page, "g28"), (PrintedText{27 * 400, 1632, "g28", 10}));
  EXPECT_EQ(Find(page, "g29"), (PrintedText{0, 2112, "g29", 10}));
}

TEST_F(GradePaperTest, CodesAreExplainedInTheirColumns) {
  Choice.printcode = true;
  Current().NumStudents = 0;
  const PrintedPage page = OnPaper(1);
  EXPECT_EQ(Find(page, "TITLE"), (PrintedText{400, 1392, "TITLE", 10}));
  EXPECT_EQ(Find(page, "CODE").x, 3500);
  EXPECT_EQ(Find(page, "TYPE").x, 4300);
  EXPECT_EQ(Find(page, " DATE").x, 4700);
  EXPECT_EQ(Find(page, "MAX.").x, 5500);
  EXPECT_EQ(Find(page, "Fractions"), (PrintedText{400, 1872, "Fractions", 10}));
}

}  // namespace
}  // namespace tallyroll
