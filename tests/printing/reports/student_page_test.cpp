// SPDX-License-Identifier: GPL-3.0-or-later
// The page of each student, held against the pages themselves: the first on which the name stands.
#include <algorithm>

#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

constexpr int kManyStudents = 160;

class StudentPageTest : public PrintPortalTest {
 protected:
  StudentPageTest() {
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ");
    AddSummary("Fall");
    EnrolMany(kManyStudents);
    AddDay(46266);
    for (int s = 1; s <= kManyStudents; ++s)
      MarkOfQuiz(s) = s % 3 == 0 ? "ABS" : PlainNumberText(s % 97);
    Choice.grade = Choice.summary = 1;
    Choice.month_first = Choice.month_last = 46266;
  }
  static ShortText& MarkOfQuiz(int s) {
    return Current().Students[static_cast<std::size_t>(s)].Marks[1];
  }

  void LayOutAndDraw(int code) {
    LayOut(static_cast<i16>(code));
    pages.clear();
    for (int page = 1; page <= Job.PageCount; ++page) pages.push_back(PageRows(page));
  }
  // 0 where no page has the name.
  int FirstPageWith(int s) const {
    const std::string name = "Last" + PlainNumberText(100 + s) + ",";
    const auto holds = [&](const std::string& row) { return row.find(name) != std::string::npos; };
    const auto found = std::ranges::find_if(
        pages, [&](const Rows& rows) { return std::ranges::any_of(rows, holds); });
    return found == pages.end() ? 0 : static_cast<int>(found - pages.begin()) + 1;
  }
  void ExpectPagesOfAll(int code) const {
    for (int s = 1; s <= kManyStudents; ++s)
      EXPECT_EQ(PageOfStudent(s), FirstPageWith(s)) << "student " << s << ", report " << code;
  }

  std::vector<Rows> pages;
};

TEST_F(StudentPageTest, AReportOfTheClassKnowsThePageOfEach) {
  for (const int code : {1, 3, 4, 8, 9, 11, 16, 19, 20, 23}) {
    LayOutAndDraw(code);
    ASSERT_GE(Job.PageCount, 2) << code;
    EXPECT_EQ(PageOfStudent(1), 1) << code;
    EXPECT_GE(PageOfStudent(kManyStudents), 2) << code;
    ExpectPagesOfAll(code);
  }
}

TEST_F(StudentPageTest, ARankedGradeHasThemInItsOwnOrder) {
  Choice.rank = Rank::kHighToLow;
  LayOutAndDraw(10);
  // 97 divides into no remainder: nobody has less than the student of that number.
  EXPECT_GT(PageOfStudent(97), PageOfStudent(95));
  EXPECT_EQ(PageOfStudent(95), 1);
  ExpectPagesOfAll(10);
}

TEST_F(StudentPageTest, WhoMissesNothingIsOnNoPageOfTheMissingGrades) {
  LayOutAndDraw(2);
  EXPECT_EQ(PageOfStudent(1), 0);
  EXPECT_EQ(PageOfStudent(3), 1);
  EXPECT_GE(PageOfStudent(159), 2);
  ExpectPagesOfAll(2);
}

TEST_F(StudentPageTest, AReportOnStudentsHasThePageWhereEachBegins) {
  Choice.students = {5, 2, 9};
  for (const int code : {12, 13, 14, 15, 17, 18, 21, 24}) {
    LayOutAndDraw(code);
    EXPECT_EQ(PageOfStudent(5), 1) << code;
    EXPECT_EQ(PageOfStudent(9), 3) << code;
    ExpectPagesOfAll(code);
  }
}

TEST_F(StudentPageTest, ABroadRollBookLeadsToTheFirstOfItsBlocks) {
  for (int i = 2; i <= 40; ++i) AddGrade("Quiz " + PlainNumberText(i), "Q ");
  LayOutAndDraw(3);
  EXPECT_EQ(PageOfStudent(1), 1);
  ExpectPagesOfAll(3);
}

TEST_F(StudentPageTest, AReportWithoutStudentsForgetsThoseOfTheLast) {
  LayOutAndDraw(19);
  LayOutAndDraw(22);
  EXPECT_EQ(PageOfStudent(1), 0);
  EXPECT_EQ(Job.FirstPage.size(), 1u);
}

}  // namespace
}  // namespace tallyroll
