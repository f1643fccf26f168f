// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/companion_file.h"

#include <filesystem>
#include <fstream>

#include "companion/seat_wishes.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using Wishes = std::vector<SeatWish>;

class CompanionFileTest : public PortalTest {
 protected:
  std::string path = Path("MATH.TYR");
  std::string companion = Path("MATH.tyx");
};

TEST_F(CompanionFileTest, StandsBesideTheClassFile) {
  EXPECT_EQ(CompanionPath("/classes/MATH.TYR"), "/classes/MATH.tyx");
  EXPECT_EQ(CompanionPath("/a.b/MATH"), "/a.b/MATH.tyx");
}

TEST_F(CompanionFileTest, ReadingMakesNoFile) {
  EXPECT_EQ(SeatWishes(path).wishes, Wishes{});
  EXPECT_EQ(SeatWishes(path).fault, "");
  EXPECT_FALSE(std::filesystem::exists(companion));
}

TEST_F(CompanionFileTest, WhatWasKeptComesBackInItsOrder) {
  const Wishes wishes = {{"beside", "7", "3"}, {"front", "1", ""}, {"apart", "\xC9lise", "3"}};
  EXPECT_EQ(KeepSeatWishes(path, wishes), "");
  EXPECT_EQ(SeatWishes(path).wishes, wishes);
  EXPECT_EQ(KeepSeatWishes(path, {{"back", "2", ""}}), "");
  EXPECT_EQ(SeatWishes(path).wishes, (Wishes{{"back", "2", ""}}));
}

TEST_F(CompanionFileTest, NothingButTheFileItselfStaysBehind) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files += entry.exists();
  EXPECT_EQ(files, 1);
}

TEST_F(CompanionFileTest, ADamagedOneIsLeftAloneAndToldOf) {
  std::ofstream(companion) << "this is no database, but a text of more than a hundred bytes, "
                              "which somebody has put into the place of the companion file.";
  const std::uintmax_t before = std::filesystem::file_size(companion);
  EXPECT_EQ(SeatWishes(path).wishes, Wishes{});
  EXPECT_NE(SeatWishes(path).fault, "");
  EXPECT_NE(KeepSeatWishes(path, {{"back", "2", ""}}), "");
  EXPECT_EQ(std::filesystem::file_size(companion), before);
}

TEST_F(CompanionFileTest, ACompanionCutInTheMiddleIsToldOf) {
  Wishes wishes;
  for (int i = 0; i < 2000; ++i) wishes.push_back({"front", std::string(20, 'x'), ""});
  ASSERT_EQ(KeepSeatWishes(path, wishes), "");
  std::filesystem::resize_file(companion, std::filesystem::file_size(companion) / 2);
  EXPECT_NE(SeatWishes(path).fault, "");
}

TEST_F(CompanionFileTest, OneOfANewerProgramIsLeftAlone) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  {
    Database database(companion, Database::Mode::kWrite);
    database.Run("PRAGMA user_version=99");
  }
  EXPECT_EQ(SeatWishes(path).fault, "it was written by a newer version of this program");
  EXPECT_EQ(KeepSeatWishes(path, {}), "it was written by a newer version of this program");
}

TEST_F(CompanionFileTest, ALayoutThatNoProgramHasIsADamage) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  {
    Database database(companion, Database::Mode::kWrite);
    database.Run("PRAGMA user_version=-5");
  }
  EXPECT_EQ(SeatWishes(path).fault, "it is damaged");
}

// A companion of the first layout knew no class: it belongs to whoever is beside it.
TEST_F(CompanionFileTest, OneOfTheFirstLayoutIsTakenOver) {
  {
    Database database(companion, Database::Mode::kWrite);
    database.Run(
        "CREATE TABLE seat_wish (place INTEGER PRIMARY KEY, kind TEXT NOT NULL,"
        " student TEXT NOT NULL, other TEXT NOT NULL);"
        "INSERT INTO seat_wish (kind, student, other) VALUES ('back', '2', '');"
        "PRAGMA user_version=1");
  }
  EXPECT_EQ(SeatWishes(path).wishes, (Wishes{{"back", "2", ""}}));
  EXPECT_EQ(KeepSeatWishes(path, {{"front", "2", ""}}), "");
  EXPECT_EQ(SeatWishes(path).wishes, (Wishes{{"front", "2", ""}}));
}

TEST_F(CompanionFileTest, AMissingTableIsToldOf) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  {
    Database database(companion, Database::Mode::kWrite);
    database.Run("DROP TABLE seat_wish");
  }
  EXPECT_NE(SeatWishes(path).fault, "");
}

TEST_F(CompanionFileTest, AnotherProgramThatWritesIsNotWaitedFor) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  Database other(companion, Database::Mode::kWrite);
  const Transaction held(other);
  EXPECT_NE(KeepSeatWishes(path, {}), "");
  EXPECT_EQ(SeatWishes(path).wishes, (Wishes{{"back", "2", ""}}));
}

TEST_F(CompanionFileTest, AClassWithoutAFileHasNone) {
  EXPECT_EQ(SeatWishes("").fault, "the class was not saved yet");
  EXPECT_EQ(SeatWishes("").wishes, Wishes{});
  EXPECT_EQ(KeepSeatWishes("", {}), "the class was not saved yet");
}

TEST_F(CompanionFileTest, AFolderThatIsNotThereIsToldOf) {
  EXPECT_NE(KeepSeatWishes(Path("away/MATH.TYR"), {}), "");
}

TEST_F(CompanionFileTest, ATransactionThatIsNotCommittedIsNothing) {
  KeepSeatWishes(path, {{"back", "2", ""}});
  {
    Database database(companion, Database::Mode::kWrite);
    const Transaction transaction(database);
    database.Run("DELETE FROM seat_wish");
  }
  EXPECT_EQ(SeatWishes(path).wishes.size(), 1u);
}

}  // namespace
}  // namespace tallyroll
