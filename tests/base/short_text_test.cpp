// SPDX-License-Identifier: GPL-3.0-or-later
// ShortText in place and on the heap, through every way of copying and moving.
#include "base/short_text.h"

#include <gtest/gtest.h>

#include <random>
#include <type_traits>
#include <utility>
#include <vector>

namespace tallyroll {
namespace {

const std::string kSeven = "1234567";
const std::string kEight = "12345678";

TEST(ShortText, BeginsEmpty) {
  const ShortText text;
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(text.size(), 0u);
  EXPECT_EQ(text, "");
  EXPECT_EQ(ShortText(std::string_view()), "");
}

TEST(ShortText, HoldsEveryLength) {
  for (std::size_t length = 0; length < 600; ++length) {
    const std::string wanted(length, 'x');
    const ShortText text(wanted);
    ASSERT_EQ(text.str(), wanted);
    ASSERT_EQ(text.size(), length);
    ASSERT_EQ(text.empty(), length == 0);
  }
}

TEST(ShortText, HoldsEveryByte) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(ShortText(all).view(), all);
  for (const char c : all) EXPECT_EQ(ShortText(std::string(3, c)).view(), std::string(3, c));
}

// 300,000 marks must cost no allocation: up to seven bytes stand within the object.
TEST(ShortText, KeepsSevenBytesWithinItself) {
  const auto stands_within = [](const ShortText& text) {
    const char* const begin = reinterpret_cast<const char*>(&text);
    return text.view().data() >= begin && text.view().data() < begin + sizeof text;
  };
  EXPECT_TRUE(stands_within(kSeven));
  EXPECT_FALSE(stands_within(kEight));
}

TEST(ShortText, ACopyStandsApart) {
  for (const std::string& wanted : {kSeven, kEight}) {
    ShortText text(wanted);
    const ShortText copy(text);
    text = "other";
    EXPECT_EQ(copy, wanted);
    EXPECT_EQ(text, "other");
  }
}

TEST(ShortText, AssignsBetweenBothForms) {
  ShortText text(kEight);
  text = ShortText(kSeven);
  EXPECT_EQ(text, kSeven);
  const ShortText longer(kEight);
  text = longer;
  EXPECT_EQ(text, kEight);
  EXPECT_EQ(longer, kEight);
  text = ShortText("another long text");
  EXPECT_EQ(text, "another long text");
}

TEST(ShortText, AssignsToItself) {
  for (const std::string& wanted : {kSeven, kEight}) {
    ShortText text(wanted);
    const ShortText& same = text;
    text = same;
    EXPECT_EQ(text, wanted);
  }
}

TEST(ShortText, AssignsAPieceOfItself) {
  ShortText text("a text on the heap");
  text = text.view().substr(2);
  EXPECT_EQ(text, "text on the heap");
  text = text.view().substr(0, 4);
  EXPECT_EQ(text, "text");
}

TEST(ShortText, MovesWithoutCopying) {
  static_assert(std::is_nothrow_move_constructible_v<ShortText>);
  static_assert(std::is_nothrow_move_assignable_v<ShortText>);
  ShortText text(kEight);
  const char* const block = text.view().data();
  ShortText moved(std::move(text));
  EXPECT_EQ(moved.view().data(), block);
  ShortText assigned("short");
  assigned = std::move(moved);
  EXPECT_EQ(assigned.view().data(), block);
  EXPECT_EQ(assigned, kEight);
}

TEST(ShortText, MovesToItself) {
  ShortText text(kEight);
  ShortText& same = text;
  text = std::move(same);
  EXPECT_EQ(text, kEight);
}

TEST(ShortText, ComparesLikeAString) {
  const ShortText text("ABS");
  EXPECT_TRUE(text == "ABS");
  EXPECT_TRUE("ABS" == text);
  EXPECT_TRUE(text == std::string("ABS"));
  EXPECT_TRUE(text == std::string_view("ABS"));
  EXPECT_TRUE(text == ShortText("ABS"));
  EXPECT_TRUE(text != "abs");
  EXPECT_TRUE(text != "ABS ");
}

TEST(ShortText, AListOfThemGrowsLikeAListOfStrings) {
  std::mt19937 random(3);
  std::vector<std::string> strings;
  std::vector<ShortText> texts;
  for (int i = 0; i < 2000; ++i) {
    const std::size_t place = random() % (strings.size() + 1);
    const std::string value(random() % 20, static_cast<char>('a' + i % 26));
    strings.insert(strings.begin() + static_cast<std::ptrdiff_t>(place), value);
    texts.insert(texts.begin() + static_cast<std::ptrdiff_t>(place), value);
    if (i % 3 == 0) {
      strings.erase(strings.begin());
      texts.erase(texts.begin());
    }
  }
  ASSERT_EQ(texts.size(), strings.size());
  for (std::size_t i = 0; i < texts.size(); ++i) ASSERT_EQ(texts[i].str(), strings[i]);
}

TEST(ShortText, AShortTextIsTakenFromEightReadableBytes) {
  for (std::size_t length = 0; length <= ShortText::kMostInline; ++length) {
    ShortText text("something longer than that");
    text.AssignInline("abcdefgh", length);
    EXPECT_EQ(text, std::string_view("abcdefgh").substr(0, length));
    text.AssignInline("ABCDEFGH", length);
    EXPECT_EQ(text, std::string_view("ABCDEFGH").substr(0, length));
  }
}

}  // namespace
}  // namespace tallyroll
