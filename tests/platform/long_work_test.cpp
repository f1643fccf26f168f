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

TEST_F(LongWorkTest, WithoutAScreenItGoesOn) {
  LongWork work("Counting", 2);
  screen.now += kSecond;
  EXPECT_TRUE(work.Step());
  EXPECT_FALSE(work.Cancelled());
}

}  // namespace
}  // namespace tallyroll
