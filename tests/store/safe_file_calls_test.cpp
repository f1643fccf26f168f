// SPDX-License-Identifier: GPL-3.0-or-later
// A save and the system calls that it is made of: those that fail, and those that do less than was
// asked.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

#include "base/run_time_error.h"
#include "store/safe_file.h"
#include "tests/store/failing_disk.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

class SafeFileCallsTest : public PortalTest {
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
  // The numbers of the first handles that are open.
  static std::string OpenHandles() {
    std::string open;
    for (int handle = 0; handle < 64; ++handle)
      if (fcntl(handle, F_GETFD) >= 0) open += std::to_string(handle) + " ";
    return open;
  }
};

TEST_F(SafeFileCallsTest, AFileThatCannotBeGivenToItsOwnerIsSavedAllTheSame) {
  Put(Path("f"), "old");
  ASSERT_EQ(chmod(Path("f").c_str(), 0640), 0);
  FailingDisk disk;
  for (const int refused : {EPERM, EINVAL, EIO}) {
    disk.owner_error = refused;
    EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), 0) << refused;
    EXPECT_EQ(Get(Path("f")), "new");
    EXPECT_EQ(ModeOf(Path("f")), 0640u);
    EXPECT_FALSE(fs::exists(Path("f.saving")));
  }
}

TEST_F(SafeFileCallsTest, AMountWithoutModesIsNoHindrance) {
  Put(Path("f"), "old");
  FailingDisk disk;
  for (const int no_modes : {EPERM, EOPNOTSUPP, ENOSYS}) {
    for (const int owner : {0, EPERM}) {
      disk.owner_error = owner;
      disk.mode_error = no_modes;
      EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), 0) << no_modes;
      EXPECT_EQ(Get(Path("f")), "new");
    }
  }
}

TEST_F(SafeFileCallsTest, AModeThatCannotBeSetForAnotherReasonFailsTheSave) {
  Put(Path("f"), "old");
  FailingDisk disk;
  for (const int owner : {0, EPERM}) {
    disk.owner_error = owner;
    disk.mode_error = EIO;
    EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), kErrorDevice);
    disk.mode_error = EROFS;
    EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), kErrorPermission);
    EXPECT_EQ(Get(Path("f")), "old");
    EXPECT_FALSE(fs::exists(Path("f.saving")));
  }
}

TEST_F(SafeFileCallsTest, ACallThatASignalInterruptsIsMadeAgain) {
  Put(Path("f"), "old");
  FailingDisk disk;
  disk.interruptions = 3;
  EXPECT_EQ(ReadWholeFile(Path("f")).bytes, "old");
  EXPECT_EQ(disk.interruptions, 0);
  disk.interruptions = 3;
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kDrop), 0);
  EXPECT_EQ(disk.interruptions, 0);
  EXPECT_EQ(Get(Path("f")), "new");
}

TEST_F(SafeFileCallsTest, ACallThatMovesFewBytesGoesOnWithTheRest) {
  Put(Path("f"), "0123456789");
  FailingDisk disk;
  disk.most_bytes = 3;
  EXPECT_EQ(ReadWholeFile(Path("f")).bytes, "0123456789");
  EXPECT_EQ(ReplaceFile(Path("f"), "abcdefgh", OldTail::kKeep), 0);
  disk.most_bytes = 0;
  EXPECT_EQ(Get(Path("f")), "abcdefgh89");
}

TEST_F(SafeFileCallsTest, ALongTailStaysByteForByte) {
  std::string old;
  for (int i = 0; old.size() < 300'000; ++i) old += std::to_string(i);
  Put(Path("f"), old);
  EXPECT_EQ(ReplaceFile(Path("f"), "abc", OldTail::kKeep), 0);
  EXPECT_TRUE(Get(Path("f")) == "abc" + old.substr(3));
  EXPECT_EQ(ReplaceFile(Path("f"), "", OldTail::kKeep), 0);
  EXPECT_TRUE(Get(Path("f")) == "abc" + old.substr(3)) << "nothing over a file leaves all of it";
}

TEST_F(SafeFileCallsTest, NoHandleIsLeftOpenAndNoOtherIsClosed) {
  Put(Path("f"), "old and longer");
  const std::string before = OpenHandles();
  EXPECT_EQ(ReadWholeFile(Path("f")).error, 0);
  EXPECT_EQ(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  EXPECT_EQ(OpenHandles(), before);
  FailingDisk disk;
  disk.rename_error = EIO;
  EXPECT_NE(ReplaceFile(Path("f"), "new", OldTail::kKeep), 0);
  disk.link_error = EPERM;
  EXPECT_EQ(KeepUnderName(Path("f"), Path("g")), 0);
  EXPECT_EQ(OpenHandles(), before);
  EXPECT_GE(fcntl(STDOUT_FILENO, F_GETFD), 0) << "an earlier save closed it";
}

// A program that was started without an input gets its number for the first file.
TEST_F(SafeFileCallsTest, TheHandleNumberedNothingIsOneLikeTheOthers) {
  Put(Path("f"), "old");
  const int input = dup(STDIN_FILENO);
  close(STDIN_FILENO);
  const int read_error = ReadWholeFile(Path("f")).error;
  const bool closed_after_reading = fcntl(STDIN_FILENO, F_GETFD) < 0;
  const int write_error = ReplaceFile(Path("f"), "new", OldTail::kDrop);
  const bool closed_after_writing = fcntl(STDIN_FILENO, F_GETFD) < 0;
  close(STDIN_FILENO);
  if (input >= 0) {
    dup2(input, STDIN_FILENO);
    close(input);
  }
  EXPECT_EQ(read_error, 0);
  EXPECT_EQ(write_error, 0);
  EXPECT_TRUE(closed_after_reading);
  EXPECT_TRUE(closed_after_writing);
  EXPECT_EQ(Get(Path("f")), "new");
}

TEST_F(SafeFileCallsTest, ALinkMayHaveATargetOfOneLetter) {
  Put(Path("t"), "old");
  fs::create_symlink("t", Path("link"));
  EXPECT_EQ(ReplaceFile(Path("link"), "new", OldTail::kDrop), 0);
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Get(Path("t")), "new");
}

TEST_F(SafeFileCallsTest, AChainOf40LinksIsFollowedToItsEnd) {
  Put(Path("l0"), "old");
  for (int i = 1; i <= 40; ++i) {
    fs::create_symlink("l" + std::to_string(i - 1), Path("l" + std::to_string(i)));
  }
  EXPECT_EQ(ReplaceFile(Path("l40"), "new", OldTail::kDrop), 0);
  for (int i = 1; i <= 40; ++i) EXPECT_TRUE(fs::is_symlink(Path("l" + std::to_string(i)))) << i;
  EXPECT_EQ(Get(Path("l0")), "new");
}

TEST_F(SafeFileCallsTest, NamesOfEveryLengthCanBeSavedAndNeverLoseTheOldFile) {
  for (std::size_t length = 246; length <= 255; ++length) {
    const std::string path = Path(std::string(length, 'n'));
    Put(path, "old");
    {
      FailingDisk disk;
      disk.rename_error = EIO;
      EXPECT_EQ(ReplaceFile(path, "new", OldTail::kDrop), kErrorDevice) << length;
      EXPECT_EQ(Get(path), "old") << length;
    }
    EXPECT_EQ(ReplaceFile(path, "new", OldTail::kDrop), 0) << length;
    EXPECT_EQ(Get(path), "new") << length;
  }
}

TEST_F(SafeFileCallsTest, AStampHoldsTheTimeToTheNanosecond) {
  Put(Path("f"), "x");
  const timespec times[2] = {{5, 7}, {5, 7}};
  ASSERT_EQ(utimensat(AT_FDCWD, Path("f").c_str(), times, 0), 0);
  EXPECT_EQ(StampOf(Path("f")).modified, 5'000'000'007);
}

TEST_F(SafeFileCallsTest, WithoutLinksAFileThatCannotBeReadHasNoSecondName) {
  FailingDisk disk;
  disk.link_error = EPERM;
  EXPECT_EQ(KeepUnderName(Path("none"), Path("kept")), EIO);
  EXPECT_FALSE(fs::exists(Path("kept")));
}

TEST_F(SafeFileCallsTest, SweepingTakesNoLink) {
  Put(Path("victim"), "precious");
  fs::create_symlink("victim", Path("f.saving"));
  SweepLeftovers(Path("f"));
  EXPECT_TRUE(fs::is_symlink(Path("f.saving")));
  EXPECT_EQ(Get(Path("victim")), "precious");
}

}  // namespace
}  // namespace tallyroll
