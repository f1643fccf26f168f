// SPDX-License-Identifier: GPL-3.0-or-later
// Classes without students, grades, days or summaries: every report is still a page or a file.
#include <algorithm>

#include "printing/reports/html_report.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using Pages = std::vector<std::pair<int, int>>;

class EmptyReportTest : public ClassBuilder, public testing::WithParamInterface<int> {
 protected:
  EmptyReportTest() {
    Choice.attendance1 = Choice.comment1 = Choice.parentsig = Choice.printcode = true;
    Choice.month_first = Choice.month_last = kFirstOfSeptember;
    Job.ReportCode = static_cast<i16>(GetParam());
    Current().Weights = {Currency()};
  }
  bool OnStudents() const { return FindReport(GetParam())->one_student; }
};

TEST_P(EmptyReportTest, WithoutStudents) {
  LayOut(Job.ReportCode);
  if (OnStudents()) {
    EXPECT_EQ(Job.PageCount, 0);
    EXPECT_EQ(ReportText(), "");
    return;
  }
  ASSERT_EQ(Job.PageCount, 1);
  EXPECT_EQ(Job.PageFirst[1], 1);
  EXPECT_EQ(PageRows(1).back(), "Page 1");
  EXPECT_FALSE(ReportText().empty());
  EXPECT_TRUE(ReportHtml().ends_with("</html>"));
}

TEST_P(EmptyReportTest, WithStudentsAndNothingElse) {
  EnrolMany(2);
  Choice.students = {1, 2};
  LayOut(Job.ReportCode);
  EXPECT_EQ(Job.PageCount, OnStudents() ? 2 : 1);
  for (int page = 1; page <= Job.PageCount; ++page)
    EXPECT_EQ(PageRows(page).back(), "Page " + PlainNumberText(page));
  EXPECT_FALSE(ReportText().empty());
}

// The reports on one grade and one period cannot be chosen in such a class.
INSTANTIATE_TEST_SUITE_P(EveryCode, EmptyReportTest,
                         testing::Values(1, 2, 3, 4, 8, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
                                         22, 23, 24, 25),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

class EmptyTableTest : public ClassBuilder {};

TEST_F(EmptyTableTest, HeadsStandWithoutRows) {
  LayOut(19);
  EXPECT_EQ(PageTable(), (Pages{{1, 0}}));
  EXPECT_EQ(PageRows(1)[3], "NAME ID NOTES");
  LayOut(3);
  EXPECT_EQ(PageRows(1)[3], "NAME and ID GRADES");
}

TEST_F(EmptyTableTest, HeadsThatDoNotFitAreLeftOut) {
  Choice.month_first = kFirstOfSeptember;
  Choice.month_last = kFirstOfSeptember + 500;  // 17 months
  LayOut(8);
  EXPECT_EQ(PageTable(), (Pages{{1, 0}}));
  // Four lines of 216 a month, parted by one: from 1320 to the bottom at 10376 are eight months.
  const Rows rows = PageRows(1);
  EXPECT_EQ(std::count_if(rows.begin() + 3, rows.end(),
                          [](const std::string& row) { return row.starts_with("Attendance"); }),
            8);
}

TEST_F(EmptyTableTest, AStudentWithoutGradesHasAnAverageOfZero) {
  EnrolMany(1);
  Current().Weights = {Currency()};
  Choice.students = {1};
  const Rows lines = TextOf(18);
  EXPECT_EQ(lines[8], "AVERAGE IS: 0");
  EXPECT_EQ(lines[9], "ROUNDED AVERAGE/GRADE:  0 (F/UNSAT/ABS)  ");
}

TEST_F(EmptyTableTest, GradesWithoutATypeHaveNoRowInTheTableOfTypes) {
  EnrolMany(1);
  AddGrade("Fractions", "F", "?? ", 10, "");
  Choice.students = {1};
  EXPECT_EQ(TextOf(17).size(), 7U);  // title, heads and the line that closes it
  EXPECT_EQ(TextOf(13)[6].substr(0, 9), "Fractions");
}

}  // namespace
}  // namespace tallyroll
