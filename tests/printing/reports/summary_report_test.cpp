// SPDX-License-Identifier: GPL-3.0-or-later
// Attendance summaries: one period, all periods, and those of one student.
#include "printing/reports/report_parts.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using SummaryReportTest = SmallClassTest;
using Pages = std::vector<std::pair<int, int>>;

// ---- One period ----

TEST_F(SummaryReportTest, OnePeriodOfTheClass) {
  Current().Summaries[1].title = "First term  ";
  Choice.summary = 1;
  EXPECT_EQ(TextOf(9), (Rows{Line({{20, "FIRST TERM"}}), "",
                             Line({{1, "NAME"}, {40, "ID"}, {47, "TOTAL ABSENCE"}, {62, "LATE"}}),
                             Row(80, '_'), Line({{1, "Ng, Ada"}, {40, "17"}, {47, "2"}, {62, "1"}}),
                             Line({{1, "O'Hara, Bo"}, {40, "23"}, {47, "0"}, {62, "0"}}),
                             Line({{1, "Quist, Cy"}, {40, "42"}, {47, "0"}, {62, "0"}})}));
}

TEST_F(SummaryReportTest, OnePeriodByNameOrById) {
  Choice.summary = 1;
  Choice.shown = Shown::kName;
  EXPECT_EQ(TextOf(9)[2], Line({{1, "NAME"}, {47, "TOTAL ABSENCE"}, {62, "LATE"}}));
  EXPECT_EQ(TextOf(9)[4], Line({{1, "Ng, Ada"}, {47, "2"}, {62, "1"}}));
  Choice.shown = Shown::kId;
  EXPECT_EQ(TextOf(9)[2], Line({{1, "ID"}, {47, "TOTAL ABSENCE"}, {62, "LATE"}}));
  EXPECT_EQ(TextOf(9)[4], Line({{1, "17"}, {47, "2"}, {62, "1"}}));
}

TEST_F(SummaryReportTest, OnePeriodOnPaper) {
  Choice.summary = 2;
  LayOut(9);
  const PrintedPage page = Page(1);
  EXPECT_EQ(page.texts[1].text, "SEPTEMBER");
  EXPECT_EQ(std::vector<PrintedText>(page.texts.begin() + 7, page.texts.begin() + 11),
            (std::vector<PrintedText>{{0, 1632, "Ng, Ada", 10},
                                      {4000, 1632, "17", 10},
                                      {4700, 1632, "1", 10},
                                      {6200, 1632, "1", 10}}));
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 1632, 11240, 1632}}));
}

// ---- All periods ----

TEST_F(SummaryReportTest, AllPeriodsSideBySide) {
  const std::string columns = Line({{1, "NAME and ID"},
                                    {50, "Abs"},
                                    {55, "Late"},
                                    {60, "Abs"},
                                    {65, "Late"},
                                    {70, "Cut"},
                                    {75, "Exc"},
                                    {80, "Spa"},
                                    {85, "Note"}});
  const auto row = [](const char* label, const char* absent, const char* late,
                      const std::array<const char*, 6>& september) {
    return Line({{1, label},
                 {50, absent},
                 {55, late},
                 {60, september[0]},
                 {65, september[1]},
                 {70, september[2]},
                 {75, september[3]},
                 {80, september[4]},
                 {85, september[5]}});
  };
  EXPECT_EQ(TextOf(16),
            (Rows{Line({{40, "ATTENDANCE SUMMARY"}}), "", Line({{50, "FT"}, {60, "SEP"}}), columns,
                  Row(95, '_'), row("17  Ng, Ada", "2", "1", {"1", "1", "0", "0", "0", "0"}),
                  Row(95, '_'), row("23  O'Hara, Bo", "0", "0", {"0", "0", "0", "0", "0", "0"}),
                  Row(95, '_'), row("42  Quist, Cy", "0", "0", {"0", "0", "1", "1", "0", "0"}),
                  Row(95, '_'), Row(95, '=')}));
}

TEST_F(SummaryReportTest, OnPaperTwoHeadsAreShortenedWithAPoint) {
  LayOut(16);
  EXPECT_EQ(PageRows(1)[4], "NAME and ID Abs Late Abs Late Cut Exc. Spa. Note");
}

TEST_F(SummaryReportTest, APeriodBeyondTheLineGoesToAFurtherBlock) {
  // By ID the periods begin at 25. Two direct periods and two with details end at
  // 25 + 10 + 30 + 30 = 95 exactly, which fits; the next one does not.
  AddPeriod("October", "OCT", 2);
  AddPeriod("Second term", "ST", 1);
  Choice.shown = Shown::kId;
  const Rows lines = TextOf(16);
  EXPECT_EQ(lines[2], Line({{25, "FT"}, {35, "SEP"}, {65, "OCT"}}));
  // Three heads and three rows with their rules.
  EXPECT_EQ(lines[2 + 9], "");
  EXPECT_EQ(lines[2 + 9 + 1], Line({{25, "ST"}}));
  EXPECT_EQ(lines[2 + 9 + 4], Line({{1, "17"}, {25, "0"}, {30, "0"}}));
  EXPECT_EQ(lines.size(), 2U + 9 + 1 + 9 + 1);
}

TEST_F(SummaryReportTest, WithoutPeriodsTheStudentsStandAlone) {
  Current().NumSummaries = 0;
  const Rows lines = TextOf(16);
  EXPECT_EQ(lines[3], "NAME and ID");
  EXPECT_EQ(lines[5], "17  Ng, Ada");
}

// ---- One student ----

const Rows kStudentHeads = {Line({{41, "TOTAL"}}),
                            Line({{1, "TITLE"},
                                  {34, "CODE"},
                                  {41, "ABSENCE"},
                                  {50, "LATE"},
                                  {58, "CUT"},
                                  {63, "EXC"},
                                  {68, "SPA"},
                                  {73, "NOTE"}}),
                            Row(80, '_')};

TEST_F(SummaryReportTest, PeriodsOfAStudentWithDetailsWhereTheyAreCounted) {
  Choice.students = {3};
  EXPECT_EQ(TextOf(24), (Rows{Line({{15, " Summary of Attendance for 42 Quist, Cy"}}), Row(80, '='),
                              kStudentHeads[0], kStudentHeads[1], kStudentHeads[2],
                              Line({{1, "First term"}, {34, "FT"}, {45, "0"}, {50, "0"}}),
                              Line({{1, "September"},
                                    {34, "SEP"},
                                    {45, "0"},
                                    {50, "0"},
                                    {58, "1"},
                                    {63, "1"},
                                    {68, "0"},
                                    {73, "0"}}),
                              "   "}));
}

TEST_F(SummaryReportTest, PaperHasTheSignatureThatTheTextHas) {
  Choice.parentsig = true;
  EXPECT_EQ(TextOf(24).at(11), "           Parent's Signature");
  LayOut(24);
  // Heads on two lines from 1392, two periods, three empty lines, a rule and another empty line.
  const PrintedPage page = Page(1);
  const double signature = 1392 + 2 * 240 + 2 * 240 + 4 * 240;
  EXPECT_EQ(page.texts[page.texts.size() - 2],
            (PrintedText{1650, signature, "Parent's Signature", 10}));
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 1872, 11240, 1872},
                                                  {0, signature - 240, 11240, signature - 240}}));
}

TEST_F(SummaryReportTest, AllPeriodsBreakPagesBetweenStudents) {
  EnrolMany(97);
  LayOut(16);
  // Heads on two lines from 1392: 50 rows of 240 end at 13872. Then heads from 240: 54 rows.
  EXPECT_EQ(PageTable(), (Pages{{1, 50}, {51, 100}}));
  EXPECT_EQ(PageRows(2)[0], "FT SEP");
}

// ---- In the grade reports ----

TEST_F(SummaryReportTest, TheTotalLeavesExcusedAbsencesOut) {
  // 2 absences, 1 cut, 4 excused, 3 special, 5 with a note.
  SetPeriod(1, 2, "2", "6", " 1/ 4/ 3/ 5/");
  CurrentStudent = 1;
  EXPECT_EQ(AttendanceCell(Current().Students[1], 2), "11/6");
}

TEST_F(SummaryReportTest, ATotalBelow1LeavesTheAbsencesAsTheyWereEntered) {
  SetPeriod(1, 1, "0.5", "1", "");
  EXPECT_EQ(AttendanceCell(Current().Students[1], 1), "0.5/1");
  SetPeriod(1, 1, "", "", "");
  EXPECT_EQ(AttendanceCell(Current().Students[1], 1), "/");
  SetPeriod(1, 1, "none", "", "0/7/0/0/");
  EXPECT_EQ(AttendanceCell(Current().Students[1], 1), "none/");
}

TEST_F(SummaryReportTest, PeriodsInAGradeReportGoOnInAFurtherRow) {
  for (int i = 3; i <= 14; ++i) AddPeriod("Period", "P" + PlainNumberText(i), 1);
  Choice.attendance1 = true;
  LayOut(17);
  // 112.4 columns less 25 are 12 periods of 7.
  const PrintedPage page = Page(1);
  std::vector<PrintedText> codes;
  for (const PrintedText& text : page.texts)
    if (text.text == "FT" || text.text == "P12" || text.text == "P13") codes.push_back(text);
  ASSERT_EQ(codes.size(), 3U);
  EXPECT_EQ(codes[0].x, 2500);
  EXPECT_EQ(codes[1].x, 2500 + 11 * 700);
  EXPECT_EQ(codes[2].x, 2500);
  EXPECT_EQ(codes[2].y, codes[1].y + 2 * 240);
}

}  // namespace
}  // namespace tallyroll
