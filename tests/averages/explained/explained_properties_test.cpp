// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for the explanation of every average of every class, tried on random ones.
#include <map>
#include <random>

#include "averages/average_lines.h"
#include "averages/explained/explained_page.h"
#include "averages/explained/needed_marks.h"
#include "base/text.h"
#include "tests/averages/engine/average_test.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

constexpr std::string_view kRounded = "ROUNDED AVERAGE/GRADE: ";
constexpr const char* kTypes[] = {"HW", "Q ", "T", "E", "X", "zz"};
constexpr std::size_t kPlaces[] = {kHomework, kQuiz, kTest, kEssay, kExtra};

class ExplainedPropertiesTest : public AverageTest {
 protected:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
  bool Now(int in) { return UpTo(in - 1) == 0; }

  std::string AnyMark(int max) {
    constexpr const char* kSpecial[] = {"NEW", "ABS", "EXC", "CUT", "NON", "B+", "85*", "-3", ""};
    if (Now(4)) return kSpecial[UpTo(8)];
    return PlainNumberText(Currency::FromScaled(2500 * UpTo(4 * max)));
  }

  void MakeClass() {
    ResetStore();
    ResetAverages();
    CurrentStudent = 1;
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    Class& c = Current();
    c.RoundMode = static_cast<i16>(UpTo(2));
    c.AverageFlag1 = Now(2) ? kTrue : kFalse;
    c.AverageFlag2 = Now(3) ? kTrue : kFalse;
    c.AverageFlag3 = Now(3) ? kTrue : kFalse;
    c.AverageFlag4 = Now(2) ? kTrue : kFalse;
    std::vector<SheetLine> lines;
    texts_.clear();
    const int grades = 1 + UpTo(11);
    for (int i = 0; i < grades; ++i) {
      const int max = Now(3) ? 10 : 5 + UpTo(95);
      texts_.push_back(AnyMark(max));
      texts_.push_back(PlainNumberText(Currency::FromScaled(100 * UpTo(2500))));
    }
    for (int i = 0; i < grades; ++i) {
      const auto at = static_cast<std::size_t>(2 * i);
      lines.push_back({kTypes[UpTo(Now(4) ? 5 : 3)], Now(3) ? 10 : 5 + UpTo(95), texts_[at].c_str(),
                       texts_[at + 1].c_str(), Now(2) ? "Y" : "N", Now(6) ? "N" : "Y"});
    }
    for (const std::size_t t : kPlaces) {
      c.TypePercents[t] = Now(4) ? Currency() : Currency::FromScaled(1000 * UpTo(500));
      c.TypeWeights[t] = Now(2) ? Money("2") : Money("0");
    }
    constexpr i16 kMethods[] = {0, 1, 2, 3, 5};
    Put(kMethods[UpTo(4)], lines);
  }

  std::mt19937 random{20};
  std::vector<std::string> texts_;
};

// What a report prints of the student.
std::vector<std::string> ReportLines() {
  std::vector<std::string> lines;
  TypeTotals totals;
  PrintAverageAndCompute([&](std::string_view line) { lines.emplace_back(line); }, totals);
  return lines;
}

TEST_F(ExplainedPropertiesTest, ItEndsWithTheNumbersOfTheReport) {
  int averaged = 0;
  for (int i = 0; i < 1000; ++i) {
    SCOPED_TRACE(i);
    MakeClass();
    const ExplainedAverage explained = ExplainAverage(1);
    const std::vector<std::string> report = ReportLines();
    ASSERT_EQ(report.empty(), static_cast<bool>(explained.error));
    if (report.empty()) continue;
    ++averaged;
    const AverageStep* average = explained.Last(StepRule::kTwoDecimals);
    ASSERT_NE(average, nullptr);
    EXPECT_TRUE(report[0].ends_with(" " + PlainNumberText(average->after))) << report[0];
    const ExplainedPage page = PageOf(explained);
    const std::string_view grade = std::string_view(report[1]).substr(kRounded.size());
    EXPECT_EQ(Trim(grade), page.final_grade) << report[1];
    EXPECT_EQ(explained.Last(StepRule::kAverage)->after, explained.result.computed);
    const AverageStep& last = explained.steps.back();
    EXPECT_TRUE(page.final_grade.starts_with(PlainNumberText(last.after))) << page.final_grade;
  }
  EXPECT_GT(averaged, 900);
}

TEST_F(ExplainedPropertiesTest, EachStepBeginsWhereTheOneBeforeEnded) {
  for (int i = 0; i < 300; ++i) {
    SCOPED_TRACE(i);
    MakeClass();
    const ExplainedAverage explained = ExplainAverage(1);
    if (explained.error) continue;
    std::map<std::size_t, Currency> sums;  // by type; 0 is the sum of all
    const i16 method = Current().Method;
    for (const AverageStep& step : explained.steps) {
      const bool mark = step.rule == StepRule::kCounted || step.rule == StepRule::kZero;
      if (!mark) continue;
      const std::size_t of = method == 1 || method == 3 ? step.type : 0;
      // Points of extra credit stand between.
      if (method != 2) {
        EXPECT_EQ(step.before, sums[of]);
      }
      sums[of] = step.after;
    }
  }
}

TEST_F(ExplainedPropertiesTest, LookingChangesNothing) {
  for (int i = 0; i < 300; ++i) {
    MakeClass();
    ExactAverage = Money("12.5");
    CurrentStudent = 0;
    Current().Students[1].Marks[0] = "-";
    const Class before = Current();
    ExplainAverage(1);
    MarksNeeded(1, 1);
    ExplainAverageWith(1, 1, "3");
    EXPECT_TRUE(SameOnDisk(Current(), before));
    EXPECT_EQ(Current().TypeWeights, before.TypeWeights);
    EXPECT_EQ(Current().Students[1].Marks, before.Students[1].Marks);
    EXPECT_EQ(ExactAverage, Money("12.5"));
    EXPECT_EQ(CurrentStudent, 0);
    CurrentStudent = 1;
  }
}

// All quarter points as a teacher would type them, in a class of its own.
std::vector<std::optional<Currency>> NeededByHand(int grade) {
  std::vector<std::optional<Currency>> needed(13);
  const auto index = static_cast<std::size_t>(grade);
  const Class kept = Current();
  const int most = kept.Instruments[index].mvalue;
  for (int quarters = 4 * most; quarters >= 0; --quarters) {
    const Currency mark = Currency::FromScaled(2500 * quarters);
    Current().Students[1].Marks[index] = PlainNumberText(mark);
    StudentAverage average;
    if (AverageStudent(average)) continue;
    for (std::size_t row = average.grade.label; row < needed.size(); ++row) needed[row] = mark;
  }
  Current() = kept;
  return needed;
}

TEST_F(ExplainedPropertiesTest, NeededMarksAreThoseOfTryingThemAll) {
  for (int i = 0; i < 100; ++i) {
    SCOPED_TRACE(i);
    MakeClass();
    const int grade = 1 + UpTo(Current().NumInstruments - 1);
    const std::vector<std::optional<Currency>> by_hand = NeededByHand(grade);
    const std::vector<NeededMark> needed = MarksNeeded(1, grade);
    ASSERT_EQ(needed.size(), by_hand.size());
    for (std::size_t row = 0; row < needed.size(); ++row)
      EXPECT_EQ(needed[row].mark, by_hand[row]) << row;
  }
}

TEST_F(ExplainedPropertiesTest, AHigherMarkLowersAnAverageOnlyByARuleThatIsNamed) {
  int lowered = 0;
  for (int i = 0; i < 5000; ++i) {
    SCOPED_TRACE(i);
    MakeClass();
    const int grade = 1 + UpTo(Current().NumInstruments - 1);
    const int most = Current().Instruments[static_cast<std::size_t>(grade)].mvalue;
    const Currency low = Currency::FromScaled(2500 * UpTo(4 * most));
    const Currency high = low + Currency::FromScaled(2500 * (1 + UpTo(40)));
    const ExplainedAverage before = ExplainAverageWith(1, grade, PlainNumberText(low));
    const ExplainedAverage after = ExplainAverageWith(1, grade, PlainNumberText(high));
    if (before.error || after.error || after.result.computed >= before.result.computed) {
      EXPECT_EQ(WhyLower(before, after, grade), "");
      continue;
    }
    ++lowered;
    EXPECT_NE(WhyLower(before, after, grade), "")
        << "method " << Current().Method << ", grade " << grade << ": " << PlainNumberText(low)
        << " gave " << PlainNumberText(before.result.computed) << ", " << PlainNumberText(high)
        << " gave " << PlainNumberText(after.result.computed);
  }
  EXPECT_GT(lowered, 0);
}

}  // namespace
}  // namespace tallyroll
