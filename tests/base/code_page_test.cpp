// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252 against UTF-8, byte by byte and with every way that UTF-8 can be wrong.
#include "base/code_page.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>

namespace tallyroll {
namespace {

TEST(CodePage, AsciiAndLatinAreTheirOwnNumbers) {
  EXPECT_EQ(UnicodeOf('A'), U'A');
  EXPECT_EQ(UnicodeOf(0x7F), char32_t{0x7F});
  EXPECT_EQ(UnicodeOf(0xA0), char32_t{0xA0});
  EXPECT_EQ(UnicodeOf(0xFF), U'ÿ');
}

TEST(CodePage, ItsOwnBytesAreMarksAndLettersFromElsewhere) {
  EXPECT_EQ(UnicodeOf(0x80), U'€');
  EXPECT_EQ(UnicodeOf(0x85), U'…');
  EXPECT_EQ(UnicodeOf(0x8A), U'Š');
  EXPECT_EQ(UnicodeOf(0x92), U'’');
  EXPECT_EQ(UnicodeOf(0x96), U'–');
  EXPECT_EQ(UnicodeOf(0x99), U'™');
  EXPECT_EQ(UnicodeOf(0x9F), U'Ÿ');
}

TEST(CodePage, UndefinedBytesAreControlCharacters) {
  for (const unsigned char byte :
       std::initializer_list<unsigned char>{0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(UnicodeOf(byte), char32_t{byte});
    EXPECT_EQ(CodePageOf(byte), byte);
  }
}

TEST(CodePage, EveryByteComesBack) {
  std::set<char32_t> characters;
  for (int byte = 0; byte < 256; ++byte) {
    const char32_t character = UnicodeOf(static_cast<unsigned char>(byte));
    characters.insert(character);
    EXPECT_EQ(CodePageOf(character), byte);
  }
  EXPECT_EQ(characters.size(), 256u);
}

// 256 bytes stand for 256 characters, so exactly that many have a byte.
TEST(CodePage, LacksEveryOtherCharacter) {
  int known = 0;
  for (char32_t character = 0; character < 0x110000; ++character) {
    if (CodePageOf(character)) ++known;
  }
  EXPECT_EQ(known, 256);
  EXPECT_EQ(CodePageOf(0x80), std::nullopt);  // a control character whose byte is the euro's
}

TEST(Utf8FromCodePage, WritesOneToThreeBytes) {
  EXPECT_EQ(Utf8FromCodePage("A"), "A");
  EXPECT_EQ(Utf8FromCodePage("\xE9"), "\xC3\xA9");
  EXPECT_EQ(Utf8FromCodePage("\x80"), "\xE2\x82\xAC");
}

TEST(Utf8, EveryTextComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(CodePageFromUtf8(Utf8FromCodePage(all)), all);
  EXPECT_EQ(CodePageFromUtf8(""), "");
}

TEST(CodePageFromUtf8, RefusesWhatTheCodePageLacks) {
  EXPECT_EQ(CodePageFromUtf8("Łukasz"), std::nullopt);
  EXPECT_EQ(CodePageFromUtf8("\xF0\x9F\x98\x80"), std::nullopt);
}

TEST(CodePageFromUtf8, RefusesWrongUtf8) {
  EXPECT_EQ(CodePageFromUtf8("\xE9"), std::nullopt);              // ends within a character
  EXPECT_EQ(CodePageFromUtf8("\xC3"), std::nullopt);              // likewise
  EXPECT_EQ(CodePageFromUtf8("\xC3("), std::nullopt);             // no second byte
  EXPECT_EQ(CodePageFromUtf8("\x80"), std::nullopt);              // begins in the middle
  EXPECT_EQ(CodePageFromUtf8("\xC1\x81"), std::nullopt);          // "A" in two bytes
  EXPECT_EQ(CodePageFromUtf8("\xE0\x83\xA9"), std::nullopt);      // "é" in three bytes
  EXPECT_EQ(CodePageFromUtf8("\xF0\x82\x82\xAC"), std::nullopt);  // the euro in four bytes
  EXPECT_EQ(CodePageFromUtf8("\xED\xA0\x80"), std::nullopt);      // half of a pair
  EXPECT_EQ(CodePageFromUtf8("\xF4\x90\x80\x80"), std::nullopt);  // beyond Unicode
  EXPECT_EQ(CodePageFromUtf8("\xFF"), std::nullopt);              // in no UTF-8 text
}

TEST(PathForDisplay, KeepsWhatTheCodePageHas) {
  EXPECT_EQ(PathForDisplay("/home/zoë/Class 1.TYR"), "/home/zo\xEB/Class 1.TYR");
}

TEST(PathForDisplay, ShowsOneUnderlineForEachCharacterThatItLacks) {
  EXPECT_EQ(PathForDisplay("/Łódź/a"),
            "/_\xF3"
            "d_/a");
  EXPECT_EQ(PathForDisplay("\xF0\x9F\x98\x80.TYR"), "_.TYR");
}

TEST(PathForDisplay, ShowsOneUnderlineForEachByteThatIsNoUtf8) {
  EXPECT_EQ(PathForDisplay("a\xE9\xFF"
                           "b"),
            "a__b");
  EXPECT_EQ(PathForDisplay("a\xC3"), "a_");
}

}  // namespace
}  // namespace tallyroll
