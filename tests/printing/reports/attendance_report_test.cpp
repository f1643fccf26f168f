// SPDX-License-Identifier: GPL-3.0-or-later
// Daily attendance: months of the class, and the days of one student.
#include <algorithm>

#include "printing/reports/month_table.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using AttendanceReportTest = SmallClassTest;

std::string Times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

class MonthsReportTest : public SmallClassTest {
 protected:
  MonthsReportTest() { Choice.month_first = Choice.month_last = kFirstOfSeptember; }
};

// ---- Months ----

TEST_F(MonthsReportTest, AMonthHasAColumnADayAndSevenTotals) {
  const auto at = [](const char* name, const char* id, const std::string& rest) {
    return Line({{1, name}, {24, id}, {35, rest}});
  };
  EXPECT_EQ(
      TextOf(8),
      (Rows{Line({{30, "Attendance Summary - September, 2026"}}),
            Line({{35, Times(4, "|Tu|We|Th|Fr|Sa|Su|Mo") + "|Tu|We|A |C |E |S |N |L |T"}}),
            at("Student", "|Student",
               Times(9, "|  ") + Times(10, "|1 ") + Times(10, "|2 ") + "|3 |B |U |X |P |O |A |O"),
            at("Name", "|ID",
               "|1 |2 |3 |4 |5 |6 |7 |8 |9 " + Times(2, "|0 |1 |2 |3 |4 |5 |6 |7 |8 |9 ") +
                   "|0 |S |T |C |A |T |T |T"),
            Row(152, '_'),
            at("Ng, Ada", "|17", "|A |L " + Times(28, "|  ") + "|1 |0 |0 |0 |0 |1 |1"),
            at("O'Hara, Bo", "|23", Times(30, "|  ") + "|0 |0 |0 |0 |0 |0 |0"),
            at("Quist, Cy", "|42", "|C |E " + Times(28, "|  ") + "|0 |1 |1 |0 |0 |0 |1"), ""}));
}

TEST_F(MonthsReportTest, TheStudentColumnByNameOrById) {
  Choice.shown = Shown::kName;
  EXPECT_EQ(TextOf(8)[2].substr(0, 36), Line({{1, "Student"}, {35, "| "}}));
  EXPECT_EQ(TextOf(8)[3].substr(0, 36), Line({{1, "Name"}, {35, "|1"}}));
  Choice.shown = Shown::kId;
  EXPECT_EQ(TextOf(8)[3].substr(0, 36), Line({{1, " ID"}, {35, "|1"}}));
  EXPECT_EQ(TextOf(8)[5].substr(0, 36), Line({{1, "17"}, {35, "|A"}}));
}

TEST_F(MonthsReportTest, ALongNameLeavesTheDaysInTheirColumns) {
  Current().Students[1].lastname = std::string(60, 'n');
  Current().Students[1].id = std::string(60, '1');
  EXPECT_EQ(TextOf(8)[5].substr(0, 36), Row(11, 'n') + "|\x85" + Row(21, '1') + "|A");
  Choice.shown = Shown::kName;
  EXPECT_EQ(TextOf(8)[5].substr(0, 36), Row(34, 'n') + "|A");
}

TEST_F(MonthsReportTest, IdsThatDifferAtTheirEndStayApart) {
  Current().Students[1].id = "2026-000000001";
  Current().Students[2].id = "2026-000000002";
  EXPECT_EQ(TextOf(8)[3].substr(0, 36), Line({{1, "Name"}, {20, "|ID"}, {35, "|1"}}));
  EXPECT_EQ(TextOf(8)[5].substr(0, 36), Line({{1, "Ng, Ada"}, {20, "|2026-000000001|A"}}));
  EXPECT_EQ(TextOf(8)[6].substr(0, 36), Line({{1, "O'Hara, Bo"}, {20, "|2026-000000002| "}}));
  LayOut(8);
  EXPECT_NE(Find(Page(1), "|2026-000000001").x, 0);
}

TEST_F(MonthsReportTest, EachMonthCountsItsOwnMarksAlone) {
  Choice.month_last = kFirstOfOctober;
  const Rows lines = TextOf(8);
  ASSERT_EQ(lines.size(), 18U);
  EXPECT_EQ(lines[9], Line({{30, "Attendance Summary - October, 2026"}}));
  // 31 days: the totals begin at 35 + 93.
  EXPECT_EQ(lines[16], Line({{1, "Quist, Cy"},
                             {24, "|42"},
                             {35, "|A " + Times(30, "|  ") + "|1 |0 |0 |0 |0 |0 |1"}}));
}

TEST_F(MonthsReportTest, MonthsCrossTheYear) {
  const std::vector<Month> months = MonthsOf(kFirstOfOctober, kFirstOfOctober + 31 + 30 + 31);
  ASSERT_EQ(months.size(), 4U);
  EXPECT_EQ(months[2].month, 12);
  EXPECT_EQ(months[3].year, 2027);
  EXPECT_EQ(months[3].month, 1);
  EXPECT_TRUE(MonthsOf(kFirstOfOctober, kFirstOfSeptember).empty());
}

TEST_F(MonthsReportTest, MonthsHaveTheirDays) {
  EXPECT_EQ(DaysIn({2026, 2}), 28);
  EXPECT_EQ(DaysIn({2028, 2}), 29);
  EXPECT_EQ(DaysIn({2026, 4}), 30);
  EXPECT_EQ(DaysIn({2026, 12}), 31);
  EXPECT_EQ(WeekdayOf({2026, 9}, 1), 2U);
  EXPECT_EQ(WeekdayOf({2028, 2}, 29), 2U);
}

TEST_F(MonthsReportTest, OnPaperTheTableFitsTheSheetLyingAcross) {
  Choice.month_last = kFirstOfOctober;
  LayOut(8);
  const Rows rows = PageRows(1);
  EXPECT_EQ(rows[1], "Attendance Summary - September, 2026 - October, 2026");
  EXPECT_EQ(rows[3], "Attendance Summary - September, 2026");
  // At 9 points a character has 90 twips: 152 columns are 13680 of 14840.
  const PrintedPage page = Page(1);
  EXPECT_EQ(Find(page, "Ng, Ada").x, 0);
  EXPECT_EQ(Find(page, "|17").x, 24 * 90);
  EXPECT_EQ(Find(page, "|Tu").x, 35 * 90);
}

// ---- One student's days ----

TEST_F(AttendanceReportTest, TheDaysOfEachCode) {
  Choice.students = {3};
  EXPECT_EQ(TextOf(15), (Rows{Row(80, '='),
                              "Attendance for 42 Quist, Cy",
                              "",  //
                              "Absences ",
                              "10/1/2026",
                              "",
                              "Number of Absences is 1",
                              "",
                              "",
                              "Cuts ",
                              "9/1/2026",
                              "",
                              "Number of Cuts is 1",
                              "",
                              "",  //
                              "Excused ",
                              "9/2/2026",
                              "",
                              "Number of Excused is 1",
                              "",
                              "",
                              "No Special Absences ",
                              "",
                              "",
                              "No Absences with a Note",
                              "",
                              "",  //
                              "No Lates ",
                              "",
                              "",
                              "   "}));
}

TEST_F(AttendanceReportTest, AnOccurredNoteRunsIntoItsVerb) {
  AddDay(kFirstOfOctober + 1, "N  ");
  const Rows lines = TextOf(15);
  EXPECT_NE(std::find(lines.begin(), lines.end(), "Number of Absences with a Noteis 1"),
            lines.end());
}

TEST_F(AttendanceReportTest, NoDateBeginsAtColumn69OrBeyond) {
  for (int day = 1; day <= 6; ++day) AddDay(kFirstOfOctober + day, "A  ");
  const Rows lines = TextOf(15);
  EXPECT_EQ(lines[4], Line({{1, "9/1/2026"},
                            {12, "10/2/2026"},
                            {24, "10/3/2026"},
                            {36, "10/4/2026"},
                            {48, "10/5/2026"},
                            {60, "10/6/2026"}}));
  EXPECT_EQ(lines[5], "10/7/2026");
  EXPECT_EQ(lines[7], "Number of Absences is 7");
}

TEST_F(AttendanceReportTest, DatesKeepTheOrderOfTheDays) {
  AddDay(kFirstOfSeptember - 1, "A  ");
  EXPECT_EQ(TextOf(15)[4], Line({{1, "9/1/2026"}, {12, "8/31/2026"}}));
}

TEST_F(AttendanceReportTest, TheParentSignsBelow) {
  Choice.parentsig = true;
  const Rows lines = TextOf(15);
  EXPECT_EQ(Rows(lines.end() - 7, lines.end()),
            (Rows{"", "", Row(48, '_'), "", "           Parent's Signature", "", "   "}));
}

TEST_F(AttendanceReportTest, OnPaperTheSignatureStandsAsBelowTheGrades) {
  Choice.parentsig = true;
  Choice.students = {2};
  LayOut(15);
  const PrintedPage page = Page(1);
  // Six codes that did not occur take three lines each from 1392; three empty lines, a rule and
  // another empty line follow. The words begin at half of 33 characters.
  const double signature = 1392 + 6 * 3 * 240 + 4 * 240;
  EXPECT_EQ(Find(page, "Parent's Signature"),
            (PrintedText{1650, signature, "Parent's Signature", 10}));
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, signature - 240, 11240, signature - 240}}));
}

TEST_F(AttendanceReportTest, DatesOnPaperAre12CharactersApart) {
  for (int day = 1; day <= 6; ++day) AddDay(kFirstOfOctober + day, "A  ");
  LayOut(15);
  const PrintedPage page = Page(1);
  std::vector<double> columns;
  for (const PrintedText& text : page.texts)
    if (text.text.ends_with("/2026") && text.y >= 1392) columns.push_back(text.x);
  // Seven absences and one late.
  EXPECT_EQ(columns, (std::vector<double>{0, 1200, 2400, 3600, 4800, 6000, 0, 0}));
}

TEST_F(AttendanceReportTest, AStudentWithoutDaysHasNone) {
  Current().NumDays = 0;
  Current().AttendanceDays.clear();
  Current().Students[1].DailyMarks.clear();
  EXPECT_EQ(TextOf(15), (Rows{Row(80, '='),
                              "Attendance for 17 Ng, Ada",
                              "",
                              "No Absences ",
                              "",
                              "",
                              "No Cuts ",
                              "",
                              "",
                              "No Excused ",
                              "",
                              "",
                              "No Special Absences ",
                              "",
                              "",
                              "No Absences with a Note",
                              "",
                              "",
                              "No Lates ",
                              "",
                              "",
                              "   "}));
}

}  // namespace
}  // namespace tallyroll
