// SPDX-License-Identifier: GPL-3.0-or-later
// A file made elsewhere may give two types one code: its grades then belong to both. By items a
// grade stands as the lowest of one of them only, and then does not count in the other.
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

constexpr std::size_t kSecondQuiz = 14;

class GradeOfTwoTypesTest : public AverageTest {
 protected:
  void SetUp() override {
    AverageTest::SetUp();
    Current().Categories[1] = "Pop Quiz~Q ";
  }
};

TEST_F(GradeOfTwoTypesTest, ByItemsItCountsInBoth) {
  Put(0, {{"Q", 10, "5", "50", "Y"}, {"Q", 20, "18", "50", "Y"}});
  EXPECT_EQ(Average(), "70");
  for (const std::size_t t : {kQuiz, kSecondQuiz}) {
    EXPECT_EQ(totals.counts[t], 2);
    EXPECT_EQ(Sum(t), "23");
    EXPECT_EQ(Max(t), "30");
  }
}

TEST_F(GradeOfTwoTypesTest, ByItemsItIsTheLowestOfOneOnly) {
  DropLowestOf(kQuiz);
  DropLowestOf(kSecondQuiz);
  Put(0, {{"Q", 10, "5", "40", "Y"}, {"Q", 10, "9", "40", "Y"}, {"Q", 10, "7", "20", "Y"}});
  // 20 + 36 + 14 = 70 points of 100. The 5 is the lowest of the first type and is unknown to the
  // second; there the 9 and then the 7 is the lowest. Without both: 36 of 40.
  EXPECT_EQ(Average(), "90");
  EXPECT_EQ(totals.counts[kQuiz], 2);
  EXPECT_EQ(Sum(kQuiz), "16");
  EXPECT_EQ(totals.counts[kSecondQuiz], 1);
  EXPECT_EQ(Sum(kSecondQuiz), "9");
}

TEST_F(GradeOfTwoTypesTest, ByItemsALeftOutMarkIsTheLowestOfOneOnly) {
  DropLowestOf(kQuiz);
  DropLowestOf(kSecondQuiz);
  Current().AverageFlag1 = kTrue;
  Put(0, {{"Q", 10, "ABS", "20", "Y"}, {"Q", 10, "9", "40", "Y"}, {"Q", 10, "5", "40", "Y"}});
  // The absence is what the first type drops, the 5 what the second does: 36 of 40.
  EXPECT_EQ(Average(), "90");
  EXPECT_EQ(totals.counts[kQuiz], 2);
  EXPECT_EQ(totals.counts[kSecondQuiz], 1);
}

TEST_F(GradeOfTwoTypesTest, ByItemsAMarkThatIsNoLowestGoesOnToTheOtherType) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "5", "50", "Y"}, {"Q", 10, "9", "50", "Y"}});
  // The 5 goes: 45 of 50. The second type knows the 9 alone.
  EXPECT_EQ(Average(), "90");
  EXPECT_EQ(totals.counts[kQuiz], 1);
  EXPECT_EQ(totals.counts[kSecondQuiz], 1);
  EXPECT_EQ(Sum(kSecondQuiz), "9");
}

TEST_F(GradeOfTwoTypesTest, ByTypesItIsTheLowestOfBoth) {
  DropLowestOf(kQuiz);
  DropLowestOf(kSecondQuiz);
  Weigh(kQuiz, "60");
  Weigh(kSecondQuiz, "40");
  Put(1, {{"Q", 10, "5", "0", "Y"}, {"Q", 10, "9", "0", "Y"}, {"Q", 10, "7", "0", "Y"}});
  // 16 of 20 in each: 48 and 32.
  EXPECT_EQ(Average(), "80");
  for (const std::size_t t : {kQuiz, kSecondQuiz}) EXPECT_EQ(totals.counts[t], 2);
}

}  // namespace
}  // namespace tallyroll
