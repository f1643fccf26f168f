// SPDX-License-Identifier: GPL-3.0-or-later
// Three students, three grades, three days and two periods of attendance, small enough to write
// every report on them by hand.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/printing/report_test.h"

namespace tallyroll {

// A line whose parts begin at columns, the first being 1.
inline std::string Line(const std::vector<std::pair<std::size_t, std::string>>& parts) {
  std::string line;
  for (const auto& [column, text] : parts) {
    EXPECT_LE(line.size(), column - 1) << text;
    line.resize(column - 1, ' ');
    line += text;
  }
  return line;
}

inline std::string Row(int count, char character) {
  return std::string(static_cast<std::size_t>(count), character);
}

// The first of these words on a page.
inline PrintedText Find(const PrintedPage& page, const std::string& words) {
  for (const PrintedText& text : page.texts)
    if (text.text == words) return text;
  ADD_FAILURE() << words << " is not on the page";
  return {};
}

class ClassBuilder : public ReportTest {
 protected:
  static Instrument& AddGrade(const std::string& title, const std::string& code,
                              const std::string& type, i16 max, const std::string& date) {
    Class& c = Current();
    ++c.NumInstruments;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    Instrument& grade = c.Instruments.back();
    grade.title = title;
    grade.code = code;
    grade.typecode = type;
    grade.mvalue = max;
    grade.testdate = date;
    for (std::size_t s = 1; s < c.Students.size(); ++s) {
      ReDimPreserve(c.Students[s].Marks, c.NumInstruments);
      c.Students[s].Marks.back() = "NEW";
    }
    return grade;
  }
  static void AddPeriod(const std::string& title, const std::string& code, i16 kind) {
    Class& c = Current();
    ++c.NumSummaries;
    ReDimPreserve(c.Summaries, c.NumSummaries);
    c.Summaries.back() = {title, code, kind, 0, "", ""};
    for (std::size_t s = 1; s < c.Students.size(); ++s) {
      ReDimPreserve(c.Students[s].SummaryAbsent, c.NumSummaries);
      ReDimPreserve(c.Students[s].SummaryLate, c.NumSummaries);
      ReDimPreserve(c.Students[s].SummaryDetail, c.NumSummaries);
      SetPeriod(static_cast<int>(s), c.NumSummaries, "0", "0", " 0/ 0/ 0/ 0/");
    }
  }
  static void SetPeriod(int student, int period, const char* absent, const char* late,
                        const char* detail) {
    Student& s = Current().Students[static_cast<std::size_t>(student)];
    const auto i = static_cast<std::size_t>(period);
    s.SummaryAbsent[i] = FixedText<5>(absent);
    s.SummaryLate[i] = late;
    s.SummaryDetail[i] = detail;
  }
  // One character a day and student.
  static void AddDay(double serial, const std::string& marks) {
    Class& c = Current();
    ++c.NumDays;
    ReDimPreserve(c.AttendanceDays, c.NumDays);
    c.AttendanceDays.back().date = serial;
    for (std::size_t s = 1; s < c.Students.size(); ++s) {
      ReDimPreserve(c.Students[s].DailyMarks, c.NumDays);
      c.Students[s].DailyMarks.back() = FixedText<1>(marks.substr(s - 1, 1));
    }
  }
  static void SetMarks(int student, const std::vector<std::string>& marks) {
    Student& s = Current().Students[static_cast<std::size_t>(student)];
    for (std::size_t i = 1; i <= marks.size(); ++i) s.Marks[i] = marks[i - 1];
  }
};

constexpr double kFirstOfSeptember = 46266;  // of 2026, a Tuesday
constexpr double kFirstOfOctober = 46296;

class SmallClassTest : public ClassBuilder {
 protected:
  SmallClassTest() {
    Enrol("Ng", "Ada", "17");
    Enrol("O'Hara", "Bo", "23");
    Enrol("Quist", "Cy", "42");
    AddGrade("Fractions", "Q1", "Q ", 20, "9/3/2026");
    AddGrade("Midterm", "T1", "T ", 50, "9/10/2026");
    AddGrade("Decimals", "Q2", "Q ", 10, "9/17/2026");
    SetMarks(1, {"18", "45", "9"});      // 90 percent throughout
    SetMarks(2, {"ABS", "40", "NEW"});   // 80 percent of what was written
    SetMarks(3, {"17.6", "44", "8.8"});  // 88 percent throughout
    AddDay(kFirstOfSeptember, "A C");
    AddDay(kFirstOfSeptember + 1, "L E");
    AddDay(kFirstOfOctober, "  A");
    AddPeriod("First term", "FT", 1);
    AddPeriod("September", "SEP", 2);
    SetPeriod(1, 1, "2", "1", " 0/ 0/ 0/ 0/");
    SetPeriod(1, 2, "1", "1", " 0/ 0/ 0/ 0/");
    SetPeriod(3, 2, "0", "0", " 1/ 1/ 0/ 0/");
    // Half for the test, a quarter for each quiz.
    Class& c = Current();
    c.Method = 0;
    const Currency quarter = Currency::FromWhole(25);
    c.Weights = {Currency(), quarter, Currency::FromWhole(50), quarter};
    Choice.students = {1};
  }
};

}  // namespace tallyroll
