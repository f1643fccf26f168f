// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for averages of every class, tried on random ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <random>

#include "tests/averages/engine/average_test.h"

namespace {
std::size_t allocations = 0;
}

// Counts every block from the heap.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++allocations;
  return std::malloc(size != 0 ? size : 1);
}
void* operator new(std::size_t size) {
  if (void* block = operator new(size, std::nothrow)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}

namespace tallyroll {
namespace {

constexpr int kClasses = 200;
constexpr const char* kTypes[] = {"HW", "Q ", "T", "E", "X"};

class AveragePropertiesTest : public AverageTest {
 protected:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }

  std::string AnyMark(int max) {
    constexpr const char* kSpecial[] = {"NEW", "ABS", "EXC", "CUT", "NON", "B+", "A-"};
    if (UpTo(5) == 0) return kSpecial[UpTo(6)];
    return PlainNumberText(Currency::FromScaled(5000 * UpTo(2 * max)));
  }

  // A class of a few students and grades of `types` types, each with a weight, ready for work.
  void MakeClass(i16 method, int types) {
    ResetStore();
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    Class& c = Current();
    c.Method = method;
    c.RoundMode = 0;
    c.NumInstruments = static_cast<i16>(1 + UpTo(19));
    c.NumStudents = static_cast<i16>(1 + UpTo(5));
    ReDim(c.Instruments, c.NumInstruments);
    ReDim(c.Students, c.NumStudents);
    for (std::size_t i = 1; i < c.Instruments.size(); ++i) {
      Instrument& grade = c.Instruments[i];
      grade.typecode = kTypes[UpTo(types - 1)];
      grade.mvalue = static_cast<i16>(5 * (1 + UpTo(19)));
      grade.weight = Currency::FromScaled(UpTo(200000));
      grade.dropyn = UpTo(1) == 0 ? "Y" : "N";
    }
    for (std::size_t s = 1; s < c.Students.size(); ++s) {
      ReDim(c.Students[s].Marks, c.NumInstruments);
      for (std::size_t i = 1; i < c.Instruments.size(); ++i)
        c.Students[s].Marks[i] = AnyMark(c.Instruments[i].mvalue);
    }
    PrepareWeights();
    for (const std::size_t t : {kHomework, kQuiz, kTest, kEssay, kExtra}) {
      c.TypePercents[t] = Money("25");
      if (t != kExtra) c.TypeWeights[t] = Money(UpTo(1) == 0 ? "2" : "0");
    }
  }

  Currency AverageOf(std::size_t student) {
    CurrentStudent = static_cast<i16>(student);
    EXPECT_EQ(ComputeAverage(totals).number, 0);
    return ExactAverage;
  }

  std::vector<Currency> AveragesById() {
    std::vector<std::pair<std::string, Currency>> averages;
    for (std::size_t s = 1; s < Current().Students.size(); ++s)
      averages.emplace_back(Current().Students[s].id, AverageOf(s));
    std::sort(averages.begin(), averages.end());
    std::vector<Currency> figures;
    for (const auto& [id, average] : averages) figures.push_back(average);
    return figures;
  }

  std::mt19937 random{20261121};
};

TEST_F(AveragePropertiesTest, EqualWeightsGiveTheMeanOfThePercents) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass(0, 4);
    Class& c = Current();
    c.TypeWeights.fill(Currency());
    const int grades = c.NumInstruments;
    // As the weights Portal shares 100 out: three decimals each, and the last takes the rest.
    const int share = (100000 + grades / 2) / grades;
    for (int i = 1; i <= grades; ++i) {
      const int thousandths = i < grades ? share : 100000 - share * (grades - 1);
      c.Weights[static_cast<std::size_t>(i)] = Currency::FromScaled(10 * thousandths);
    }
    double percents = 0;
    for (std::size_t i = 1; i < c.Instruments.size(); ++i) {
      const int half_points = UpTo(2 * c.Instruments[i].mvalue);
      c.Students[1].Marks[i] = PlainNumberText(Currency::FromScaled(5000 * half_points));
      percents += 50.0 * half_points / c.Instruments[i].mvalue;
    }
    EXPECT_NEAR(AverageOf(1).ToDouble(), percents / grades, 0.01);
  }
}

TEST_F(AveragePropertiesTest, UnderPointsAnExcusedGradeIsAsIfItWereNotThere) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass(2, 5);
    Class& c = Current();
    const auto excused = static_cast<std::ptrdiff_t>(1 + UpTo(c.NumInstruments - 1));
    c.Students[1].Marks[static_cast<std::size_t>(excused)] = "EXC";
    const Currency with = AverageOf(1);
    c.Instruments.erase(c.Instruments.begin() + excused);
    c.InstrumentUse.erase(c.InstrumentUse.begin() + excused);
    c.Students[1].Marks.erase(c.Students[1].Marks.begin() + excused);
    --c.NumInstruments;
    EXPECT_EQ(AverageOf(1), with);
  }
}

TEST_F(AveragePropertiesTest, OneWeightForEveryTypeIsThePlainPointAverage) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass(2, 4);  // without extra credit, which needs no weight
    const double by_points = AverageOf(1).ToDouble();
    Current().Method = 3;
    Current().TypePercents.fill(Currency::FromScaled(5000 * (1 + UpTo(199))));
    EXPECT_NEAR(AverageOf(1).ToDouble(), by_points, 0.000101);
  }
}

TEST_F(AveragePropertiesTest, TheOrderOfTheStudentsNeverMatters) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass(static_cast<i16>(n % 4), 5);
    Class& c = Current();
    c.AverageFlag1 = UpTo(1) == 0 ? kTrue : kFalse;
    c.AverageFlag2 = UpTo(1) == 0 ? kTrue : kFalse;
    c.TypeWeights[kExtra] = Money(UpTo(1) == 0 ? "2" : "0");  // as a file may say
    for (std::size_t s = 1; s < c.Students.size(); ++s)
      c.Students[s].id = PlainNumberText(static_cast<int>(100 + s));
    const std::vector<Currency> before = AveragesById();
    std::shuffle(c.Students.begin() + 1, c.Students.end(), random);
    EXPECT_EQ(AveragesById(), before);
  }
}

TEST_F(AveragePropertiesTest, SwappingTwoGradesChangesNothingWithoutATie) {
  int tried = 0;
  for (int n = 0; n < 4 * kClasses; ++n) {
    MakeClass(static_cast<i16>(n % 4), 5);
    Class& c = Current();
    // Marks of distinct percents that may be dropped: hundredths of one maximum.
    for (std::size_t i = 1; i < c.Instruments.size(); ++i) {
      c.Instruments[i].mvalue = 100;
      c.Students[1].Marks[i] = PlainNumberText(static_cast<int>(30 + 3 * i));
    }
    c.AverageFlag2 = UpTo(1) == 0 ? kTrue : kFalse;
    if (c.NumInstruments < 2) continue;
    ++tried;
    const Currency before = AverageOf(1);
    const std::size_t a = 1;
    const auto b = static_cast<std::size_t>(2 + UpTo(c.NumInstruments - 2));
    std::swap(c.Instruments[a], c.Instruments[b]);
    std::swap(c.Weights[a], c.Weights[b]);
    std::swap(c.InstrumentUse[a], c.InstrumentUse[b]);
    std::swap(c.Students[1].Marks[a], c.Students[1].Marks[b]);
    EXPECT_EQ(AverageOf(1), before) << "method " << c.Method;
  }
  EXPECT_GT(tried, kClasses);
}

TEST_F(AveragePropertiesTest, AStudentTakesNothingFromTheHeap) {
  for (i16 method = 0; method <= 3; ++method) {
    MakeClass(method, 5);
    FinalGrade grade;
    const std::size_t before = allocations;
    int errors = 0;
    for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
      errors += ComputeAverage(totals).number + RoundedGrade(grade).number;
    }
    EXPECT_EQ(allocations, before) << "method " << method;
    EXPECT_EQ(errors, 0);
    // The counter itself works.
    const std::string text = grade.Text();
    EXPECT_GT(allocations, before) << text;
  }
}

TEST_F(AveragePropertiesTest, NoClassBringsTheEngineDown) {
  int errors = 0;
  for (int n = 0; n < kClasses; ++n) {
    MakeClass(static_cast<i16>(UpTo(5)), 5);
    Class& c = Current();
    c.Instruments[1].mvalue = static_cast<i16>(UpTo(65535) - 32768);
    if (n % 2 == 0) c.Students[1].Marks[1] = UpTo(1) == 0 ? "9e14" : "-7e99";
    if (n % 3 == 0) c.TypePercents[kQuiz] = Currency::FromScaled(INT64_MAX - UpTo(1000));
    if (n % 5 == 0) c.Weights[1] = Currency::FromScaled(INT64_MIN);
    CurrentStudent = 1;
    ExactAverage = Money("77");
    const auto flags = c.TypeWeights;
    const AverageError error = ComputeAverage(totals);
    if (!error) continue;
    ++errors;
    EXPECT_EQ(ExactAverage, Money("77"));
    EXPECT_EQ(c.TypeWeights, flags);
    EXPECT_EQ(totals, TypeTotals());
  }
  EXPECT_GT(errors, 0);
  EXPECT_LT(errors, kClasses);
}

}  // namespace
}  // namespace tallyroll
