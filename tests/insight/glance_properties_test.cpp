// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside a class is what its reports print and its statistics show, for every student
// and grade of random classes, and looking changes nothing.
#include "analysis/frmstatistic.h"
#include "base/text.h"
#include "insight/class_glance.h"
#include "insight/grade_glance.h"
#include "insight/student_glance.h"
#include "tests/printing/random_report_class.h"

namespace tallyroll {
namespace {

constexpr int kClasses = 200;
constexpr std::string_view kRounded = "ROUNDED AVERAGE/GRADE: ";
constexpr std::string_view kAverageIs = "AVERAGE IS: ", kAverageOfPoints = "AVERAGE = ";

struct PrintedAverage {
  std::string average;
  std::string grade;
};

class GlancePropertiesTest : public ReportTest {
 protected:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

  // Marks over the whole range, and every rule of the average now and then.
  void MakeClass() {
    made_.Make();
    Class& c = Current();
    for (Student& student : c.Students)
      for (std::size_t i = 1; i < student.Marks.size(); ++i)
        if (UpTo(3) > 0)
          student.Marks[i] = PlainNumberText(Currency::FromScaled(
              5000 * UpTo(2 * c.Instruments[i].mvalue + (UpTo(9) == 0 ? 20 : 0))));
    for (std::size_t i = 1; i < c.Instruments.size(); ++i) {
      c.Instruments[i].dropyn = UpTo(1) == 0 ? "Y" : "N";
      c.Instruments[i].lowpass = UpTo(2) == 0 ? PlainNumberText(UpTo(c.Instruments[i].mvalue)) : "";
    }
    c.AverageFlag1 = UpTo(1) == 0 ? kTrue : kFalse;
    c.AverageFlag2 = UpTo(2) == 0 ? kTrue : kFalse;
    c.AverageFlag3 = UpTo(2) == 0 ? kTrue : kFalse;
    c.AverageFlag4 = UpTo(1) == 0 ? kTrue : kFalse;
    c.RoundMode = static_cast<i16>(UpTo(1));
    for (Currency& weight : c.TypeWeights) weight = Currency::FromWhole(2 * UpTo(1));
  }

  // As the report with averages prints them, student after student.
  static std::vector<PrintedAverage> PrintedAverages() {
    std::vector<PrintedAverage> printed;
    for (const std::string& line : TextOf(11)) {
      for (const std::string_view head : {kAverageIs, kAverageOfPoints})
        if (const std::size_t at = line.find(head); at != std::string::npos)
          printed.push_back({std::string(Trim(line.substr(at + head.size()))), ""});
      if (const std::size_t at = line.find(kRounded); at != std::string::npos)
        printed.back().grade = Trim(std::string_view(line).substr(at + kRounded.size()));
    }
    return printed;
  }

  RandomReportClass made_{71};
  std::mt19937 random_{71};
};

TEST_F(GlancePropertiesTest, AveragesAreThoseOfTheReport) {
  int averages = 0, failing = 0;
  for (int n = 0; n < kClasses; ++n) {
    SCOPED_TRACE(n);
    MakeClass();
    const std::vector<PrintedAverage> printed = PrintedAverages();
    for (int s = 1; s <= Current().NumStudents; ++s) {
      const StudentGlance glance = LookAtStudent(s);
      const auto place = static_cast<std::size_t>(s) - 1;
      if (!glance.error.empty()) {
        EXPECT_EQ(printed.size(), place);  // the report ends with the reason
        break;
      }
      ASSERT_LT(place, printed.size());
      EXPECT_EQ(glance.average, printed[place].average);
      EXPECT_EQ(glance.final_words, printed[place].grade);
      EXPECT_EQ(glance.failing, printed[place].grade.find("F/UNSAT") != std::string::npos);
      failing += glance.failing ? 1 : 0;
      ++averages;
    }
  }
  EXPECT_GT(averages, 2000);
  EXPECT_GT(failing, 100);
}

TEST_F(GlancePropertiesTest, TheClassAverageIsTheMeanOfTheReport) {
  int classes = 0;
  for (int n = 0; n < kClasses; ++n) {
    SCOPED_TRACE(n);
    MakeClass();
    const std::vector<PrintedAverage> printed = PrintedAverages();
    const ClassGlance glance = LookAtClass();
    if (printed.size() != static_cast<std::size_t>(Current().NumStudents)) continue;
    double sum = 0;
    int counted = 0, best = 0;
    for (int s = 1; s <= Current().NumStudents; ++s) {
      const auto i = static_cast<std::size_t>(s);
      if (!glance.averages[i]) continue;
      EXPECT_EQ(PlainNumberText(*glance.averages[i]), printed[i - 1].average);
      sum += LeadingNumber(printed[i - 1].average);
      ++counted;
      const RankInClass rank = RankOf(glance, s);
      if (rank.place == 1) ++best;
    }
    ASSERT_EQ(glance.average.has_value(), counted > 0);
    if (counted == 0) continue;
    EXPECT_NEAR(glance.average->ToDouble(), sum / counted, 0.00501);
    EXPECT_GE(best, 1);
    ++classes;
  }
  EXPECT_GT(classes, 100);
}

TEST_F(GlancePropertiesTest, FiguresOfAGradeAreThoseOfTheStatistics) {
  int grades = 0;
  for (int n = 0; n < kClasses; ++n) {
    SCOPED_TRACE(n);
    MakeClass();
    frmstatistic statistics;
    statistics.Load();
    for (int j = 1; j <= Current().NumInstruments; ++j) {
      statistics.lsttitles.ListIndex = j - 1;
      statistics.lsttitles_Click();
      const GradeGlance glance = LookAtGrade(j, 0);
      EXPECT_EQ(glance.average.empty(),
                statistics.lsttitles.List.empty() || statistics.lsttitles.ListIndex < 0);
      if (glance.average.empty()) continue;
      EXPECT_EQ(" " + glance.average, statistics.average.Caption);
      EXPECT_EQ(" " + PlainNumberText(glance.counted), statistics.present.Caption);
      EXPECT_EQ(" " + PlainNumberText(glance.failed), statistics.failed.Caption);
      EXPECT_EQ(glance.to_pass, statistics.lpassv.Caption);
      EXPECT_TRUE(statistics.middle.Caption.starts_with("Median " + glance.median + ","));
      int counted = 0, failing = 0;
      for (const MarksInTen& ten : glance.tens) {
        counted += ten.count;
        failing += ten.failing;
      }
      EXPECT_EQ(counted, glance.counted);
      EXPECT_EQ(failing, glance.failed);
      ++grades;
    }
  }
  EXPECT_GT(grades, 1000);
}

TEST_F(GlancePropertiesTest, WhatIsMissingIsWhatTheReportLists) {
  std::size_t all = 0;
  for (int n = 0; n < kClasses; ++n) {
    SCOPED_TRACE(n);
    MakeClass();
    std::size_t of_students = 0, of_grades = 0;
    for (int s = 1; s <= Current().NumStudents; ++s) of_students += LookAtStudent(s).missing.size();
    for (int j = 1; j <= Current().NumInstruments; ++j)
      of_grades += static_cast<std::size_t>(LookAtGrade(j, 0).missing);
    EXPECT_EQ(of_students, of_grades);
    const Rows lines = TextOf(2);
    const auto listed = std::ranges::count_if(
        lines, [](const std::string& line) { return line.find("Title#") != std::string::npos; });
    EXPECT_EQ(of_students, static_cast<std::size_t>(listed));
    all += of_students;
  }
  EXPECT_GT(all, 1000U);
}

TEST_F(GlancePropertiesTest, LookingChangesNothing) {
  for (int n = 0; n < kClasses; ++n) {
    SCOPED_TRACE(n);
    MakeClass();
    for (Student& student : Current().Students)
      if (!student.Marks.empty()) student.Marks[0] = "-";
    CurrentStudent = 7;
    ExactAverage = LeadingCurrency("12.5");
    const Class before = Current();
    LookAtClass();
    for (int s = 0; s <= Current().NumStudents + 1; ++s) LookAtStudent(s);
    for (int j = 0; j <= Current().NumInstruments + 1; ++j) LookAtGrade(j, 1);
    EXPECT_TRUE(SameOnDisk(Current(), before));
    EXPECT_EQ(Current().TypeWeights, before.TypeWeights);
    EXPECT_EQ(Current().Students, before.Students);
    EXPECT_EQ(Current().Changed, before.Changed);
    EXPECT_EQ(CurrentStudent, 7);
    EXPECT_EQ(ExactAverage, LeadingCurrency("12.5"));
  }
}

}  // namespace
}  // namespace tallyroll
