// SPDX-License-Identifier: GPL-3.0-or-later
// The first type, "A", and the 26th, which has no code, are types like the others.
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

struct EdgeType {
  std::size_t type;
  const char* code;
};

class FirstAndLastTypeTest : public AverageTest, public ::testing::WithParamInterface<EdgeType> {
 protected:
  const std::size_t type = GetParam().type;
  const char* const code = GetParam().code;

  // The drop flag stands on `type` alone.
  void ExpectOnlyTypeFlagged() const {
    for (std::size_t t = 1; t <= 26; ++t) {
      EXPECT_EQ(Current().TypeWeights[t], Money(t == type ? "2" : "1")) << t;
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Types, FirstAndLastTypeTest,
                         ::testing::Values(EdgeType{1, "A"}, EdgeType{26, ""}));

TEST_P(FirstAndLastTypeTest, ByItemsItsLowestIsDropped) {
  DropLowestOf(type);
  Put(0, {{code, 10, "5", "20", "Y"}, {code, 10, "9", "20", "Y"}, {"Q", 10, "7", "60", "Y"}});
  // Without the 5: 18 + 42 = 60 points of 80.
  EXPECT_EQ(Average(), "75");
  EXPECT_EQ(totals.counts[type], 1);
  EXPECT_EQ(Sum(type), "9");
  EXPECT_EQ(Max(type), "10");
}

TEST_P(FirstAndLastTypeTest, ByItemsItMayHoldTheSingleLowest) {
  Current().AverageFlag2 = kTrue;
  Put(0, {{code, 10, "5", "25", "Y"}, {"T", 100, "60", "25", "Y"}, {"T", 100, "90", "50", "Y"}});
  // The 5 goes: 15 + 45 = 60 points of 75.
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[type], 0);
  EXPECT_EQ(totals.counts[kTest], 2);
  ExpectOnlyTypeFlagged();
}

TEST_P(FirstAndLastTypeTest, ByTypesItsLowestIsDropped) {
  Weigh(type, "50");
  Weigh(kTest, "50");
  DropLowestOf(type);
  Put(1, {{code, 10, "9", "0", "Y"}, {code, 20, "5", "0", "Y"}, {"T", 100, "60", "0", "Y"}});
  // 9 of 10 at 50 are 45, 60 of 100 at 50 are 30.
  EXPECT_EQ(Average(), "75");
  EXPECT_EQ(totals.counts[type], 1);
  EXPECT_EQ(Max(type), "10");
}

TEST_P(FirstAndLastTypeTest, ByTypesItMayHoldTheSingleLowest) {
  Weigh(type, "50");
  Weigh(kTest, "50");
  Current().AverageFlag2 = kTrue;
  Put(1, {{code, 10, "9", "0", "Y"},
          {code, 20, "5", "0", "Y"},
          {"T", 100, "60", "0", "Y"},
          {"T", 100, "80", "0", "Y"}});
  // The 25% go: 9 of 10 at 50 are 45, 140 of 200 at 50 are 35.
  EXPECT_EQ(Average(), "80");
  EXPECT_EQ(totals.counts[type], 1);
  EXPECT_EQ(totals.counts[kTest], 2);
  ExpectOnlyTypeFlagged();
}

TEST_P(FirstAndLastTypeTest, ByTypesItsWeightLeavesWhenItHasNoGrade) {
  Weigh(type, "50");
  Weigh(kTest, "50");
  Put(1, {{"T", 100, "60"}});
  // 30 of the 50 that are left.
  EXPECT_EQ(Average(), "60");
  EXPECT_EQ(Sum(type), "-1");
}

TEST_P(FirstAndLastTypeTest, ByPointsAndTypesItsWeightCounts) {
  Weigh(type, "25");
  Weigh(kTest, "75");
  Put(3, {{code, 20, "10"}, {"T", 40, "40"}});
  Points points;
  ASSERT_FALSE(AverageByPointsAndTypes(points, totals));
  // 10 x 25 + 40 x 75 = 3250 of 20 x 25 + 40 x 75 = 3500, of 60 points: 55.7143, of 60.
  EXPECT_EQ(points, (Points{Money("55.7143"), Money("60")}));
  EXPECT_EQ(ExactAverage, Money("92.8572"));
  EXPECT_EQ(Max(type), "20");
}

TEST_F(AverageTest, OfTheFirstAndTheLastTypeATieOfTheSingleLowestGoesToTheFirst) {
  for (const i16 method : {i16{0}, i16{1}}) {
    Current().AverageFlag2 = kTrue;
    Weigh(1, "50");
    Weigh(26, "50");
    Put(method, {{"", 100, "50", "25", "Y"},
                 {"", 100, "90", "25", "Y"},
                 {"A", 10, "5", "25", "Y"},
                 {"A", 10, "9", "25", "Y"}});
    // The 5 goes. By items 12.5 + 22.5 + 22.5 = 57.5 of 75; by types 35 and 45.
    EXPECT_EQ(Average(), method == 0 ? "76.6667" : "80");
    EXPECT_EQ(totals.counts[1], 1);
    EXPECT_EQ(totals.counts[26], 2);
  }
}

TEST_F(AverageTest, WithoutACandidateForTheSingleLowestNoTypeIsFlagged) {
  for (const i16 method : {i16{0}, i16{1}}) {
    Current().AverageFlag2 = kTrue;
    Current().TypeWeights.fill(Currency());
    Weigh(1, "100");
    Put(method, {{"A", 10, "5", "50", "N"}, {"A", 10, "9", "50", "N"}});
    EXPECT_EQ(Average(), "70") << method;
    EXPECT_EQ(totals.counts[1], 2);
    for (std::size_t t = 1; t <= 26; ++t) EXPECT_EQ(Current().TypeWeights[t], Money("1")) << t;
  }
}

}  // namespace
}  // namespace tallyroll
