// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/taken_ids.h"

#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class TakenIdsTest : public PortalTest {
 protected:
  // Draws that give 0, and then one that gives 100: 16 + 25 + 50 + 9.
  void Draw(int zeros) {
    screen.random_numbers.assign(static_cast<std::size_t>(4 * zeros), 0);
    for (const double number : {0.25, 0.5, 0.1, 0.01}) screen.random_numbers.push_back(number);
  }
};

TEST_F(TakenIdsTest, AnIdIsTakenOnce) {
  TakenIds ids;
  EXPECT_TRUE(ids.Take("7"));
  EXPECT_FALSE(ids.Take("7"));
  EXPECT_FALSE(ids.Take(" 7 "));
  EXPECT_TRUE(ids.Take("07"));
}

TEST_F(TakenIdsTest, ABlankIdIsNone) {
  TakenIds ids;
  EXPECT_FALSE(ids.Take(""));
  EXPECT_FALSE(ids.Take("  "));
}

TEST_F(TakenIdsTest, EachStudentOfAClassHasOne) {
  Class c;
  c.NumStudents = 3;
  ReDim(c.Students, 3);
  c.Students[1].id = "1";
  c.Students[2].id = " 2 ";
  c.Students[3].id = "3";
  TakenIds ids(c);
  for (const char* id : {"1", "2", "3"}) EXPECT_FALSE(ids.Take(id)) << id;
  EXPECT_TRUE(ids.Take("4"));
}

TEST_F(TakenIdsTest, AReservedIdIsNeverDrawnAndMayBeTaken) {
  TakenIds ids;
  ids.Reserve(" 0 ");
  Draw(1);
  EXPECT_EQ(ids.MakeUniqueId(), "100");
  EXPECT_TRUE(ids.Take("0"));
}

TEST_F(TakenIdsTest, ADrawnIdIsTakenWithThat) {
  TakenIds ids;
  Draw(0);
  EXPECT_EQ(ids.MakeUniqueId(), "100");
  EXPECT_FALSE(ids.Take("100"));
}

TEST_F(TakenIdsTest, AHundredNumbersAreDrawn) {
  TakenIds ids;
  ids.Take("0");
  Draw(99);
  EXPECT_EQ(ids.MakeUniqueId(), "100");
}

// The largest number that can be drawn is 31 + 99 + 499 + 899 = 1528.
TEST_F(TakenIdsTest, ThenTheNumbersServeThatCannotBeDrawn) {
  TakenIds ids;
  ids.Take("0");
  Draw(100);
  EXPECT_EQ(ids.MakeUniqueId(), "1530") << "behind 1529 as many as are taken";
  ids.Take("1532");
  Draw(100);
  EXPECT_EQ(ids.MakeUniqueId(), "1533") << "1532, the third behind, is another's";
}

}  // namespace
}  // namespace tallyroll
