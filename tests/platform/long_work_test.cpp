// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/long_work.h"

#include "tests/support/played_progress.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

constexpr double kSecond = 1.0 / (24 * 60 * 60);

class LongWorkTest : public PortalTest {};

TEST_F(LongWorkTest, WhatIsSoonOverShowsNothing) {
  const PlayedProgress progress;
  LongWork work("Counting", 3);
  for (int i = 0; i < 3; ++i) {
    screen.now += 0.09 * kSecond;
    EXPECT_TRUE(work.Step());
  }
  EXPECT_TRUE(PlayedProgress::shown.empty());
}

TEST_F(LongWorkTest, WhatTakesLongerIsShownOnce) {
  const PlayedProgress progress;
  LongWork work("Counting", 9);
  for (int i = 0; i < 9; ++i) {
    screen.now += 0.1 * kSecond;
    EXPECT_TRUE(work.Step());
  }
  EXPECT_EQ(PlayedProgress::shown, (std::vector<std::string>{"Counting"}));
  EXPECT_EQ(work.Done(), 9);
}

TEST_F(LongWorkTest, ACancelledWorkStaysCancelled) {
  const PlayedProgress progress("Counting", 2);
  LongWork work("Counting", 9);
  screen.now += kSecond;
  EXPECT_TRUE(work.Step());
  screen.now += kSecond;
  EXPECT_FALSE(work.Step());
  EXPECT_TRUE(work.Cancelled());
  screen.now += kSecond;
  EXPECT_FALSE(work.Step());
  EXPECT_EQ(PlayedProgress::shown.size(), 1u);
}

// A work of two parts: the second has come half of its way.
TEST_F(LongWorkTest, AWorkWithinAnotherIsAPartOfIt) {
  const PlayedProgress progress;
  LongWork whole("Reading", 2);
  whole.Step();
  LongWork part("Sorting", 10);
  for (int i = 0; i < 5; ++i) {
    screen.now += 0.1 * kSecond;
    EXPECT_TRUE(part.Step());
  }
  EXPECT_EQ(PlayedProgress::shown, (std::vector<std::string>{"Reading"}));
  EXPECT_EQ(PlayedProgress::done, 15);
  EXPECT_EQ(PlayedProgress::all, 20);
}

TEST_F(LongWorkTest, ACancelEndsTheWorkAroundAndAllThatFollows) {
  const PlayedProgress progress("Reading", 1);
  LongWork whole("Reading", 2);
  {
    LongWork part("Parsing", 10);
    screen.now += kSecond;
    EXPECT_FALSE(part.Step());
    EXPECT_TRUE(part.Cancelled());
  }
  EXPECT_TRUE(whole.Cancelled());
  LongWork next("Sorting", 10);
  EXPECT_FALSE(next.Step());
  EXPECT_EQ(PlayedProgress::shown.size(), 1u);
}

// Each alone is short; together they are not.
TEST_F(LongWorkTest, PartsCountTogether) {
  const PlayedProgress progress;
  LongWork whole("Reading", 5);
  for (int i = 0; i < 5; ++i) {
    LongWork part("Parsing", 1);
    screen.now += 0.1 * kSecond;
    part.Step();
    whole.Step();
  }
  EXPECT_EQ(PlayedProgress::shown.size(), 1u);
}

TEST_F(LongWorkTest, WhatFollowsAWorkHasAWindowOfItsOwn) {
  const PlayedProgress progress;
  for (const char* what : {"Reading", "Writing"}) {
    LongWork work(what, 1);
    screen.now += kSecond;
    work.Step();
  }
  EXPECT_EQ(PlayedProgress::shown, (std::vector<std::string>{"Reading", "Writing"}));
}

TEST_F(LongWorkTest, WithoutAScreenItGoesOn) {
  LongWork work("Counting", 2);
  screen.now += kSecond;
  EXPECT_TRUE(work.Step());
  EXPECT_FALSE(work.Cancelled());
}

}  // namespace
}  // namespace tallyroll
