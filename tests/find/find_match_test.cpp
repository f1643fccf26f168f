// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/find_match.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

std::optional<FindRank> Match(std::string_view typed, std::string_view text) {
  return MatchFind(MakeFindText(typed), MakeFindText(text));
}

TEST(FindText, IsWordsWithoutCapitalsAccentsAndMarks) {
  EXPECT_EQ(MakeFindText("Edit &Numerical Values for  Letter Grades...").plain,
            "edit numerical values for letter grades");
  EXPECT_EQ(MakeFindText("\xC9lodie M\xFCller-N\xF8rd").plain, "elodie muller nord");
  EXPECT_EQ(MakeFindText("Names, ID's plus Supp. Info.").plain, "names ids plus supp info");
  EXPECT_EQ(MakeFindText("\x8Aim\x9E\xD7 2").plain, "simz 2");
  EXPECT_EQ(MakeFindText(" ... ").words.size(), 0U);
}

TEST(FindMatch, StandsInTheOrderOfHowWellItAnswers) {
  EXPECT_EQ(Match("add student", "&Add Student"), FindRank::kWhole);
  EXPECT_EQ(Match("add st", "Add Student"), FindRank::kBeginning);
  EXPECT_EQ(Match("student add", "Add Student"), FindRank::kWords);
  EXPECT_EQ(Match("stu ad", "Add Student"), FindRank::kBeginnings);
  EXPECT_EQ(Match("adst", "Add Student"), FindRank::kInitials);
  EXPECT_EQ(Match("uden", "Add Student"), FindRank::kInside);
  EXPECT_EQ(Match("stduent", "Add Student"), FindRank::kSlip);
  EXPECT_EQ(Match("grade", "Add Student"), std::nullopt);
}

TEST(FindMatch, NothingTypedIsAnsweredByNothing) {
  EXPECT_EQ(Match("", "Add Student"), std::nullopt);
  EXPECT_EQ(Match(" . ", "Add Student"), std::nullopt);
  EXPECT_EQ(Match("a", ""), std::nullopt);
}

TEST(FindMatch, OneSlipIsForgiven) {
  EXPECT_EQ(Match("seeting", "Seating Chart"), FindRank::kSlip);   // a wrong letter
  EXPECT_EQ(Match("seting", "Seating Chart"), FindRank::kSlip);    // one that is missing
  EXPECT_EQ(Match("seaating", "Seating Chart"), FindRank::kSlip);  // one too many
  EXPECT_EQ(Match("saeting", "Seating Chart"), FindRank::kSlip);   // two that changed places
  EXPECT_EQ(Match("xeating", "Seating Chart"), FindRank::kSlip);   // the first one
  EXPECT_EQ(Match("seatingx", "Seating Chart"), FindRank::kSlip);  // behind the word's end
}

TEST(FindMatch, TwoSlipsAndShortWordsAreNotForgiven) {
  EXPECT_EQ(Match("saetnig", "Seating Chart"), std::nullopt);
  EXPECT_EQ(Match("seeting chrat", "Seating Chart"), std::nullopt);
  EXPECT_EQ(Match("ezd", "Edit"), std::nullopt);
}

TEST(FindMatch, InitialsKeepTheOrderOfTheWords) {
  EXPECT_EQ(Match("psr", "Print Student Records"), FindRank::kInitials);
  EXPECT_EQ(Match("pr re", "Print Student Records"), FindRank::kBeginnings);
  EXPECT_EQ(Match("rsp", "Print Student Records"), std::nullopt);
  EXPECT_EQ(Match("pp", "Print Student Records"), std::nullopt);
}

// Many equal words must not make the search run for ever.
TEST(FindMatch, ManyWordsOfOneLetterAreNoTrap) {
  std::string text, typed;
  for (int i = 0; i < 60; ++i) text += "a ";
  typed.assign(50, 'a');
  EXPECT_EQ(Match(typed, text), FindRank::kInitials);
  EXPECT_EQ(Match(typed + "b", text), std::nullopt);
}

}  // namespace
}  // namespace tallyroll
