// SPDX-License-Identifier: GPL-3.0-or-later
// A class of 1,000 students and 300 grades, every fifth mark missing: each student stands on every
// report, in order, whatever the number of its rows.
#include <gtest/gtest.h>

#include "store/student_names.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 1000, kGrades = 300;

class BigClassTest : public ClassBuilder, public testing::WithParamInterface<int> {
 protected:
  BigClassTest() {
    for (int s = 1; s <= kStudents; ++s) {
      const std::string number = PlainNumberText(kFirstNumber + s);
      Enrol("L" + number, "F", number);
    }
    for (int i = 1; i <= kGrades; ++i)
      AddGrade("Title " + PlainNumberText(i), "g" + PlainNumberText(i), "Q ", 100, "9/3/2026");
    for (int s = 1; s <= kStudents; ++s)
      for (int i = 1; i <= kGrades; ++i)
        Current().Students[At(s)].Marks[At(i)] = (s + i) % 5 == 0 ? "NON" : "90";
    AddPeriod("First term", "FT", 1);
    AddDay(kFirstOfSeptember, std::string(kStudents, 'A'));
    Class& c = Current();
    c.Method = 0;
    c.Weights.assign(kGrades + 1, Currency::FromWhole(1));
    Choice.grade = Choice.summary = 1;
    Choice.month_first = Choice.month_last = kFirstOfSeptember;
    Choice.printcode = true;
    // The reports on one student are laid out for some of them: the others make no new rows.
    for (int s = 1; s <= kStudents; s += 25) Choice.students.push_back(static_cast<i16>(s));
  }
  static std::size_t At(int i) { return static_cast<std::size_t>(i); }
  static constexpr int kFirstNumber = 5000;

  // The number of the student whose name stands in a text; 0 is none.
  static int StudentIn(const std::string& text) {
    const std::size_t at = text.find('L');
    if (at == std::string::npos || text.substr(at + 1).find(", F") != 4) return 0;
    return std::stoi(text.substr(at + 1, 4)) - kFirstNumber;
  }
  static std::vector<int> StudentsOnPages() {
    std::vector<int> students;
    const auto box = Platform().MakePrintBox(PrintsLandscape());
    PrepareTarget(*box);
    for (int page = 1; page <= Job.PageCount; ++page) {
      EXPECT_TRUE(RenderPage(*box, page));
      for (const PrintedText& text : Drawn(*box).texts)
        if (const int student = StudentIn(text.text)) students.push_back(student);
    }
    return students;
  }
  // By name and ID eight grades stand in a block of the roll book.
  static int TimesInOrder() { return GetParam() == 3 || GetParam() == 4 ? (kGrades + 7) / 8 : 1; }
};

TEST_P(BigClassTest, EachStudentStandsOnTheReportInOrder) {
  LayOut(static_cast<i16>(GetParam()));
  std::vector<int> expected;
  if (FindReport(GetParam())->one_student)
    expected.assign(Choice.students.begin(), Choice.students.end());
  else
    for (int time = 0; time < TimesInOrder(); ++time)
      for (int s = 1; s <= kStudents; ++s) expected.push_back(s);
  EXPECT_EQ(StudentsOnPages(), expected);
}

// As many students as a class can hold: counting them must end.
class FullestClassTest : public ClassBuilder {};

TEST_F(FullestClassTest, TextsEndWithTheLastStudent) {
  constexpr int kMost = 32767;
  for (int s = 1; s <= kMost; ++s) Enrol("L", "F", PlainNumberText(s));
  AddGrade("Title", "g1", "Q ", 100, "9/3/2026");
  for (int s = 1; s <= kMost; ++s) Current().Students[static_cast<std::size_t>(s)].Marks[1] = "NON";
  for (const i16 code : {i16{1}, i16{2}}) {
    Job.ReportCode = code;
    Job.PrintFlag = kPrintRuns;
    EXPECT_NE(ReportText().find("32767"), std::string::npos) << code;
  }
}

// The information on the class names no student.
INSTANTIATE_TEST_SUITE_P(EveryCode, BigClassTest,
                         testing::Values(1, 2, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19,
                                         20, 21, 23, 24, 25),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

}  // namespace
}  // namespace tallyroll
