// SPDX-License-Identifier: GPL-3.0-or-later
// A class of one student, written as a teacher would write it on a sheet.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "averages/rounding.h"
#include "base/number_text.h"
#include "store/class_defaults.h"

namespace tallyroll {

// One grade and the student's mark for it.
struct SheetLine {
  const char* type;
  int max;
  const char* mark;
  const char* weight = "0";
  const char* drop = "N";
  const char* count = "Y";
};

inline Currency Money(const char* text) {
  return LeadingCurrency(text);
}

class AverageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetStore();
    ResetAverages();
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    CurrentStudent = 1;
  }
  void TearDown() override {
    ResetStore();
    ResetAverages();
  }

  // Puts the grades into the class with one student and settles `method`.
  void Put(i16 method, const std::vector<SheetLine>& lines) {
    Class& c = Current();
    c.Method = method;
    c.NumInstruments = static_cast<i16>(lines.size());
    c.NumStudents = 1;
    ReDim(c.Instruments, c.NumInstruments);
    ReDim(c.Students, 1);
    ReDim(c.Students[1].Marks, c.NumInstruments);
    for (std::size_t i = 1; i <= lines.size(); ++i) {
      const SheetLine& line = lines[i - 1];
      Instrument& grade = c.Instruments[i];
      grade.title = "Grade " + PlainNumberText(static_cast<int>(i));
      grade.typecode = line.type;
      grade.mvalue = static_cast<i16>(line.max);
      grade.weight = Money(line.weight);
      grade.dropyn = line.drop;
      grade.countflag = line.count;
      c.Students[1].Marks[i] = line.mark;
    }
    const auto percents = c.TypePercents;
    PrepareWeights();
    c.TypePercents = percents;
  }

  static void Weigh(std::size_t type, const char* percent) {
    Current().TypePercents[type] = Money(percent);
  }
  static void DropLowestOf(std::size_t type) { Current().TypeWeights[type] = Money("2"); }

  // ExactAverage as text, exact to four decimals.
  std::string Average() {
    const AverageError error = ComputeAverage(totals);
    EXPECT_EQ(error.number, 0);
    return PlainNumberText(ExactAverage);
  }

  std::string Sum(std::size_t type) const { return PlainNumberText(totals.sums[type]); }
  std::string Max(std::size_t type) const { return PlainNumberText(totals.maxes[type]); }

  TypeTotals totals;
};

// Types by their places.
inline constexpr std::size_t kEssay = 4;
inline constexpr std::size_t kHomework = 6;
inline constexpr std::size_t kQuiz = 10;
inline constexpr std::size_t kTest = 12;
inline constexpr std::size_t kExtra = 13;

}  // namespace tallyroll
