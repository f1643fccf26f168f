// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_backup.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "store/safe_file.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

TEST(BackupNameTest, TheLastThreeCharactersAreReplaced) {
  EXPECT_EQ(BackupName("/home/b/class.TYR", "old"), "/home/b/class.old");
  EXPECT_EQ(BackupName("class.tyr", "ol6"), "class.ol6");
  EXPECT_EQ(BackupName("two.dots.TYR", "bad"), "two.dots.bad");
}

TEST(BackupNameTest, ANameWithoutAnEndingLosesThreeCharacters) {
  EXPECT_EQ(BackupName("/home/b/algebra", "old"), "/home/b/algeold");
  EXPECT_EQ(BackupName("/home/b/math.TY", "old"), "/home/b/mathold");
  EXPECT_EQ(BackupName("/home/b/math.class", "old"), "/home/b/math.clold");
}

TEST(BackupNameTest, AShortPathIsReplacedWhole) {
  EXPECT_EQ(BackupName("abc", "old"), "old");
  EXPECT_EQ(BackupName("ab", "old"), "old");
  EXPECT_EQ(BackupName("", "old"), "old");
}

TEST(BackupNameTest, ACharacterOfSeveralBytesIsOne) {
  EXPECT_EQ(BackupName("/b/ann\xC3\xA9"
                       "es",
                       "old"),
            "/b/annold");
  EXPECT_EQ(BackupName("\xC3\xA9"
                       "ab",
                       "old"),
            "old");
  // Where no character begins.
  EXPECT_EQ(BackupName("\x80\x80", "old"), "old");
  EXPECT_EQ(BackupName("/b/x\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC", "old"), "/b/xold");
}

class ClassBackupTest : public PortalTest {
 protected:
  std::string Put(std::string_view name, const std::string& bytes) {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }
  std::string Get(std::string_view name) {
    std::ifstream in(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  void ExpectSecondName(std::string_view first, std::string_view second) {
    screen.ExpectBox("A file with the name " + Path(first) +
                     " exists. The backup of the pre-converted file will therefore be saved as " +
                     Path(second));
  }
  std::ptrdiff_t Files() { return std::distance(fs::directory_iterator(folder), {}); }
};

TEST_F(ClassBackupTest, TheOldFileIsKept) {
  const Backup backup = BackUpConvertedFile(Put("a.TYR", "bytes"));
  EXPECT_TRUE(backup.stands);
  EXPECT_EQ(backup.made_now, Path("a.old"));
  EXPECT_EQ(Get("a.old"), "bytes");
  EXPECT_EQ(Get("a.TYR"), "bytes");
  TakeBack(backup);
  EXPECT_EQ(Files(), 1);
}

TEST_F(ClassBackupTest, WithBothNamesTakenNothingIsKept) {
  Put("a.old", "first");
  Put("a.ol6", "second");
  ExpectSecondName("a.old", "a.ol6");
  const Backup backup = BackUpConvertedFile(Put("a.TYR", "bytes"));
  EXPECT_FALSE(backup.stands);
  TakeBack(backup);
  EXPECT_EQ(Get("a.old"), "first");
  EXPECT_EQ(Get("a.ol6"), "second");
}

TEST_F(ClassBackupTest, AFileThatIsNotThereHasNoBackup) {
  const Backup backup = BackUpConvertedFile(Path("none.TYR"));
  EXPECT_FALSE(backup.stands);
  EXPECT_EQ(Files(), 0);
}

// The first name is the file itself, so it is taken.
TEST_F(ClassBackupTest, AClassThatIsItselfCalledOldTakesTheOtherName) {
  ExpectSecondName("a.old", "a.ol6");
  const Backup backup = BackUpConvertedFile(Put("a.old", "bytes"));
  EXPECT_TRUE(backup.stands);
  EXPECT_EQ(backup.made_now, Path("a.ol6"));
  EXPECT_EQ(Get("a.ol6"), "bytes");
  TakeBack(backup);
  EXPECT_EQ(Get("a.old"), "bytes");
  EXPECT_EQ(Files(), 1);
}

TEST_F(ClassBackupTest, ABackupUnderALinkOfTheSameFileIsTheFileItself) {
  Put("real.TYR", "bytes");
  fs::create_symlink("real.TYR", Path("real.old"));
  ExpectSecondName("real.old", "real.ol6");
  EXPECT_EQ(BackUpConvertedFile(Path("real.TYR")).made_now, Path("real.ol6"));
}

TEST_F(ClassBackupTest, AnUnreadClassThatIsItselfCalledBadTakesTheNextName) {
  const std::string path = Put("a.bad", "bytes");
  std::string kept;
  Backup backup;
  EXPECT_EQ(BackUpUnreadFile(path, kept, backup), 0);
  EXPECT_EQ(kept, Path("a.ba2"));
  EXPECT_TRUE(backup.stands);
  EXPECT_EQ(Get("a.ba2"), "bytes");
  TakeBack(backup);
  EXPECT_EQ(Get("a.bad"), "bytes");
  EXPECT_EQ(Files(), 1);
}

TEST_F(ClassBackupTest, AnUnreadFileThatIsKeptAlreadyIsNotKeptTwice) {
  const std::string path = Put("a.TYR", "bytes");
  fs::create_hard_link(path, Path("a.bad"));
  std::string kept;
  Backup backup;
  EXPECT_EQ(BackUpUnreadFile(path, kept, backup), 0);
  EXPECT_EQ(kept, Path("a.bad"));
  TakeBack(backup);
  EXPECT_EQ(Get("a.bad"), "bytes") << "what another save kept is not this one's to take back";
  EXPECT_EQ(Files(), 2);
}

TEST_F(ClassBackupTest, AnEmptyFileThatIsKeptAlreadyIsNotKeptTwice) {
  const std::string path = Put("a.TYR", "");
  fs::create_hard_link(path, Path("a.old"));
  const Backup backup = BackUpConvertedFile(path);
  EXPECT_TRUE(backup.stands);
  EXPECT_EQ(backup.made_now, "");
  EXPECT_EQ(Files(), 2);
}

TEST_F(ClassBackupTest, AReplacedFileTakesTheFirstFreeOfNinetyFiveNames) {
  std::vector<std::string> endings = {"old", "ol6", "ol7", "ol8", "ol9"};
  for (int i = 10; i <= 99; ++i) endings.push_back("o" + PlainNumberText(i));
  Backup backup;
  for (const std::string& ending : endings) {
    fs::remove(Path("a.TYR"));
    const std::string path = Put("a.TYR", ending);
    EXPECT_EQ(BackUpReplacedFile(path, backup), 0);
    EXPECT_TRUE(backup.stands);
    EXPECT_EQ(backup.made_now, Path("a." + ending));
  }
  for (const std::string& ending : endings) EXPECT_EQ(Get("a." + ending), ending);
  fs::remove(Path("a.TYR"));
  backup = Backup();
  EXPECT_EQ(BackUpReplacedFile(Put("a.TYR", "last"), backup), kErrorPathAccess);
  EXPECT_FALSE(backup.stands);
  EXPECT_EQ(Get("a.TYR"), "last");
}

TEST_F(ClassBackupTest, AnUnreadFileThatCannotBeKeptStopsTheSave) {
  std::string kept;
  Backup backup;
  EXPECT_EQ(BackUpUnreadFile(Path("none.TYR"), kept, backup), kErrorFileNotFound);
  EXPECT_FALSE(backup.stands);
}

}  // namespace
}  // namespace tallyroll
