// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/type_ahead.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

const std::vector<std::string> kLines = {"Abrams, Naomi\t8120", "B\xE9langer, Chlo\xE9\t8211",
                                         "Baker, Tom\t8194",    "De La Cruz, Ana\t77",
                                         "Dawson, Eric\t8350",  "O'Brien, Kathleen\tB12"};

TEST(TypeAheadTest, ALineIsFoundByTheBeginningOfItsName) {
  EXPECT_EQ(LineThatBegins("da", kLines, 0), 4);
  EXPECT_EQ(LineThatBegins("BELA", kLines, 0), 1);
  EXPECT_EQ(LineThatBegins("obr", kLines, 0), 5);
  EXPECT_EQ(LineThatBegins("delacr", kLines, 0), 3);
  EXPECT_EQ(LineThatBegins("abrams,n", kLines, 0), 0);
  EXPECT_EQ(LineThatBegins("aomi", kLines, 0), -1);
  EXPECT_EQ(LineThatBegins("", kLines, 0), -1);
  EXPECT_EQ(LineThatBegins(",", kLines, 0), -1);
  EXPECT_EQ(LineThatBegins("a", {}, 0), -1);
}

TEST(TypeAheadTest, FirstColumnsComeBeforeTheOthers) {
  EXPECT_EQ(LineThatBegins("8211", kLines, 0), 1);
  EXPECT_EQ(LineThatBegins("b", kLines, 5), 1);  // and not the ID of the last line
  EXPECT_EQ(LineThatBegins("b1", kLines, 0), 5);
}

TEST(TypeAheadTest, ANumberBeforeANameIsPassedOver) {
  const std::vector<std::string> numbered = {" 1 Ng, Ada", " 2 Orr, Bo", "4711", "12 "};
  EXPECT_EQ(LineThatBegins("orr", numbered, 0), 1);
  EXPECT_EQ(LineThatBegins("47", numbered, 0), 2);
  EXPECT_EQ(LineThatBegins("12", numbered, 0), 3);
}

TEST(TypeAheadTest, AFirstNameIsFoundWhereNoNameBeginsSo) {
  EXPECT_EQ(LineThatBegins("naomi", kLines, 0), 0);
  EXPECT_EQ(LineThatBegins("chloe", kLines, 3), 1);
  EXPECT_EQ(LineThatBegins("cruzana", kLines, 0), 3);
  EXPECT_EQ(LineThatBegins("a", kLines, 1), 0);  // Abrams, and not Ana
  EXPECT_EQ(LineThatBegins("an", kLines, 0), 3);
}

TEST(TypeAheadTest, AnIdBeforeANameIsFoundAndTheNameBehindIt) {
  const std::vector<std::string> labels = {"101 Ng, Ada", "A7 Orr, Bo", "207 Diaz, Cy"};
  EXPECT_EQ(LineThatBegins("207", labels, 0), 2);
  EXPECT_EQ(LineThatBegins("a7", labels, 0), 1);
  EXPECT_EQ(LineThatBegins("or", labels, 0), 1);
  EXPECT_EQ(LineThatBegins("di", labels, 0), 2);
  EXPECT_EQ(LineThatBegins("ada", labels, 0), 0);
  EXPECT_EQ(LineThatBegins("bo", labels, 0), 1);
}

TEST(TypeAheadTest, TheNumberOfALineIsNobodysId) {
  const std::vector<std::string> numbered = {" 1 Ng, Ada\t22", " 2 Orr, Bo\t31"};
  EXPECT_EQ(LineThatBegins("2", numbered, 0), 0);
  EXPECT_EQ(LineThatBegins("1", numbered, 0), -1);
}

TEST(TypeAheadTest, TheSearchGoesRound) {
  EXPECT_EQ(LineThatBegins("b", kLines, 2), 2);
  EXPECT_EQ(LineThatBegins("b", kLines, 3), 1);
  EXPECT_EQ(LineThatBegins("a", kLines, 99), 0);
}

TEST(TypeAheadTest, TheSameLetterGoesOnAndOneMoreStays) {
  EXPECT_EQ(LineToGoTo("b", kLines, -1), 1);
  EXPECT_EQ(LineToGoTo("bb", kLines, 1), 2);
  EXPECT_EQ(LineToGoTo("bbb", kLines, 2), 1);
  EXPECT_EQ(LineToGoTo("ba", kLines, 1), 2);
  EXPECT_EQ(LineToGoTo("bak", kLines, 2), 2);
  EXPECT_EQ(LineToGoTo("bx", kLines, 2), -1);
  EXPECT_EQ(LineToGoTo("", kLines, 2), -1);
}

}  // namespace
}  // namespace tallyroll
