// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/password.h"

#include <gtest/gtest.h>

#include <vector>

namespace tallyroll {
namespace {

TEST(ScramblePassword, TurnsBits1And3And6OfEachCharacterOver) {
  // 2 + 8 + 64 = 74. "A" is 65 = 64 + 1: it loses 64 and gains 2 and 8, which is 11.
  // "b" is 98 = 64 + 32 + 2: it loses 64 and 2 and gains 8, which is 40, "(".
  EXPECT_EQ(ScramblePassword("Ab"), "\x0B(");
}

TEST(ScramblePassword, DoneTwiceGivesTheTextBack) {
  std::string every_byte;
  for (int code = 0; code < 256; ++code) every_byte += static_cast<char>(code);
  const std::string scrambled = ScramblePassword(every_byte);
  EXPECT_NE(scrambled, every_byte);
  EXPECT_EQ(ScramblePassword(scrambled), every_byte);
}

TEST(ScramblePassword, StopsAtABitNumberAbove7) {
  const std::vector<int> bits = {0, 8, 1};
  EXPECT_EQ(ScramblePassword("B", bits), "C");  // bit 0 alone: 66 becomes 67
}

TEST(ScramblePassword, Bit7IsTheLastThatIsTurnedOver) {
  const std::vector<int> bits = {7, 8, 0};
  EXPECT_EQ(ScramblePassword("B", bits), "\xC2");  // 66 and 128
}

TEST(ScramblePassword, OfNothingIsNothing) {
  EXPECT_EQ(ScramblePassword(""), "");
}

TEST(PasswordMatches, TellsTheCaseApart) {
  const std::string stored = ScramblePassword("Apple");
  EXPECT_TRUE(PasswordMatches("Apple", stored));
  EXPECT_FALSE(PasswordMatches("apple", stored));
}

TEST(PasswordMatches, LooksThroughBlanksThatPadTheStoredPassword) {
  EXPECT_TRUE(PasswordMatches("Apple", ScramblePassword("Apple") + "   "));
}

TEST(PasswordMatches, KnowsAPasswordWhoseScrambledEndIsABlank) {
  ASSERT_EQ(ScramblePassword("j"), " ");
  EXPECT_TRUE(PasswordMatches("Raj", ScramblePassword("Raj")));
}

TEST(PasswordMatches, NothingEnteredNeverMatches) {
  EXPECT_FALSE(PasswordMatches("", ""));
  EXPECT_FALSE(PasswordMatches("", ScramblePassword("j")));
}

}  // namespace
}  // namespace tallyroll
