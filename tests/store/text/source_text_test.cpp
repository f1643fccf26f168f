// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/source_text.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

bool IsTextFile(std::string_view bytes) {
  return SourceText::FromBytes(bytes).has_value();
}

std::string TextOf(std::string_view bytes) {
  return std::string(SourceText::FromBytes(bytes).value().text());
}

TEST(SourceText, NineStrayControlCharactersAreNoFault) {
  EXPECT_TRUE(IsTextFile(std::string(9, '\x01')));
  EXPECT_FALSE(IsTextFile(std::string(10, '\x01')));
}

TEST(SourceText, InALongTextFewerThanOneInFiftyAreNoFault) {
  const std::string stray(20, '\x1F');
  // 20 of 1,050 are fewer than 21; 20 of 1,049 are not fewer than 20 whole fifties.
  EXPECT_TRUE(IsTextFile(stray + std::string(1030, 'x')));
  EXPECT_FALSE(IsTextFile(stray + std::string(1029, 'x')));
}

TEST(SourceText, TabsAndLineEndsAreNotStray) {
  for (const char c : {'\t', '\n', '\v', '\f', '\r', ' '})
    EXPECT_TRUE(IsTextFile(std::string(40, c)));
  for (const char c : {'\x08', '\x0E'}) EXPECT_FALSE(IsTextFile(std::string(40, c)));
}

TEST(SourceText, AZeroIsNeverText) {
  EXPECT_FALSE(IsTextFile(std::string(1, '\0')));
  EXPECT_FALSE(IsTextFile(std::string(9000, 'x') + '\0'));
}

TEST(SourceText, TheMarkAtTheHeadAndTheOldEndOfFileAreNoPartOfIt) {
  EXPECT_EQ(TextOf("\xEF\xBB\xBF"
                   "1,91"),
            "1,91");
  EXPECT_EQ(TextOf("1,91\x1A"), "1,91");
  EXPECT_EQ(TextOf("1,91\x1A\x1A"), "1,91\x1A");
}

TEST(SourceText, Utf8IsTakenAsSuchAndEverythingElseAsTheCodePage) {
  EXPECT_EQ(TextOf("Zo\xC3\xAB"), "Zo\xEB");
  EXPECT_EQ(TextOf("Zo\xEB"), "Zo\xEB");
  EXPECT_EQ(TextOf("5 \x80"), "5 \x80");
}

TEST(SourceText, APartHoldsWhatTheFileHasUntilACharacterIsLacking) {
  const SourceText source = SourceText::FromBytes(
                                "ab\xC5\x81"
                                "cd")
                                .value();
  const std::string_view text = source.text();
  ASSERT_EQ(text.size(), 5u);
  EXPECT_TRUE(source.Holds(text.substr(0, 2))) << "it stands right behind";
  EXPECT_FALSE(source.Holds(text.substr(0, 3)));
  EXPECT_FALSE(source.Holds(text.substr(2, 1)));
  EXPECT_TRUE(source.Holds(text.substr(3)));
  EXPECT_TRUE(source.Holds({}));
  EXPECT_EQ(source.Shown(text), "ab<U+0141>cd");
  EXPECT_EQ(source.Shown(text.substr(3)), "cd");
  EXPECT_EQ(source.Shown({}), "");
}

}  // namespace
}  // namespace tallyroll
