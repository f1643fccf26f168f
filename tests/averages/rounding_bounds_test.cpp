// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of the rounding scales, and averages below nothing.
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class RoundingBoundsTest : public AverageTest {
 protected:
  void SetUp() override {
    AverageTest::SetUp();
    Put(0, {{"Q", 10, "8", "100"}});
    Current().RoundMode = 0;
    for (std::size_t s = 1; s < 5; ++s) Current().RoundTable[s].fill(101);
  }
  std::string MarkOf(const char* average) {
    ExactAverage = Money(average);
    FinalGrade grade;
    EXPECT_FALSE(RoundedGrade(grade));
    return grade.mark.str();
  }
};

TEST_F(RoundingBoundsTest, EachScaleFromTheFirstToTheLastIsAskedByItsNumber) {
  for (i16 scale = 0; scale <= 4; ++scale) {
    Current().RoundScale = scale;
    Current().RoundTable[static_cast<std::size_t>(scale)].fill(101);
    Current().RoundTable[static_cast<std::size_t>(scale)][6] = 70;
    // Row 6 is worth 80; below it no row is reached.
    EXPECT_EQ(MarkOf("71"), "80") << scale;
    EXPECT_EQ(MarkOf("69.99"), "55") << scale;
    Current().RoundTable[static_cast<std::size_t>(scale)].fill(101);
  }
}

TEST_F(RoundingBoundsTest, AScaleThatIsNoneIsTheDefaultScale) {
  for (const i16 scale : {i16{5}, i16{6}, i16{-1}, i16{32767}, i16{-32768}}) {
    Current().RoundScale = scale;
    EXPECT_EQ(MarkOf("91"), "90") << scale;
    EXPECT_EQ(MarkOf("50"), "55") << scale;
  }
}

TEST_F(RoundingBoundsTest, TheFourteenthRowIsNoMinimum) {
  Current().RoundTable[0].fill(101);
  Current().RoundTable[0][13] = 41;
  EXPECT_EQ(MarkOf("60"), "55");
}

TEST_F(RoundingBoundsTest, AHalfHundredthBelowNothingGoesUpToo) {
  // -1.5 hundredths become -1, and so does -1 itself; -1.51 become -2.
  MarkOf("-0.015");
  EXPECT_EQ(ExactAverage, Money("-0.01"));
  MarkOf("-0.01");
  EXPECT_EQ(ExactAverage, Money("-0.01"));
  MarkOf("-0.0151");
  EXPECT_EQ(ExactAverage, Money("-0.02"));
  MarkOf("-7");
  EXPECT_EQ(ExactAverage, Money("-7"));
}

}  // namespace
}  // namespace tallyroll
