// SPDX-License-Identifier: GPL-3.0-or-later
// Which number a teacher reads for which failure of the system.
#include "base/run_time_error.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tallyroll {
namespace {

TEST(RunTimeErrorOf, AMissingFileIsNotFound) {
  EXPECT_EQ(RunTimeErrorOf(ENOENT), 53);
}

TEST(RunTimeErrorOf, ARefusalIsPermission) {
  EXPECT_EQ(RunTimeErrorOf(EACCES), 70);
  EXPECT_EQ(RunTimeErrorOf(EPERM), 70);
  EXPECT_EQ(RunTimeErrorOf(EROFS), 70);
}

TEST(RunTimeErrorOf, NoRoomIsDiskFull) {
  EXPECT_EQ(RunTimeErrorOf(ENOSPC), 61);
  EXPECT_EQ(RunTimeErrorOf(EDQUOT), 61);
  EXPECT_EQ(RunTimeErrorOf(EFBIG), 61);
}

TEST(RunTimeErrorOf, AFolderIsNoFile) {
  EXPECT_EQ(RunTimeErrorOf(EISDIR), 75);
}

TEST(RunTimeErrorOf, APathThatCannotBeWalkedIsNotFound) {
  EXPECT_EQ(RunTimeErrorOf(ENOTDIR), 76);
  EXPECT_EQ(RunTimeErrorOf(ENAMETOOLONG), 76);
  EXPECT_EQ(RunTimeErrorOf(ELOOP), 76);
}

TEST(RunTimeErrorOf, AllElseIsTheDevice) {
  EXPECT_EQ(RunTimeErrorOf(EIO), 57);
  EXPECT_EQ(RunTimeErrorOf(EBADF), 57);
  EXPECT_EQ(RunTimeErrorOf(0), 57);
}

}  // namespace
}  // namespace tallyroll
