// SPDX-License-Identifier: GPL-3.0-or-later
// One grade of all students, by name, ID or both, and ranked.
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

class OneGradeReportTest : public SmallClassTest {
 protected:
  OneGradeReportTest() { Choice.grade = 1; }

  // The labels in their order, as the text file has them in its rows.
  Rows Labels() {
    const Rows lines = TextOf(10);
    Rows labels;
    for (std::size_t i = 4; i < lines.size(); i += 2) {
      const std::size_t begin = lines[i].find_first_not_of(' ');
      labels.push_back(lines[i].substr(begin, lines[i].find("  ", begin) - begin));
    }
    return labels;
  }
};

TEST_F(OneGradeReportTest, NamesAndIds) {
  EXPECT_EQ(TextOf(10),
            (Rows{" Fractions", "", Line({{5, "NAME"}, {40, "ID"}, {60, "GRADE"}}), Row(80, '_'),
                  Line({{5, "Ng, Ada"}, {40, "17"}, {60, "18"}}), Row(80, '_'),
                  Line({{5, "O'Hara, Bo"}, {40, "23"}, {60, "ABS"}}), Row(80, '_'),
                  Line({{5, "Quist, Cy"}, {40, "42"}, {60, "17.6"}}), Row(80, '_')}));
}

TEST_F(OneGradeReportTest, NamesAlone) {
  Choice.shown = Shown::kName;
  EXPECT_EQ(TextOf(10)[2], Line({{5, "NAME"}, {45, "GRADE"}}));
  EXPECT_EQ(TextOf(10)[4], Line({{5, "Ng, Ada"}, {45, "18"}}));
}

TEST_F(OneGradeReportTest, IdsAlone) {
  Choice.shown = Shown::kId;
  EXPECT_EQ(TextOf(10)[2], Line({{5, "ID"}, {45, "GRADE"}}));
  EXPECT_EQ(TextOf(10)[4], Line({{5, "17"}, {45, "18"}}));
}

TEST_F(OneGradeReportTest, RankedFromHighToLowWithoutAMarkLast) {
  SetMarks(1, {"A-"});  // a letter ranks by its value, 90
  SetMarks(3, {"100"});
  Choice.rank = Rank::kHighToLow;
  EXPECT_EQ(Labels(), (Rows{"Quist, Cy", "Ng, Ada", "O'Hara, Bo"}));
}

TEST_F(OneGradeReportTest, RankedFromLowToHigh) {
  SetMarks(2, {"9"});  // below 17.6 as a number, though not as text
  Choice.rank = Rank::kLowToHigh;
  EXPECT_EQ(Labels(), (Rows{"O'Hara, Bo", "Quist, Cy", "Ng, Ada"}));
}

TEST_F(OneGradeReportTest, EqualMarksKeepTheOrderOfTheClass) {
  for (int s = 1; s <= 3; ++s) SetMarks(s, {"5"});
  for (const Rank rank : {Rank::kNone, Rank::kHighToLow, Rank::kLowToHigh}) {
    Choice.rank = rank;
    EXPECT_EQ(Labels(), (Rows{"Ng, Ada", "O'Hara, Bo", "Quist, Cy"}));
  }
}

TEST_F(OneGradeReportTest, ColumnsAndRulesOnPaper) {
  LayOut(10);
  const PrintedPage page = Page(1);
  // Date, title and the teacher's title come first; the heads stand at 1392.
  EXPECT_EQ(page.texts[1].text, " Fractions");
  const std::vector<PrintedText> heads(page.texts.begin() + 3, page.texts.begin() + 9);
  EXPECT_EQ(heads, (std::vector<PrintedText>{{400, 1392, "NAME", 10},
                                             {3000, 1392, "ID", 10},
                                             {4500, 1392, "GRADE", 10},
                                             {400, 1632, "Ng, Ada", 10},
                                             {3000, 1632, "17", 10},
                                             {4500, 1632, "18", 10}}));
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 1632, 11240, 1632},
                                                  {0, 1872, 11240, 1872},
                                                  {0, 2112, 11240, 2112},
                                                  {0, 2352, 11240, 2352}}));
}

TEST_F(OneGradeReportTest, LaterPagesRepeatTheHeads) {
  EnrolMany(100);
  LayOut(10);
  // Page 1: rows from 1632, 51 of them end at 13872. Later pages have their heads at 240 and rows
  // from 480: 55 end at 13680, one more would end at 13920.
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 51}, {52, 103}}));
  EXPECT_EQ(PageRows(2).front(), "NAME ID GRADE");
}

}  // namespace
}  // namespace tallyroll
