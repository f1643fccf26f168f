// SPDX-License-Identifier: GPL-3.0-or-later
// The roll book: blocks of columns, dates without their year, orders, and titles that run upwards.
#include "printing/reports/roll_book.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

class RollBookReportTest : public SmallClassTest {
 protected:
  // The line of codes of each block.
  Rows Codes() {
    const Rows lines = TextOf(3);
    Rows codes;
    for (std::size_t i = 3; i < lines.size(); ++i)
      if (lines[i - 1].find("GRADES") != std::string::npos)
        codes.push_back(lines[i].substr(lines[i].find_first_not_of(' ')));
    return codes;
  }
  static void AddMany(int count) {
    for (int i = 4; i <= count; ++i)
      AddGrade("Grade " + PlainNumberText(i), PlainNumberText(i), "Q ", 10, "");
  }
};

TEST_F(RollBookReportTest, StudentsAgainstGrades) {
  const auto row = [](const char* label, const char* a, const char* b, const char* c) {
    return Line({{1, label}, {50, a}, {55, b}, {60, c}});
  };
  EXPECT_EQ(
      TextOf(3),
      (Rows{Line({{40, "ROLL BOOK"}}), "",  //
            Line({{1, "NAME and ID"}, {50, "GRADES"}}), Line({{50, "Q1"}, {55, "T1"}, {60, "Q2"}}),
            Line({{50, "9/3"}, {55, "9/10"}, {60, "9/17"}}), row("17  Ng, Ada", "18", "45", "9"),
            row("23  O'Hara, Bo", "ABS", "40", "NEW"), Row(89, '_'),
            row("42  Quist, Cy", "17.6", "44", "8.8"), Row(89, '_'), Row(89, '=')}));
}

TEST_F(RollBookReportTest, NamesAlone) {
  Choice.shown = Shown::kName;
  EXPECT_EQ(TextOf(3)[2], Line({{1, "NAME"}, {38, "GRADES"}}));
  EXPECT_EQ(TextOf(3)[5], Line({{1, "Ng, Ada"}, {38, "18"}, {43, "45"}, {48, "9"}}));
}

TEST_F(RollBookReportTest, IdsAlone) {
  Choice.shown = Shown::kId;
  EXPECT_EQ(TextOf(3)[2], Line({{1, "  ID"}, {25, "GRADES"}}));
  EXPECT_EQ(TextOf(3)[5], Line({{1, "17"}, {25, "18"}, {30, "45"}, {35, "9"}}));
}

TEST_F(RollBookReportTest, ADateLosesItsYear) {
  const auto without = [](const char* date) {
    Current().Instruments[1].testdate = date;
    return DateWithoutYear(1);
  };
  EXPECT_EQ(without("12/31/2026"), "12/31");
  EXPECT_EQ(without("31.12.2026"), "31.12");
  EXPECT_EQ(without("1.2/3.4"), "1.2");  // a "/" counts before a "."
  EXPECT_EQ(without("2026-12-31"), "202");
  EXPECT_EQ(without("ab"), "ab");
  EXPECT_EQ(without(""), "");
}

TEST_F(RollBookReportTest, NoColumnBeginsAt90OrBeyond) {
  AddMany(18);
  // From 50 in steps of 5 the eighth begins at 85.
  EXPECT_EQ(Codes(), (Rows{"Q1   T1   Q2   4    5    6    7    8",
                           "9    10   11   12   13   14   15   16", "17   18"}));
  // From 38 the eleventh begins at 88, from 25 the thirteenth at 85.
  Choice.shown = Shown::kName;
  EXPECT_EQ(Codes().size(), 2U);
  EXPECT_EQ(Codes()[1], "12   13   14   15   16   17   18");
  Choice.shown = Shown::kId;
  EXPECT_EQ(Codes()[1], "14   15   16   17   18");
}

TEST_F(RollBookReportTest, EachBlockHasAllStudents) {
  AddMany(9);
  const Rows lines = TextOf(3);
  // Two blocks of three heads, three rows, two rules between them and one below; an empty line
  // parts them.
  ASSERT_EQ(lines.size(), 2U + 2 * 9 + 1);
  EXPECT_EQ(lines[11], "");
  EXPECT_EQ(lines[15], Line({{1, "17  Ng, Ada"}, {50, "NEW"}}));
  EXPECT_EQ(lines[20], Row(89, '='));
}

TEST_F(RollBookReportTest, OrderedByType) {
  Current().Instruments[1].typecode = "T ";
  Choice.roll_order = RollBookOrder::kAllTypes;
  EXPECT_EQ(Codes(), (Rows{"Q2   Q1   T1"}));
  Choice.roll_order = RollBookOrder::kSomeTypes;
  Choice.types = {"T"};
  EXPECT_EQ(Codes(), (Rows{"Q1   T1"}));
}

TEST_F(RollBookReportTest, OrderedByDate) {
  Current().Instruments[1].testdate = "10/1/2026";
  Choice.roll_order = RollBookOrder::kAllDates;
  EXPECT_EQ(Codes(), (Rows{"T1   Q2   Q1"}));
  // Both ends of the range count.
  Choice.roll_order = RollBookOrder::kSomeDates;
  Choice.date_first = kFirstOfSeptember + 16;
  Choice.date_last = kFirstOfOctober;
  EXPECT_EQ(Codes(), (Rows{"Q2   Q1"}));
}

TEST_F(RollBookReportTest, ColumnsOnPaper) {
  LayOut(3);
  const PrintedPage page = Page(1);
  EXPECT_EQ(PageRows(1)[1], "ROLL BOOK");
  EXPECT_EQ(PageRows(1)[6], "17  Ng, Ada 18 45 9");
  // The head ends at 1392; three lines of heads, then the first student.
  EXPECT_EQ(Find(page, "T1"), (PrintedText{5500, 1632, "T1", 10}));
  EXPECT_EQ(Find(page, "9/17"), (PrintedText{6000, 1872, "9/17", 10}));
  EXPECT_EQ(Find(page, "45"), (PrintedText{5500, 2112, "45", 10}));
}

TEST_F(RollBookReportTest, APageTooNarrowForTheTableShrinksItsColumns) {
  FixedPrintTarget box;
  box.FontSize = 20;
  box.ScaleWidth = 10500;  // 9500 between the margins: 100 a column, where a letter has 200
  SetupPage(box);
  Job.ReportCode = 3;
  ASSERT_TRUE(LayOutRows(box));
  ASSERT_TRUE(RenderPage(box, 1));
  EXPECT_EQ(Find(box.job->pages.back(), "T1").x, 5500);
}

TEST_F(RollBookReportTest, FullTitlesRunUpwardsOverTheirColumns) {
  LayOut(4);
  std::vector<PrintedText> upwards;
  for (const PrintedText& text : Page(1).texts)
    if (text.upwards) upwards.push_back(text);
  // The longest, "Fractions", is 9 characters of 90 twips at 9 points: 810 in four lines of 240.
  // The titles begin where the line of the students' head is, at 1392 + 960.
  EXPECT_EQ(upwards, (std::vector<PrintedText>{{5000, 2352, "Fractions", 9, false, true},
                                               {5500, 2352, "Midterm", 9, false, true},
                                               {6000, 2352, "Decimals", 9, false, true}}));
  EXPECT_EQ(PageRows(1)[3], "NAME and ID");
  EXPECT_EQ(PageRows(1)[4], "17  Ng, Ada 18 45 9");
}

TEST_F(RollBookReportTest, BothBooksHaveTheSameRulesBetweenTheirStudents) {
  LayOut(4);
  // One below the heads, at 1392 + 5 * 240, none below the first student.
  EXPECT_EQ(Page(1).lines,
            (std::vector<PrintedLine>{
                {0, 2592, 11240, 2592}, {0, 3072, 11240, 3072}, {0, 3312, 11240, 3312}}));
  LayOut(3);
  // Three lines of heads from 1392. The rule that closes the book lies on that of the last student.
  EXPECT_EQ(Page(1).lines,
            (std::vector<PrintedLine>{
                {0, 2592, 11240, 2592}, {0, 2832, 11240, 2832}, {0, 2832, 11240, 2832}}));
}

TEST_F(RollBookReportTest, AClassOfOneHasARuleBelowItsRow) {
  Current().NumStudents = 1;
  LayOut(4);
  EXPECT_EQ(Page(1).lines,
            (std::vector<PrintedLine>{{0, 2592, 11240, 2592}, {0, 2832, 11240, 2832}}));
}

TEST_F(RollBookReportTest, OnPaperASecondBlockStandsApart) {
  AddMany(10);
  LayOut(3);
  // Three heads from 1392, three rows to 2832; an empty line and the heads again.
  EXPECT_EQ(Find(Page(1), "10"), (PrintedText{5500, 3072 + 240, "10", 10}));
}

TEST_F(RollBookReportTest, ATitleLongerThanHalfThePageIsCut) {
  Current().Instruments[2].title = std::string(100, 'w');
  LayOut(4);
  // Half of 13880 in lines of 240 are 29, 6960 twips: 77 characters of 90, the last an ellipsis.
  const std::string cut = std::string(76, 'w') + "\x85";
  EXPECT_EQ(Find(Page(1), cut).y, 1392 + 29 * 240);
}

TEST_F(RollBookReportTest, ALongTitleStaysBelowTheHead) {
  Current().Instruments[2].title = std::string(60, 'w');  // 5400 twips, 23 lines
  LayOut(4);
  EXPECT_GE(Find(Page(1), std::string(60, 'w')).y - 60 * 90, 1392);
}

}  // namespace
}  // namespace tallyroll
