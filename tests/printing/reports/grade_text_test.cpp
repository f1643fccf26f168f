// SPDX-License-Identifier: GPL-3.0-or-later
// The grade reports as text files, line by line.
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

using GradeTextTest = SmallClassTest;

const std::string kTypesHead1 = Line({{1, "CATEGORY"}, {25, "TYPE"}, {33, "NUMBER"}});
const std::string kTypesHead2 = Line({{33, "OF GRADES"}});

TEST_F(GradeTextTest, AllGradesOfTheClass) {
  EXPECT_EQ(TextOf(1), (Rows{"                    Full Grades Printout",
                             "",  //
                             "17 Ng, Ada",
                             "Q1    T1    Q2",
                             "18    45    9",
                             "",
                             Row(77, '_'),
                             "",
                             "23 O'Hara, Bo",
                             "Q1    T1    Q2",
                             "ABS   40    NEW",
                             "",
                             Row(77, '_'),
                             "",
                             "42 Quist, Cy",
                             "Q1    T1    Q2",
                             "17.6  44    8.8",
                             "",
                             Row(77, '_'),
                             ""}));
}

TEST_F(GradeTextTest, AllGradesWithAttendanceAndComment) {
  Current().NumStudents = 1;
  Current().Students[1].comments = " Reads well. ";
  Choice.attendance1 = Choice.comment1 = true;
  const std::string periods = Line({{1, "Att. Summary"}, {26, "FT"}, {33, "SEP"}});
  const std::string cells = Line({{1, "(Total Abs/Late)"}, {26, "2/1"}, {33, "1/1"}});
  EXPECT_EQ(TextOf(1), (Rows{"                    Full Grades Printout", "",  //
                             "17 Ng, Ada", "Q1    T1    Q2", "18    45    9", periods, cells,
                             "Comments: Reads well.", "", Row(77, '_'), ""}));
}

TEST_F(GradeTextTest, TheCodesAreExplainedWhereThatIsChosen) {
  Current().NumStudents = 0;
  Choice.printcode = true;
  const auto grade = [](const char* title, const char* code, const char* type, const char* date,
                        const char* max) {
    return Line({{5, title}, {36, code}, {43, type}, {50, date}, {64, max}});
  };
  const auto type = [](const char* name, const char* code, const char* count, const char* max) {
    return Line({{1, name}, {25, code}, {33, count}, {54, max}});
  };
  EXPECT_EQ(TextOf(1),
            (Rows{"                    Full Grades Printout", "",
                  grade("TITLE", "CODE", "TYPE", " DATE", "MAX."), Line({{64, "SCORE"}}),
                  Row(80, '_'), grade("Fractions", "Q1", "Q", "9/3/2026", "20"),
                  grade("Midterm", "T1", "T", "9/10/2026", "50"),
                  grade("Decimals", "Q2", "Q", "9/17/2026", "10"), "",
                  kTypesHead1 + Line({{16, "MAX. SCORE"}}), kTypesHead2 + Line({{13, "POSSIBLE"}}),
                  Row(80, '_'), type("Quiz", "Q", "2", "30"), type("Test", "T", "1", "50")}));
}

TEST_F(GradeTextTest, AllGradesWithAverages) {
  const auto student = [](const char* name, const char* marks, const char* average,
                          const char* rounded) {
    return Rows{name,
                "Q1    T1    Q2",
                marks,
                "",
                std::string("AVERAGE IS: ") + average,
                std::string("ROUNDED AVERAGE/GRADE: ") + rounded,
                Row(77, '_'),
                ""};
  };
  Rows expected = {"                    Full Grades and Computed Average Printout", ""};
  for (const Rows& block :
       {student("17 Ng, Ada", "18    45    9", "90", " 90 (A-/EX/4.0)     "),
        student("23 O'Hara, Bo", "ABS   40    NEW", "80", " 80 (B-/SAT/3.0)    "),
        student("42 Quist, Cy", "17.6  44    8.8", "88", " 88 (B+/SAT/3.5)    ")})
    expected.insert(expected.end(), block.begin(), block.end());
  const Rows lines = TextOf(11);
  ASSERT_GT(lines.size(), expected.size());
  EXPECT_EQ(Rows(lines.begin(), lines.begin() + static_cast<long>(expected.size())), expected);
}

TEST_F(GradeTextTest, TheReportWithAveragesEndsWithWeightsAndTheClassesPercents) {
  const Rows lines = TextOf(11);
  ASSERT_EQ(lines.size(), 2U + 3 * 8 + 12);
  const auto grade = [](const char* title, const char* code, const char* type, const char* date,
                        const char* max, const char* weight) {
    return Line({{5, title}, {36, code}, {43, type}, {50, date}, {64, max}, {72, weight}});
  };
  // Quizzes: 27 of 30, nothing, 26.4 of 30: 53.4 of 60. Tests: 45, 40 and 44 of 50: 129 of 150.
  EXPECT_EQ(Rows(lines.end() - 12, lines.end()),
            (Rows{grade("TITLE", "CODE", "TYPE", " DATE", "MAX.", "WT."), Line({{64, "SCORE"}}),
                  Row(80, '_'), grade("Fractions", "Q1", "Q", "9/3/2026", "20", "25"),
                  grade("Midterm", "T1", "T", "9/10/2026", "50", "50"),
                  grade("Decimals", "Q2", "Q", "9/17/2026", "10", "25"), "",
                  kTypesHead1 + Line({{16, "MAX. SCORE"}, {28, "TYPE"}}),
                  kTypesHead2 + Line({{13, "POSSIBLE"}, {25, "AVG."}}), Row(80, '_'),
                  Line({{1, "Quiz"}, {25, "Q"}, {33, "4"}, {54, "60"}, {66, "89"}}),
                  Line({{1, "Test"}, {25, "T"}, {33, "3"}, {54, "150"}, {66, "86"}})}));
}

TEST_F(GradeTextTest, ATypeThatNobodyHasWrittenHasNoPercentInTheClass) {
  AddGrade("Poster", "P1", "P ", 40, "");
  EXPECT_EQ(TextOf(11).at(TextOf(11).size() - 3),
            Line({{1, "Project"}, {25, "P"}, {33, "0"}, {54, "0"}, {66, ""}}));
}

// The single lowest of Ng is Fractions (90 percent like the others, and the first), of O'Hara the
// Midterm, his only one, of Quist Fractions.
TEST_F(GradeTextTest, TheClassesTableCountsNoGradeThatIsDropped) {
  Class& c = Current();
  for (std::size_t i = 1; i < c.Instruments.size(); ++i) c.Instruments[i].dropyn = "Y";
  c.AverageFlag2 = kTrue;
  const Rows lines = TextOf(11);
  // 9 of 10 and 8.8 of 10; 45 and 44 of 50.
  EXPECT_EQ(lines.at(lines.size() - 2),
            Line({{1, "Quiz"}, {25, "Q"}, {33, "2"}, {54, "20"}, {66, "89"}}));
  EXPECT_EQ(lines.at(lines.size() - 1),
            Line({{1, "Test"}, {25, "T"}, {33, "2"}, {54, "100"}, {66, "89"}}));
}

Rows AllGradesOfAda(const std::string& title) {
  return {
      Row(80, '='),
      title,
      "",
      Line({{1, "TITLE"}, {34, "CODE"}, {40, "TP."}, {45, " DATE"}, {58, "GRADE"}, {66, "MAX."}}),
      Line({{66, "SCORE"}}),
      Row(80, '_'),
      Line({{1, "Fractions"}, {34, "Q1"}, {40, "Q"}, {45, "9/3/2026"}, {58, "18"}, {66, "20"}}),
      Line({{1, "Midterm"}, {34, "T1"}, {40, "T"}, {45, "9/10/2026"}, {58, "45"}, {66, "50"}}),
      Line({{1, "Decimals"}, {34, "Q2"}, {40, "Q"}, {45, "9/17/2026"}, {58, "9"}, {66, "10"}}),
      "   "};
}

TEST_F(GradeTextTest, AllGradesOfAStudent) {
  Rows expected = AllGradesOfAda(" All Grades for 17 Ng, Ada");
  const std::string head1 = kTypesHead1 + Line({{7, "TOTAL"}, {16, "MAX. SCORE"}});
  for (const std::string& line :
       {head1, kTypesHead2 + Line({{4, "SCORES"}, {13, "POSSIBLE"}}), Row(80, '_'),
        Line({{1, "Quiz"}, {25, "Q"}, {33, "2"}, {45, "27"}, {54, "30"}}),
        Line({{1, "Test"}, {25, "T"}, {33, "1"}, {45, "45"}, {54, "50"}}), std::string("    ")})
    expected.push_back(line);
  EXPECT_EQ(TextOf(13), expected);
}

TEST_F(GradeTextTest, AllGradesOfAStudentWithTheAverage) {
  Rows expected = AllGradesOfAda(" All Grades/Average for 17 Ng, Ada");
  expected[3] += Line({{5, "WT."}});  // behind "MAX.", which ends in column 69
  expected[6] += Line({{7, "25"}});   // behind a number of two digits
  expected[7] += Line({{7, "50"}});
  expected[8] += Line({{7, "25"}});
  for (const std::string& line :
       {kTypesHead1 + Line({{7, "TOTAL"}, {16, "MAX. SCORE"}, {28, "TYPE"}}),
        kTypesHead2 + Line({{4, "SCORES"}, {13, "POSSIBLE"}, {25, "AVG."}}), Row(80, '_'),
        Line({{1, "Quiz"}, {25, "Q"}, {33, "2"}, {45, "27"}, {54, "30"}, {66, "90"}}),
        Line({{1, "Test"}, {25, "T"}, {33, "1"}, {45, "45"}, {54, "50"}, {66, "90"}}),
        std::string("    "), std::string(), std::string("AVERAGE IS: 90"),
        std::string("ROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     ")})
    expected.push_back(line);
  EXPECT_EQ(TextOf(12), expected);
}

TEST_F(GradeTextTest, TheSummaryOfAStudent) {
  EXPECT_EQ(TextOf(17),
            (Rows{Row(80, '='), " Summary of Grades for 17 Ng, Ada", "",
                  kTypesHead1 + Line({{7, "TOTAL"}, {16, "MAX. SCORE"}}),
                  kTypesHead2 + Line({{4, "SCORES"}, {13, "POSSIBLE"}}), Row(80, '_'),
                  Line({{1, "Quiz"}, {25, "Q"}, {33, "2"}, {45, "27"}, {54, "30"}}),
                  Line({{1, "Test"}, {25, "T"}, {33, "1"}, {45, "45"}, {54, "50"}}), "    "}));
}

TEST_F(GradeTextTest, TheSummaryWithEverythingBelowIt) {
  Choice.attendance1 = Choice.comment1 = Choice.parentsig = true;
  Current().Students[1].comments = "Reads well.";
  const Rows lines = TextOf(18);
  EXPECT_EQ(lines[1], " Summary of Grades/Average for 17 Ng, Ada");
  ASSERT_EQ(lines.size(), 9U + 12);
  EXPECT_EQ(
      Rows(lines.begin() + 9, lines.end()),
      (Rows{Line({{1, "Att. Summary"}, {26, "FT"}, {33, "SEP"}}),
            Line({{1, "(Total Abs/Late)"}, {26, "2/1"}, {33, "1/1"}}), "Comments: Reads well.", "",
            "AVERAGE IS: 90", "ROUNDED AVERAGE/GRADE:  90 (A-/EX/4.0)     ", "", "", Row(48, '_'),
            "", "           Parent's Signature", ""}));
}

TEST_F(GradeTextTest, EachChosenStudentHasHisOwnReport) {
  Choice.students = {3, 1};
  const Rows lines = TextOf(17);
  ASSERT_EQ(lines.size(), 18U);
  EXPECT_EQ(lines[1], " Summary of Grades for 42 Quist, Cy");
  EXPECT_EQ(lines[10], " Summary of Grades for 17 Ng, Ada");
}

}  // namespace
}  // namespace tallyroll
