// SPDX-License-Identifier: GPL-3.0-or-later
// Where the pages of long reports break, by hand: a page begins at 1392 with its head or at 240
// without, a line is 240 high, and no line that is tested may pass 13880.
#include <algorithm>

#include "store/settings.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using Pages = std::vector<std::pair<int, int>>;

class ReportPagesTest : public ClassBuilder {
 protected:
  static void AddGrades(int count) {
    for (int i = 1; i <= count; ++i)
      AddGrade("Grade " + PlainNumberText(i), PlainNumberText(i), "Q ", 10, "");
  }
};

TEST_F(ReportPagesTest, FullGrades) {
  EnrolMany(30);
  AddGrades(3);
  LayOut(1);
  // A student takes a name, two lines of grades and two empty ones: 1200. He is fitted by 3 lines,
  // 720, the first by 2. On page 1 the eleventh begins at 13392 and does not fit; on later pages
  // the twelfth begins at 13440.
  EXPECT_EQ(PageTable(), (Pages{{1, 10}, {11, 21}, {22, 30}}));
}

TEST_F(ReportPagesTest, FullGradesWithTheirCodes) {
  EnrolMany(10);
  AddGrades(60);
  Choice.printcode = true;
  LayOut(1);
  // 60 grades are three rows of two lines, so a student takes 9 lines, 2160, and is fitted by 7,
  // 1680. The first five begin at 1392, 3552, 5712, 7872 and 10032, the sixth at 12192 ends at
  // 13872 by its fit. Page 2 has the other four from 240 to 8880; an empty line, heads on two
  // lines, and 17 rows end at 13680. Page 3: heads to 720 and the other 43 to 11040. The type takes
  // an empty line, two heads and 4 lines, which fit.
  EXPECT_EQ(PageTable(), (Pages{{1, 6}, {7, 27}, {28, 71}}));
}

TEST_F(ReportPagesTest, FullGradesWithAverages) {
  EnrolMany(20);
  AddGrades(3);
  Current().Method = 0;
  Current().Weights.assign(4, Currency::FromWhole(30));
  LayOut(11);
  // 7 lines a student, 1680; fitted by 6, 1440. Page 1: the eighth begins at 13152. Later pages:
  // the eighth begins at 12000 and ends at 13440 by its fit, the ninth does not fit. The last 5
  // end at 8640; three grades and a type follow there.
  EXPECT_EQ(PageTable(), (Pages{{1, 7}, {8, 15}, {16, 24}}));
}

TEST_F(ReportPagesTest, ABlockTallerThanAPageEndsTheReportAtTheStudentBehindIt) {
  EnrolMany(3);
  AddGrades(28 * 30);  // 30 rows of two lines, more than the 57 of a page
  Job.ReportCode = 1;
  screen.ExpectBox(
      "The report ends with 102 Last102, First: what is printed of one student takes more than a "
      "page. Choose a smaller font or narrower margins.");
  EXPECT_TRUE(LayOutReport());
  EXPECT_EQ(PageTable(), (Pages{{1, 1}, {2, 2}}));
}

TEST_F(ReportPagesTest, AllGradesOfStudentsGoOnInOneTable) {
  EnrolMany(2);
  AddGrades(60);
  Choice.students = {1, 2};
  LayOut(13);
  // An empty line, three lines of heads: rows from 2352. A row is fitted by two lines, its own and
  // the comment's: the 47th ends at 13632, the 48th would end at 14112 by its fit. On page 2 the
  // heads end at 960, and all others fit.
  EXPECT_EQ(PageTable(), (Pages{{1, 47}, {48, 62}, {1, 47}, {48, 62}}));
  EXPECT_EQ(Job.PageStudent, (std::vector<i16>{0, 1, 1, 2, 2}));
  EXPECT_EQ(PageRows(2)[0], "TITLE CODE TP.  DATE GRADE MAX.");
  EXPECT_EQ(PageRows(2)[2].substr(0, 8), "Grade 48");
  EXPECT_EQ(PageRows(3)[1], " All Grades for 102 Last102, First");
  EXPECT_EQ(PageRows(4).back(), "Page 4");
}

TEST_F(ReportPagesTest, ASummaryNeverStandsLowerThanFourLinesAboveTheBottom) {
  EnrolMany(1);
  AddGrade("Quiz", "Q1", "Q ", 10, "");
  AddGrade("Test", "T1", "T ", 10, "");
  AddGrade("Lab", "L1", "L ", 10, "");
  Choice.students = {1};
  MarginBottom = "-12000";  // the bottom at 2380
  LayOut(17);
  // Heads from 1392 to 1872; the first type is the page's first row and stays, the next, from 2112,
  // would need to 3072. Page 2: heads from 240 to 720, types at 720, 960 and what closes them, two
  // empty lines and four more, from 1200 to 2640, which does not fit.
  EXPECT_EQ(PageTable(), (Pages{{1, 1}, {2, 3}, {4, 4}}));
}

TEST_F(ReportPagesTest, TheRollBookRepeatsTheStudentsForEachBlock) {
  EnrolMany(60);
  AddGrades(10);  // eight stand in a block
  LayOut(3);
  // Three heads from 1392, 49 rows from 2112 end at 13872. Page 2: heads to 960, the other 11 to
  // 3600; an empty line and the second block's heads to 4560, 38 rows to 13680. Page 3 has the
  // other 22.
  EXPECT_EQ(PageTable(), (Pages{{1, 49}, {50, 98}, {99, 120}}));
  EXPECT_EQ(PageRows(3)[2].substr(0, 3), "139");  // the dates are empty
}

TEST_F(ReportPagesTest, FullTitlesTakeTheirLines) {
  EnrolMany(60);
  AddGrades(3);
  LayOut(4);
  // "Grade 1" is 630 twips at 9 points, three lines, and the students' head one: rows from 2352.
  // 48 end at 13872.
  EXPECT_EQ(PageTable(), (Pages{{1, 48}, {49, 60}}));
}

TEST_F(ReportPagesTest, MonthsLieAcrossTheSheet) {
  EnrolMany(45);
  Choice.month_first = kFirstOfSeptember;
  Choice.month_last = kFirstOfOctober;
  LayOut(8);
  // At 9 points a line is 216. Across, the sheet is 12240 high: the bottom is 12240 - 1000 - 864,
  // 10376. The head: 216, a line of 216 for the date, 336 twice, 216: 1320. Four lines of heads to
  // 2184, 37 rows end at 10176. Page 2: heads from 216 to 1080, 8 rows to 2808, an empty line and
  // the second month's heads to 3888, 30 rows to 10368. Page 3 has the other 15.
  EXPECT_EQ(PageTable(), (Pages{{1, 37}, {38, 75}, {76, 90}}));
}

TEST_F(ReportPagesTest, DaysOfAStudentBreakBetweenTheirLines) {
  EnrolMany(1);
  for (int day = 0; day < 312; ++day) AddDay(kFirstOfSeptember + day, "A");
  Choice.students = {1};
  LayOut(15);
  // The heading at 1392, then 52 lines of six dates: 51 of them end at 13872. The rows behind are
  // the 52nd line, 4 to close the code, and 3 for each of the other five.
  EXPECT_EQ(PageTable(), (Pages{{1, 52}, {53, 72}}));
}

TEST_F(ReportPagesTest, PeriodsOfAStudentFitAPage) {
  EnrolMany(1);
  for (int i = 1; i <= 20; ++i) AddPeriod("Period", "P", 1);
  Choice.students = {1};
  LayOut(24);
  EXPECT_EQ(PageTable(), (Pages{{1, 20}}));
}

TEST_F(ReportPagesTest, OneFormAStudentAndPage) {
  EnrolMany(3);
  Choice.students = {3, 1};
  LayOut(21);
  EXPECT_EQ(PageTable(), (Pages{{1, 1}, {1, 1}}));
  EXPECT_EQ(Job.PageStudent, (std::vector<i16>{0, 3, 1}));
  EXPECT_EQ(PageRows(2)[3].substr(0, 7), "Last101");
}

TEST_F(ReportPagesTest, ACommentKeepsItsLinesBelowEachRow) {
  EnrolMany(1);
  AddGrades(60);
  Choice.students = {1};
  Choice.comment1 = true;
  Current().Students[1].comments = std::string(316, 'c');
  LayOut(13);
  // 122.4 characters a line of the sheet: 316 + 50 are 2.99, so 3 lines. A row is fitted by 4:
  // from 2352 the 45th ends at 13872 by its fit.
  EXPECT_EQ(PageTable().front(), (std::pair<int, int>{1, 45}));
}

TEST_F(ReportPagesTest, ACommentLongerThanAPageLeavesNoPageEmpty) {
  EnrolMany(1);
  AddGrades(3);
  Choice.students = {1};
  Choice.comment1 = true;
  for (int i = 0; i < 2000; ++i) Current().Students[1].comments += "word ";
  LayOut(13);
  // Each of the three grades has its own page; the type stands with the last. The comment's first
  // line holds "COMMENTS: " and 20 words of 5 characters, 11000 of 11240 twips, the others 22: 91
  // lines. Below an empty line from 240, page 4 has 55 of them to 13680, page 5 the other 36.
  EXPECT_EQ(PageTable(), (Pages{{1, 1}, {2, 2}, {3, 4}, {5, 59}, {60, 95}}));
  EXPECT_EQ(PageRows(4).front().substr(0, 15), "COMMENTS: word ");
  EXPECT_EQ(PageRows(5).size(), 36U + 1);
}

TEST_F(ReportPagesTest, WhatClosesAStudentStaysTogether) {
  EnrolMany(1);
  AddGrades(1);
  AddPeriod("First term", "FT", 1);
  Choice.students = {1};
  Choice.attendance1 = Choice.comment1 = Choice.parentsig = true;
  Current().Students[1].comments = "Reads\r\nwell";
  // The type's row ends at 2112; an empty line, two of attendance, two of the comment, another
  // empty line and four more end at 4512. A bottom of 4512 holds them, one of 4511 does not.
  const auto bottom_at = [](int twips) { return PlainNumberText(twips - 15840 + 500 + 960); };
  MarginBottom = bottom_at(4512);
  LayOut(17);
  ASSERT_EQ(Job.PageBottom, 4512);
  EXPECT_EQ(PageTable(), (Pages{{1, 3}}));
  MarginBottom = bottom_at(4511);
  LayOut(17);
  EXPECT_EQ(PageTable(), (Pages{{1, 1}, {2, 3}}));
}

TEST_F(ReportPagesTest, ALongCommentWeighsAQuarterAndGoesOnOnTheNextPage) {
  EnrolMany(3);
  AddGrades(3);
  Choice.comment1 = true;
  for (int i = 0; i < 2000; ++i) Current().Students[2].comments += "word ";
  LayOut(1);
  // 9999 characters and 9 at 112 a line are 89 lines, 5340 twips in quarters: the second student,
  // from 2832, is fitted. It is printed on 91, taller than a page, so each is a row: the name, the
  // grades and the first line end at 3792, 42 more at 13872. Page 2 has the other 48 to 11760, the
  // lines that close the student to 12240, and the third student.
  EXPECT_EQ(PageTable(), (Pages{{1, 44}, {45, 93}}));
}

// The full grades with a comment on the middle one of three students.
class LongCommentTest : public ReportPagesTest, public testing::WithParamInterface<int> {
 protected:
  static constexpr int kWords = 2000;

  LongCommentTest() {
    EnrolMany(3);
    AddGrades(3);
    Current().Weights.assign(4, Currency::FromWhole(30));
    Current().Method = 0;
    Choice.comment1 = true;
    for (int i = 1; i <= kWords; ++i)
      Current().Students[2].comments += "w" + PlainNumberText(i) + " ";
  }
  static std::vector<std::string> AllWords() {
    std::vector<std::string> words;
    for (int page = 1; page <= Job.PageCount; ++page) {
      for (std::string row : PageRows(page)) {
        row += ' ';
        for (std::string word = NextWord(row); !word.empty(); word = NextWord(row))
          if (word != " ") words.push_back(word.substr(0, word.size() - 1));
      }
    }
    return words;
  }
};

TEST_P(LongCommentTest, EveryWordOfACommentLongerThanAPageIsPrintedOnce) {
  LayOut(static_cast<i16>(GetParam()));
  const std::vector<std::string> words = AllWords();
  const auto times = [&](const std::string& word) {
    return std::count(words.begin(), words.end(), word);
  };
  for (int i = 1; i <= kWords; ++i) EXPECT_EQ(times("w" + PlainNumberText(i)), 1) << i;
  for (const char* name : {"Last101,", "Last102,", "Last103,"}) EXPECT_EQ(times(name), 1) << name;
  EXPECT_EQ(times("COMMENTS:"), 3);
  EXPECT_EQ(times("Page"), Job.PageCount);
}

INSTANTIATE_TEST_SUITE_P(FullGrades, LongCommentTest, testing::Values(1, 11),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

}  // namespace
}  // namespace tallyroll
