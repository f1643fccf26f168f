// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/safe_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <utility>

#include "base/run_time_error.h"
#include "tests/store/failing_disk.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

class SafeFileTest : public PortalTest {
 protected:
  void Put(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  std::string Get(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  mode_t ModeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
  }
};

TEST_F(SafeFileTest, ReadsWhatStandsThere) {
  const std::string bytes = std::string("a\0b\r\n", 5) + std::string(200000, 'x');
  Put(Path("f"), bytes);
  const FileContents contents = ReadWholeFile(Path("f"));
  EXPECT_EQ(contents.error, 0);
  EXPECT_EQ(contents.bytes, bytes);
  EXPECT_EQ(contents.stamp, StampOf(Path("f")));
}

TEST_F(SafeFileTest, ReadsNoMoreThanAllowed) {
  Put(Path("f"), "12345");
  EXPECT_EQ(ReadWholeFile(Path("f"), 5).error, 0);
  EXPECT_EQ(ReadWholeFile(Path("f"), 4).error, kErrorDevice);
}

TEST_F(SafeFileTest, SaysWhyItCannotRead) {
  EXPECT_EQ(ReadWholeFile(Path("none")).error, kErrorFileNotFound);
  EXPECT_EQ(ReadWholeFile(Path("none/f")).error, kErrorPathNotFound);
  EXPECT_EQ(ReadWholeFile(folder).error, kErrorPathAccess);
  Put(Path("f"), "x");
  EXPECT_EQ(ReadWholeFile(Path("f/g")).error, kErrorPathNotFound);
}

TEST_F(SafeFileTest, ANamedPipeIsNoFileAndIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadWholeFile(Path("pipe")).error, kErrorPathAccess);
  EXPECT_EQ(ReplaceFile(Path("pipe"), "x", OldTail::kKeep), kErrorPathAccess);
}

TEST_F(SafeFileTest, AStampChangesWithTheFile) {
  Put(Path("f"), "one");
  const FileStamp before = StampOf(Path("f"));
  Put(Path("f"), "longer");
  EXPECT_NE(StampOf(Path("f")), before);
  EXPECT_EQ(StampOf(Path("none")), FileStamp());
}

TEST_F(SafeFileTest, WritesANewFile) {
  EXPECT_EQ(ReplaceFile(Path("f"), "bytes", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "bytes");
  EXPECT_FALSE(fs::exists(Path("f.saving")));
}

TEST_F(SafeFileTest, ALongerFileKeepsItsTailOrDropsIt) {
  Put(Path("f"), "0123456789");
  EXPECT_EQ(ReplaceFile(Path("f"), "abc", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "abc3456789");
  EXPECT_EQ(ReplaceFile(Path("f"), "xy", OldTail::kDrop), 0);
  EXPECT_EQ(Get(Path("f")), "xy");
  EXPECT_EQ(ReplaceFile(Path("f"), "longer", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "longer");
}

TEST_F(SafeFileTest, PermissionsStay) {
  Put(Path("f"), "x");
  ASSERT_EQ(chmod(Path("f").c_str(), 0640), 0);
  EXPECT_EQ(ReplaceFile(Path("f"), "y", OldTail::kKeep), 0);
  EXPECT_EQ(ModeOf(Path("f")), 0640u);
}

TEST_F(SafeFileTest, ALinkStaysAndItsTargetIsReplaced) {
  fs::create_directory(Path("d"));
  Put(Path("d/real"), "old");
  fs::create_symlink("d/real", Path("link"));
  fs::create_symlink(Path("link"), Path("chain"));
  EXPECT_EQ(ReplaceFile(Path("chain"), "new", OldTail::kKeep), 0);
  EXPECT_TRUE(fs::is_symlink(Path("chain")));
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Get(Path("d/real")), "new");
}

TEST_F(SafeFileTest, ALinkToNothingMakesItsTarget) {
  fs::create_symlink("target", Path("link"));
  EXPECT_EQ(ReplaceFile(Path("link"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("target")), "new");
  EXPECT_TRUE(fs::is_symlink(Path("link")));
}

TEST_F(SafeFileTest, SaysWhyItCannotWrite) {
  EXPECT_EQ(ReplaceFile("", "x", OldTail::kKeep), kErrorPathAccess);
  EXPECT_EQ(ReplaceFile(folder, "x", OldTail::kKeep), kErrorPathAccess);
  EXPECT_EQ(ReplaceFile(Path("none/f"), "x", OldTail::kKeep), kErrorPathNotFound);
  Put(Path("f"), "x");
  EXPECT_EQ(ReplaceFile(Path("f/g"), "x", OldTail::kKeep), kErrorPathNotFound);
  ASSERT_EQ(chmod(Path("f").c_str(), 0444), 0);
  EXPECT_EQ(ReplaceFile(Path("f"), "y", OldTail::kKeep), kErrorPermission);
  EXPECT_EQ(Get(Path("f")), "x");
}

TEST_F(SafeFileTest, WhatAKilledSaveLeftIsNoHindrance) {
  Put(Path("f.saving"), "a longer half of something");
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "new");
  EXPECT_FALSE(fs::exists(Path("f.saving")));
}

TEST_F(SafeFileTest, ALinkPutInTheWayIsNotFollowed) {
  Put(Path("victim"), "precious");
  fs::create_symlink("victim", Path("f.saving"));
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("victim")), "precious");
  EXPECT_EQ(Get(Path("f")), "new");
}

TEST_F(SafeFileTest, AFolderInTheWayFailsTheSaveAndStays) {
  fs::create_directory(Path("f.saving"));
  Put(Path("f"), "old");
  EXPECT_NE(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "old");
  EXPECT_TRUE(fs::is_directory(Path("f.saving")));
}

TEST_F(SafeFileTest, TheLongestNameCanBeSaved) {
  const std::string name(255, 'n');
  EXPECT_EQ(ReplaceFile(Path(name), "one", OldTail::kKeep), 0);
  EXPECT_EQ(ReplaceFile(Path(name), "two", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path(name)), "two");
}

TEST_F(SafeFileTest, SweepingTakesOnlyWhatASaveLeaves) {
  Put(Path("f.saving"), "half");
  Put(Path("g.saving"), "another's");
  SweepLeftovers(Path("f"));
  EXPECT_FALSE(fs::exists(Path("f.saving")));
  EXPECT_TRUE(fs::exists(Path("g.saving")));
}

TEST_F(SafeFileTest, ASecondNameKeepsTheOldBytes) {
  Put(Path("f"), "old");
  EXPECT_EQ(KeepUnderName(Path("f"), Path("kept")), 0);
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), 0);
  EXPECT_EQ(Get(Path("kept")), "old");
  EXPECT_EQ(Get(Path("f")), "new");
}

TEST_F(SafeFileTest, ASecondNameNeverGoesOverAFile) {
  Put(Path("f"), "old");
  Put(Path("kept"), "precious");
  EXPECT_EQ(KeepUnderName(Path("f"), Path("kept")), EEXIST);
  EXPECT_EQ(Get(Path("kept")), "precious");
  EXPECT_EQ(KeepUnderName(Path("none"), Path("kept2")), ENOENT);
}

TEST_F(SafeFileTest, WithoutLinksTheSecondNameIsACopy) {
  Put(Path("f"), "old");
  Put(Path("taken"), "precious");
  FailingDisk disk;
  for (const int no_links : {EPERM, EXDEV, EMLINK, EOPNOTSUPP, ENOSYS}) {
    disk.link_error = no_links;
    EXPECT_EQ(KeepUnderName(Path("f"), Path("kept")), 0) << no_links;
    EXPECT_EQ(Get(Path("kept")), "old");
    EXPECT_EQ(KeepUnderName(Path("f"), Path("taken")), EEXIST);
    EXPECT_EQ(Get(Path("taken")), "precious");
    fs::remove(Path("kept"));
  }
}

TEST_F(SafeFileTest, ACopyThatIsNotOnTheDiskIsNoSecondName) {
  Put(Path("f"), "old");
  FailingDisk disk;
  disk.link_error = EPERM;
  disk.flush_error = EIO;
  EXPECT_EQ(KeepUnderName(Path("f"), Path("kept")), EIO);
  EXPECT_FALSE(fs::exists(Path("kept")));
}

TEST_F(SafeFileTest, BytesThatDoNotReachTheDiskReplaceNothing) {
  Put(Path("f"), "old");
  FailingDisk disk;
  for (const auto& [system_error, number] :
       {std::pair{EIO, kErrorDevice}, {ENOSPC, kErrorDiskFull}, {EDQUOT, kErrorDiskFull}}) {
    disk.flush_error = system_error;
    EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), number);
    EXPECT_EQ(Get(Path("f")), "old");
    EXPECT_FALSE(fs::exists(Path("f.saving")));
  }
}

TEST_F(SafeFileTest, AMoveThatFailsLeavesTheOldFileAndNothingElse) {
  Put(Path("f"), "old");
  FailingDisk disk;
  for (const auto& [system_error, number] :
       {std::pair{EACCES, kErrorPermission}, {EROFS, kErrorPermission}, {EIO, kErrorDevice}}) {
    disk.rename_error = system_error;
    EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), number);
    EXPECT_EQ(Get(Path("f")), "old");
    EXPECT_FALSE(fs::exists(Path("f.saving")));
  }
}

TEST_F(SafeFileTest, AFolderThatCannotBeFlushedIsNoFault) {
  Put(Path("f"), "old");
  FailingDisk disk;
  disk.flush_error = EINVAL;
  disk.good_flushes = 1;
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(Get(Path("f")), "new");
}

}  // namespace
}  // namespace tallyroll
