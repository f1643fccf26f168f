// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/lowest.h"

#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

TEST(LowestTest, EveryTypeButExtraCreditIsFlagged) {
  TypeSums flags{};
  flags[13] = Money("2");
  FlagEveryType(flags);
  EXPECT_EQ(flags[0], Currency());
  for (std::size_t t = 1; t <= 26; ++t) EXPECT_EQ(flags[t], Money(t == 13 ? "1" : "2")) << t;
}

class PickSingleLowestTest : public ::testing::Test {
 protected:
  PickSingleLowestTest() {
    lowest.fill(Money("1000"));
    flags.fill(Money("2"));
  }
  // The one type that keeps its flag; 0 when none does.
  std::size_t Picked() {
    PickSingleLowestType(lowest, flags);
    std::size_t picked = 0;
    for (std::size_t t = 1; t <= 26; ++t) {
      if (flags[t] == Money("1")) continue;
      EXPECT_EQ(flags[t], Money("2")) << t;
      EXPECT_EQ(picked, 0u) << t;
      picked = t;
    }
    return picked;
  }
  TypeSums lowest{};
  TypeSums flags{};
};

TEST_F(PickSingleLowestTest, EachTypeMayHoldIt) {
  for (std::size_t t = 1; t <= 26; ++t) {
    lowest.fill(Money("60"));
    lowest[t] = Money("59.9999");
    EXPECT_EQ(Picked(), t);
  }
}

TEST_F(PickSingleLowestTest, WithoutACandidateNoneHoldsIt) {
  EXPECT_EQ(Picked(), 0u);
}

TEST_F(PickSingleLowestTest, ATieKeepsTheEarlierType) {
  lowest[1] = lowest[2] = lowest[26] = Money("0");
  EXPECT_EQ(Picked(), 1u);
}

TEST_F(PickSingleLowestTest, ANegativePercentAboveTheSignOfALeftOutMarkHoldsIt) {
  lowest[3] = Money("-49.9999");
  EXPECT_EQ(Picked(), 3u);
}

TEST_F(PickSingleLowestTest, ALeftOutMarkLeavesNone) {
  lowest[3] = Money("10");
  lowest[4] = Money("-50");
  EXPECT_EQ(Picked(), 0u);
}

class DropByItemsTest : public AverageTest {};

TEST_F(DropByItemsTest, AMarkOfZeroPercentMayBeDropped) {
  DropLowestOf(kQuiz);
  Put(0, {{"Q", 10, "0", "50", "Y"}, {"Q", 10, "9", "50", "Y"}});
  // A typed 0 is no "CUT": it goes, and 45 of 50 stay.
  EXPECT_EQ(Average(), "90");
  EXPECT_EQ(totals.counts[kQuiz], 1);
}

TEST_F(DropByItemsTest, AFlaggedTypeWithoutACandidateKeepsItsCount) {
  DropLowestOf(kQuiz);
  DropLowestOf(kTest);
  Put(0, {{"Q", 10, "5", "50", "N"}, {"Q", 10, "9", "50", "N"}});
  EXPECT_EQ(Average(), "70");
  EXPECT_EQ(totals.counts[kQuiz], 2);
  EXPECT_EQ(totals.counts[kTest], 0);
}

}  // namespace
}  // namespace tallyroll
