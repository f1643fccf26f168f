// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/csv_columns.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

using Uses = std::vector<CsvUse>;

constexpr auto kNone = CsvUse::kNotUsed;
constexpr auto kId = CsvUse::kId;
constexpr auto kGrade = CsvUse::kGrade;

Uses Guessed(std::string_view text, CsvPurpose purpose) {
  return GuessColumns(ParseCsv(text), purpose).uses;
}
Uses Guessed(std::string_view text, CsvPurpose purpose, bool heading) {
  return GuessColumns(ParseCsv(text), purpose, heading).uses;
}

TEST(GuessColumns, NothingInTheFileIsNoColumn) {
  for (const bool heading : {false, true}) {
    const CsvColumns columns = GuessColumns(ParseCsv(""), CsvPurpose::kGradesById, heading);
    EXPECT_EQ(columns.uses, Uses());
    EXPECT_FALSE(columns.heading);
  }
}

TEST(GuessColumns, WithoutTitlesTheUsualOrderTellsElevenColumns) {
  const Uses uses = Guessed("1,2,3,4,5,6,7,8,9,10,11,12,13\n", CsvPurpose::kStudents);
  ASSERT_EQ(uses.size(), 13u);
  EXPECT_EQ(uses[0], kId);
  EXPECT_EQ(uses[1], CsvUse::kFullName);
  EXPECT_EQ(uses[10], CsvUse::kEmail);
  EXPECT_EQ(uses[11], kNone);
  EXPECT_EQ(uses[12], kNone);
}

TEST(GuessColumns, ATitleMeansAFieldOnlyWithoutAnythingElse) {
  EXPECT_EQ(Guessed("ID 0,ID 9,Student-ID,Last Name!\n", CsvPurpose::kStudents),
            (Uses{kNone, kNone, kId, CsvUse::kLastName}));
}

TEST(GuessColumns, OfTwoTitlesThatMeanOneFieldTheFirstCounts) {
  EXPECT_EQ(Guessed("ID,Number,Name\n", CsvPurpose::kStudents),
            (Uses{kId, kNone, CsvUse::kFullName}));
}

TEST(GuessColumns, RowsMayBeLongerThanTheTitles) {
  EXPECT_EQ(Guessed("ID\n1,91\n", CsvPurpose::kGradesById), (Uses{kId, kGrade}));
  EXPECT_EQ(Guessed("ID\n1,Ng\n", CsvPurpose::kStudents), (Uses{kId, kNone}));
}

TEST(GuessColumns, RowsMayBeShorterThanTheOthers) {
  EXPECT_EQ(Guessed("1,91,B\n2\n3,82\n", CsvPurpose::kGradesById), (Uses{kId, kGrade, kGrade}));
}

TEST(GuessColumns, AColumnOfMarksIsAGradeWhereverItStands) {
  EXPECT_EQ(Guessed("Score,ID\n91,1\n", CsvPurpose::kGradesById), (Uses{kGrade, kId}));
  EXPECT_EQ(Guessed("Score\n91\n", CsvPurpose::kGradesById, true), (Uses{kGrade}));
}

TEST(GuessColumns, AnEmptyColumnIsNoGrade) {
  EXPECT_EQ(Guessed("1,,91\n2, ,82\n", CsvPurpose::kGradesById), (Uses{kId, kNone, kGrade}));
}

TEST(GuessColumns, AMarkHasFiveCharactersAtMost) {
  EXPECT_EQ(Guessed("1,12345,123456\n", CsvPurpose::kGradesById), (Uses{kId, kGrade, kNone}));
  // The very first row is looked at where it holds no titles, and is not where it does.
  EXPECT_EQ(Guessed("1,too long\n2,91\n", CsvPurpose::kGradesById, false), (Uses{kId, kNone}));
  EXPECT_EQ(Guessed("ID,too long\n2,91\n", CsvPurpose::kGradesById, true), (Uses{kId, kGrade}));
}

TEST(GuessColumns, TheFirst20RowsTellWhetherMarksStandThere) {
  std::string rows;
  for (int i = 0; i < 19; ++i) rows += "1,91\n";
  EXPECT_EQ(Guessed(rows + "1,too long\n", CsvPurpose::kGradesById), (Uses{kId, kNone}));
  EXPECT_EQ(Guessed(rows + "1,92\n1,too long\n", CsvPurpose::kGradesById), (Uses{kId, kGrade}));
}

TEST(GuessColumns, ATitleThatMeansAFieldIsNoGrade) {
  EXPECT_EQ(Guessed("ID,State,Quiz\n1,NY,91\n", CsvPurpose::kGradesById),
            (Uses{kId, kNone, kGrade}));
}

TEST(GuessColumns, AWordOfTheFirstRowIsATitleOnlyInAHeading) {
  EXPECT_EQ(Guessed("1,work\n2,A\n", CsvPurpose::kGradesById, false), (Uses{kId, kGrade}));
}

TEST(CsvColumnsFind, GivesTheFirstSuchColumn) {
  const CsvColumns columns{{kGrade, kId, kGrade}, false};
  EXPECT_EQ(columns.Find(kGrade), 0);
  EXPECT_EQ(columns.Find(kId), 1);
  EXPECT_EQ(columns.Find(CsvUse::kCity), -1);
}

TEST(WhatIsMissing, TheFirstColumnCounts) {
  EXPECT_EQ(WhatIsMissing({{kGrade, kId}, false}, CsvPurpose::kGradesById), "");
  EXPECT_EQ(WhatIsMissing({{kId, kGrade}, false}, CsvPurpose::kGradesById), "");
  for (const CsvUse name : {CsvUse::kFullName, CsvUse::kLastName}) {
    EXPECT_EQ(WhatIsMissing({{name, kGrade}, false}, CsvPurpose::kGradesByName), "");
    EXPECT_EQ(WhatIsMissing({{name}, false}, CsvPurpose::kStudents), "");
  }
}

}  // namespace
}  // namespace tallyroll
