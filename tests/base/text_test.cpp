// SPDX-License-Identifier: GPL-3.0-or-later
// Trimming, case and padding of code page text.
#include "base/text.h"

#include <gtest/gtest.h>

#include "base/code_page.h"

namespace tallyroll {
namespace {

std::string Page(std::string_view utf8) {
  return CodePageFromUtf8(utf8).value();
}

TEST(Trim, TakesBlanksOffTheEndsOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(TrimLeft("  a b  "), "a b  ");
  EXPECT_EQ(TrimRight("  a b  "), "  a b");
}

TEST(Trim, OfBlanksAloneIsEmpty) {
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimLeft("   "), "");
  EXPECT_EQ(TrimRight("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Trim, KeepsTabsAndHardBlanks) {
  EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
  EXPECT_EQ(Trim("\xA0"), "\xA0");
}

TEST(Trim, PointsIntoTheTextItself) {
  const std::string_view text = " ab ";
  EXPECT_EQ(Trim(text).data(), text.data() + 1);
}

TEST(UpperCase, FollowsTheCodePage) {
  EXPECT_EQ(UpperCase("Quiz 1z"), "QUIZ 1Z");
  EXPECT_EQ(UpperCase(Page("é à þ š œ ž ÿ")), Page("É À Þ Š Œ Ž Ÿ"));
}

TEST(LowerCase, FollowsTheCodePage) {
  EXPECT_EQ(LowerCase("Quiz 1Z"), "quiz 1z");
  EXPECT_EQ(LowerCase(Page("É À Þ Š Œ Ž Ÿ")), Page("é à þ š œ ž ÿ"));
}

TEST(Case, LeavesWhatHasNoOtherCase) {
  const std::string caseless = Page("ß µ ƒ ª º × ÷ @[`{ €");
  EXPECT_EQ(UpperCase(caseless), caseless);
  EXPECT_EQ(LowerCase(caseless), caseless);
}

// 26 letters, 30 of C0 to DE without the multiplication sign, and the pairs of Š, Œ, Ž and Ÿ.
TEST(Case, PairsSixtyLettersBothWays) {
  int pairs = 0;
  for (int c = 0; c < 256; ++c) {
    const std::string letter(1, static_cast<char>(c));
    const std::string lower = LowerCase(letter);
    if (lower == letter) continue;
    ++pairs;
    EXPECT_EQ(UpperCase(lower), letter) << c;
    EXPECT_EQ(UpperCase(letter), letter) << c;
  }
  EXPECT_EQ(pairs, 60);
}

TEST(Left, GivesTheFirstCharacters) {
  EXPECT_EQ(Left("Midterm", 3), "Mid");
  EXPECT_EQ(Left("Mid", 7), "Mid");
  EXPECT_EQ(Left("Mid", 0), "");
}

TEST(PadRight, IsExactlyAsWideAsAsked) {
  EXPECT_EQ(PadRight("ab", 4), "ab  ");
  EXPECT_EQ(PadRight("abcdef", 4), "abcd");
  EXPECT_EQ(PadRight("", 2), "  ");
  EXPECT_EQ(PadRight("ab", 0), "");
}

TEST(PadLeft, IsExactlyAsWideAsAsked) {
  EXPECT_EQ(PadLeft("ab", 4), "  ab");
  EXPECT_EQ(PadLeft("abcdef", 4), "abcd");
  EXPECT_EQ(PadLeft("", 2), "  ");
}

}  // namespace
}  // namespace tallyroll
