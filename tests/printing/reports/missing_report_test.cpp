// SPDX-License-Identifier: GPL-3.0-or-later
// What is missing, of the class and of one student.
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using MissingReportTest = SmallClassTest;
using Pages = std::vector<std::pair<int, int>>;

const std::string kMissingHead =
    Line({{5, "TITLE"}, {36, "CODE"}, {43, "TYPE"}, {50, " DATE"}, {64, "GRADE"}});

std::string MissingLine(const char* title, const char* code, const char* type, const char* date,
                        const char* mark) {
  return Line({{5, title}, {36, code}, {43, type}, {50, date}, {64, mark}});
}

TEST_F(MissingReportTest, OnlyStudentsWithMissingGradesAreListed) {
  EXPECT_EQ(TextOf(2),
            (Rows{" Missing Grades for Class Printout", "", "23 O'Hara, Bo", kMissingHead,
                  Row(77, '_'), MissingLine("Fractions", "Q1", "Q", "9/3/2026", "ABS"),
                  MissingLine("Decimals", "Q2", "Q", "9/17/2026", "NEW"), "   "}));
}

TEST_F(MissingReportTest, CutAndNotDoneAreMissingAndExcusedIsNot) {
  SetMarks(1, {"CUT  ", "NON", "EXC"});
  SetMarks(2, {"1", "2", "3"});
  EXPECT_EQ(TextOf(2), (Rows{" Missing Grades for Class Printout", "", "17 Ng, Ada", kMissingHead,
                             Row(77, '_'), MissingLine("Fractions", "Q1", "Q", "9/3/2026", "CUT"),
                             MissingLine("Midterm", "T1", "T", "9/10/2026", "NON"), "   "}));
}

TEST_F(MissingReportTest, ABlankAheadOfAMarkMakesItAnother) {
  SetMarks(2, {" ABS", "abs", "1"});
  EXPECT_EQ(TextOf(2), (Rows{" Missing Grades for Class Printout", ""}));
}

TEST_F(MissingReportTest, OneStudentsListStandsBetweenWiderRules) {
  Choice.students = {2};
  EXPECT_EQ(TextOf(14), (Rows{Row(80, '='), "Missing Grades For 23 O'Hara, Bo", "", kMissingHead,
                              Row(80, '_'), MissingLine("Fractions", "Q1", "Q", "9/3/2026", "ABS"),
                              MissingLine("Decimals", "Q2", "Q", "9/17/2026", "NEW"), "   "}));
}

TEST_F(MissingReportTest, AStudentWithNothingMissingIsTold) {
  EXPECT_EQ(TextOf(14), (Rows{Row(80, '='), "Missing Grades For 17 Ng, Ada", "",
                              "17 Ng, Ada  is not missing any Grades", "   "}));
}

TEST_F(MissingReportTest, OnPaperOneBlankPartsTheNameFromIt) {
  LayOut(14);
  EXPECT_EQ(PageRows(1), (Rows{"9/1/2026", "Missing Grades For 17 Ng, Ada", "MATH",
                               "17 Ng, Ada is not missing any Grades", "Page 1"}));
}

TEST_F(MissingReportTest, ColumnsOnPaper) {
  LayOut(2);
  const PrintedPage page = Page(1);
  // The head of the report ends at 1392: the name, the heads, then the rows on lines of 240.
  const auto text_at = [&](double x, double y) -> std::string {
    for (const PrintedText& text : page.texts)
      if (text.x == x && text.y == y) return text.text;
    return "nothing";
  };
  EXPECT_EQ(text_at(0, 1392), "23 O'Hara, Bo");
  const std::vector<double> columns = {400, 3500, 4300, 4700, 5500};
  const std::vector<std::string> heads = {"TITLE", "CODE", "TYPE", " DATE", "GRADE"};
  const std::vector<std::string> row = {"Fractions", "Q1", "Q", "9/3/2026", "ABS"};
  for (std::size_t i = 0; i < columns.size(); ++i) {
    EXPECT_EQ(text_at(columns[i], 1632), heads[i]);
    EXPECT_EQ(text_at(columns[i], 1872), row[i]);
  }
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 1872, 11240, 1872}}));
}

TEST_F(MissingReportTest, NobodyMissingAnythingIsOnePageWithItsHead) {
  SetMarks(2, {"1", "2", "3"});
  LayOut(2);
  EXPECT_EQ(PageTable(), (Pages{{1, 0}}));
  EXPECT_EQ(PageRows(1),
            (Rows{"9/1/2026", " Missing Grades for Class Printout", "MATH", "Page 1"}));
}

class LongMissingTest : public ClassBuilder {
 protected:
  // Everything is missing.
  static void Fill(int students, int grades) {
    EnrolMany(students);
    for (int i = 1; i <= grades; ++i)
      AddGrade("Grade " + PlainNumberText(i), PlainNumberText(i), "Q ", 10, "");
  }
};

TEST_F(LongMissingTest, AListThatDoesNotFitWholeMovesToTheNextPage) {
  Fill(4, 20);
  LayOut(2);
  // A list needs 22 lines, 5280 twips, and leaves an empty one: 5520. Page 1: from 1392 to 6912
  // and 12432; a third would end at 17712. Later pages begin at 240: two lists.
  EXPECT_EQ(PageTable(), (Pages{{1, 40}, {41, 80}}));
  EXPECT_EQ(PageRows(2).front(), "103 Last103, First");
}

TEST_F(LongMissingTest, AListThatFitsToTheLastLineStays) {
  // 52 lines of 240 from 1392 end at 13872, 8 twips above the bottom: 50 grades, name and heads.
  Fill(1, 50);
  LayOut(2);
  EXPECT_EQ(PageTable(), (Pages{{1, 50}}));
}

TEST_F(LongMissingTest, AListThatNoPageHoldsIsSplit) {
  Fill(2, 60);
  LayOut(2);
  // The first fills page 1, whose 50th row is the last that fits, for no page is left empty. Its
  // other 10 rows begin page 2 at 240 and end at 2640, with an empty line at 2880. The second
  // begins page 3: its heads end at 720, and 54 rows of 240 end at 13680.
  EXPECT_EQ(PageTable(), (Pages{{1, 50}, {51, 60}, {61, 114}, {115, 120}}));
  EXPECT_EQ(PageRows(2).front(), "Grade 51 51 Q NEW");
  EXPECT_EQ(PageRows(3).front(), "102 Last102, First");
}

TEST_F(LongMissingTest, OneStudentsLaterPagesRepeatTheHeads) {
  Fill(1, 60);
  Choice.students = {1};
  LayOut(14);
  // Heads at 1392, rows from 1632: 51 rows end at 13872.
  EXPECT_EQ(PageTable(), (Pages{{1, 51}, {52, 60}}));
  EXPECT_EQ(PageRows(2).front(), "TITLE CODE TYPE DATE GRADE");
  EXPECT_EQ(PageRows(2)[1], "Grade 52 52 Q NEW");
}

}  // namespace
}  // namespace tallyroll
