// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

#include "base/run_time_error.h"
#include "platform/class_window.h"
#include "platform/portal.h"
#include "store/class_defaults.h"
#include "tests/store/failing_disk.h"
#include "tests/support/file_bytes.h"
#include "tests/support/portal_test.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

constexpr const char* kConverting =
    "This file is being CONVERTED to the new Tallyroll format. When you save, the file will be "
    "written in the new format, which CAN NOT be read by versions of Tallyroll prior to version 8. "
    "(Upon saving of the converted file, a backup of the pre-converted file will be saved with the "
    "extension of '.OLD'.)";
constexpr const char* kChangedBehind =
    "The class file has been changed by another program since it was opened. Save over it?";

// A stand-in for the window that asks for the password: gives the right one, or is cancelled.
struct PasswordPortal : Portal {
  PasswordPortal() : Portal("frmpassword") {}
  void Declare(ControlTable&) override {}
};

std::unique_ptr<Portal> MakePasswordPortal(std::string_view) {
  return std::make_unique<PasswordPortal>();
}

class SeenWindow : public ClassWindowCalls {
 public:
  void EnableClassMenus(bool on) override { seen += on ? "menus+ " : "menus- "; }
  void EnableEntry(std::string_view entry, bool on) override {
    seen += std::string(entry) + (on ? "+ " : "- ");
  }
  void ShowStatus(std::string_view text) override { status = text; }
  std::string seen;
  std::string status;
};

class ClassFileTest : public PortalTest {
 protected:
  ClassFileTest() {
    SetClassWindow(&window);
    MakePortal = MakePasswordPortal;
    file = Path("math.TYR");
    Current().FileName = file;
  }

  void Put(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  std::string Get(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  void Open(const std::string& bytes) {
    Put(file, bytes);
    ReadClassFile();
  }
  // Counts what lies in the folder.
  std::ptrdiff_t Files() { return std::distance(std::filesystem::directory_iterator(folder), {}); }
  void ExpectSavingFails(int error, const std::string& text) {
    screen.ExpectBox(text);
    Current().Changed = kFalse;
    WriteClassFile();
    EXPECT_EQ(Current().Changed, kTrue);
    EXPECT_EQ(FileErrorCode, error);
    EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kExclamation);
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
    EXPECT_FALSE(screen.wait_cursor);
  }

  SeenWindow window;
  std::string file;
};

std::string SmallClass() {
  return HeaderBytes(2, 0, 0, 0) + StudentBytes("Baker", "Bob") + StudentBytes("Adams", "Ann");
}

TEST_F(ClassFileTest, OpeningReadsSortsAndEnablesTheMenus) {
  Current().Changed = kTrue;
  Open(SmallClass());
  Class& c = Current();
  EXPECT_EQ(c.FileName, file);
  EXPECT_EQ(c.NumStudents, 2);
  EXPECT_EQ(c.Students[1].lastname, "Adams");
  EXPECT_EQ(c.Changed, kFalse);
  EXPECT_EQ(OpenState, 10);
  EXPECT_EQ(window.seen, "menus+ ");
  EXPECT_FALSE(screen.wait_cursor);
}

TEST_F(ClassFileTest, TheDefaultScaleComesFromTheProgramAndLettersFromTheFile) {
  Open(SmallClass());
  EXPECT_EQ(Current().RoundTable[0][0], 99.5f);
  EXPECT_EQ(Current().LetterValues[1], Currency());
}

TEST_F(ClassFileTest, ATemporaryScaleIsNeverInForceAfterOpening) {
  std::string bytes = SmallClass();
  bytes[395] = 4;
  Open(bytes);
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(ClassFileTest, SkipRoundingMakesItsScaleAgain) {
  std::string bytes = SmallClass();
  bytes[401] = 1;
  Open(bytes);
  EXPECT_EQ(Current().RoundScale, 4);
  EXPECT_EQ(Current().RoundTable[4][0], 100.0f);
}

TEST_F(ClassFileTest, StoredSettingsGiveTheMethod) {
  Class c;
  c.Magic = "ty8";
  c.AverageSettings = "2,0,1,0,0,";
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  c.Instruments[1].countflag = "N";
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  Open(bytes);
  EXPECT_EQ(Current().Method, 2);
  EXPECT_EQ(Current().AverageFlag2, kTrue);
  EXPECT_EQ(Current().InstrumentUse[1], Currency::FromWhole(2));
  EXPECT_EQ(window.seen, "menus+ mnuprtgrade+ mnuoptions+ ");
}

TEST_F(ClassFileTest, SettingsOutOfRangeAreAFileErrorAndTheClassOpens) {
  Class c;
  c.Magic = "ty8";
  c.AverageSettings = "99999,0,0,0,0,";
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  screen.ExpectBox("File Error: 6");
  Open(bytes);
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().Method, 5);
}

TEST_F(ClassFileTest, AnUnknownMarkIsRefused) {
  Current().room = "untouched";
  screen.ExpectBox("This file is NOT in a recognized Tallyroll format");
  Open("ty9 and more");
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes[0].title, "Note to the Teacher");
  EXPECT_EQ(Current().FileName, "");
  EXPECT_EQ(Current().room, "untouched");
  EXPECT_FALSE(screen.wait_cursor);
}

TEST_F(ClassFileTest, AnEmptyFileHasNoMark) {
  screen.ExpectBox("This file is NOT in a recognized Tallyroll format");
  Open("");
  EXPECT_EQ(Current().FileName, "");
}

TEST_F(ClassFileTest, AMarkAloneFailsInTheHeader) {
  screen.ExpectBox("File Error: 62");
  Open("ty8");
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kExclamation);
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_EQ(window.seen, "menus+ ");
}

TEST_F(ClassFileTest, WhatStandsBeforeTheFaultCanBeWorkedOn) {
  screen.ExpectBox("File Error: 62");
  Open(HeaderBytes(3, 0, 0, 0) + StudentBytes("Baker", "Bob") + StudentBytes("Adams", "Ann"));
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_EQ(Current().Students[1].lastname, "Adams");
  EXPECT_EQ(Current().RoundTable[0][0], 99.5f);
  EXPECT_EQ(window.seen, "menus+ ");
}

TEST_F(ClassFileTest, ShortListsArePaddedAtOpening) {
  Class c;
  c.Magic = "ty8";
  c.NumInstruments = 2;
  ReDim(c.Instruments, 2);
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  Open(bytes);
  EXPECT_EQ(Current().Students[1].Marks, (List<ShortText>{"", "NEW", "NEW"}));
}

TEST_F(ClassFileTest, NothingIsOpenedWhereThereIsNoFile) {
  screen.ExpectBox("File Error: 53");
  ReadClassFile();
  EXPECT_EQ(Current().FileName, "");
}

TEST_F(ClassFileTest, AMissingFolderTakesTheDataFolderBack) {
  DataFolder = Path("gone");
  ProgramFolder = "/program";
  Current().FileName = Path("gone/math.TYR");
  screen.ExpectBox("File Error: 76");
  ReadClassFile();
  EXPECT_EQ(DataFolder, "/program");
  EXPECT_EQ(Current().FileName, "");
}

TEST_F(ClassFileTest, AFolderIsNoClassFile) {
  Current().FileName = folder;
  screen.ExpectBox("File Error: 75");
  ReadClassFile();
  EXPECT_EQ(Current().FileName, "");
}

std::string LockedClass(const std::string& password, i16 set) {
  Class c;
  c.Magic = "ty8";
  c.Password = password;
  c.PasswordSet = set;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  c.Students[1].lastname = "Adams";
  std::string bytes;
  SerializeClass(c, bytes);
  return bytes;
}

TEST_F(ClassFileTest, TheRightPasswordOpensTheClass) {
  screen.ExpectPortal("frmpassword", [](PortalDriver& driver) {
    EXPECT_EQ(OpenState, 20);
    EXPECT_EQ(Current().NumStudents, 1) << "the header is read";
    EXPECT_TRUE(Current().Students.empty()) << "no list is read before the password is given";
    OpenState = 15;
    driver.portal().Unload();
  });
  Open(LockedClass("abc", 0));
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().Students[1].lastname, "Adams");
}

TEST_F(ClassFileTest, ARefusedPasswordLeavesTheClassUnopened) {
  screen.ExpectPortal("frmpassword", [](PortalDriver& driver) { driver.portal().Unload(); });
  Open(LockedClass("  ", 1));
  EXPECT_EQ(Current().FileName, "");
  EXPECT_TRUE(Current().Students.empty());
  EXPECT_EQ(window.seen, "");
  EXPECT_FALSE(screen.wait_cursor);
}

TEST_F(ClassFileTest, ABlankPasswordThatIsNotSetIsNone) {
  Open(LockedClass("  ", 0));
  EXPECT_EQ(Current().FileName, file);
}

TEST_F(ClassFileTest, SavingWritesTheClassAndEnablesTheEntry) {
  Open(SmallClass());
  Current().room = "B 12";
  Current().Changed = kTrue;
  window.seen.clear();
  FileErrorCode = 61;
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(window.seen, "mnusave+ ");
  std::string expected;
  ASSERT_EQ(SerializeClass(Current(), expected), 0);
  EXPECT_EQ(Get(file), expected);
  EXPECT_EQ(Files(), 1);
  EXPECT_FALSE(screen.wait_cursor);
}

TEST_F(ClassFileTest, AShorterClassLeavesTheOldTailBehindIt) {
  const std::string old = SmallClass() + "tail of something longer";
  Open(old);
  Current().NumStudents = 1;
  WriteClassFile();
  std::string bytes;
  ASSERT_EQ(SerializeClass(Current(), bytes), 0);
  EXPECT_EQ(Get(file), bytes + old.substr(bytes.size()));
  Current().FileName = file;
  ReadClassFile();
  EXPECT_EQ(Current().NumStudents, 1);
}

TEST_F(ClassFileTest, AnEmptyNameIsReported) {
  Current().FileName.clear();
  ExpectSavingFails(kErrorPathAccess, "File Error: 75");
}

TEST_F(ClassFileTest, AMissingFolderIsReportedAndALaterSaveWorks) {
  Current().FileName = Path("gone/math.TYR");
  ExpectSavingFails(kErrorPathNotFound, "File Error: 76");
  Current().FileName = file;
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(ClassFileTest, AProtectedFileIsNotReplaced) {
  Open(SmallClass());
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  ExpectSavingFails(kErrorPermission, "File Error: 70. Disk may be write protected");
  EXPECT_EQ(Get(file), SmallClass());
  EXPECT_EQ(Files(), 1);
  Current().FileName = Path("other.TYR");
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
}

TEST_F(ClassFileTest, AFullDiskKeepsTheOldFile) {
  Open(SmallClass());
  Current().room = std::string(5000, 'x');
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{3000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  ExpectSavingFails(kErrorDiskFull, "File Error: 61");
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  EXPECT_EQ(Get(file), SmallClass());
  EXPECT_EQ(Files(), 1);
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_GT(Get(file).size(), 5000u);
}

TEST_F(ClassFileTest, ADiskThatDoesNotTakeTheBytesKeepsTheOldFile) {
  Open(SmallClass());
  Current().room = "B 12";
  FailingDisk disk;
  disk.flush_error = EIO;
  ExpectSavingFails(kErrorDevice, "File Error: 57");
  disk.flush_error = 0;
  disk.rename_error = EACCES;
  ExpectSavingFails(kErrorPermission, "File Error: 70. Disk may be write protected");
  EXPECT_EQ(Get(file), SmallClass());
  EXPECT_EQ(Files(), 1);
}

TEST_F(ClassFileTest, AFirstSaveThatFailsAtTheMoveTakesItsBackupBack) {
  Put(file, "old bytes");
  Current().Magic = "ty5";
  FailingDisk disk;
  disk.rename_error = EIO;
  ExpectSavingFails(kErrorDevice, "File Error: 57");
  EXPECT_EQ(Get(file), "old bytes");
  EXPECT_EQ(Files(), 1);
  EXPECT_EQ(Current().Magic, "ty5");
}

TEST_F(ClassFileTest, ATextTooLongForTheFileWritesNothing) {
  Open(SmallClass());
  Current().room = std::string(65536, 'x');
  ExpectSavingFails(kErrorOverflow, "File Error: 6");
  EXPECT_EQ(Get(file), SmallClass());
}

TEST_F(ClassFileTest, AFileThatAnotherProgramWroteIsAskedFor) {
  Open(SmallClass());
  Put(file, "something else");
  screen.ExpectBox(kChangedBehind, BoxAnswer::kNo);
  WriteClassFile();
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kExclamation);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(FileErrorCode, kErrorPermission);
  EXPECT_EQ(Get(file), "something else");
  screen.ExpectBox(kChangedBehind, BoxAnswer::kYes);
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(Get(file).substr(0, 3), "ty8");
  WriteClassFile();
  EXPECT_EQ(screen.boxes.size(), 2u) << "the program's own save is no change by another";
}

TEST_F(ClassFileTest, ASymbolicLinkIsTheSameFile) {
  std::filesystem::create_symlink("math.TYR", Path("link.TYR"));
  Open(SmallClass());
  Put(file, "something else");
  Current().FileName = Path("link.TYR");
  screen.ExpectBox(kChangedBehind, BoxAnswer::kNo);
  WriteClassFile();
  EXPECT_EQ(Get(file), "something else");
  screen.ExpectBox(kChangedBehind, BoxAnswer::kYes);
  WriteClassFile();
  EXPECT_EQ(Get(file).substr(0, 3), "ty8");
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link.TYR")));
}

TEST_F(ClassFileTest, ASecondSpellingOfThePathIsTheSameFile) {
  Open(SmallClass());
  Put(file, "something else");
  std::filesystem::create_directory(Path("sub"));
  for (const std::string& spelling :
       {folder + "//math.TYR", Path("./math.TYR"), Path("sub/../math.TYR")}) {
    Current().FileName = spelling;
    screen.ExpectBox(kChangedBehind, BoxAnswer::kNo);
    WriteClassFile();
    EXPECT_EQ(Get(file), "something else") << spelling;
  }
}

TEST_F(ClassFileTest, OpenedThroughALinkTheFileBehindItIsWatched) {
  Put(file, SmallClass());
  std::filesystem::create_symlink("math.TYR", Path("link.TYR"));
  Current().FileName = Path("link.TYR");
  ReadClassFile();
  Put(file, "something else");
  screen.ExpectBox(kChangedBehind, BoxAnswer::kNo);
  WriteClassFile();
  EXPECT_EQ(Get(file), "something else");
}

TEST_F(ClassFileTest, AFileThatWasRemovedIsWrittenAgainWithoutAQuestion) {
  Open(SmallClass());
  std::filesystem::remove(file);
  WriteClassFile();
  EXPECT_EQ(Get(file).size(), SmallClass().size());
}

TEST_F(ClassFileTest, AnUnreadOriginalIsKeptOnceBesideTheSavedClass) {
  const std::string broken = HeaderBytes(9, 0, 0, 0) + StudentBytes("Adams", "Ann");
  screen.ExpectBox("File Error: 62");
  Open(broken);
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.bad")), broken);
  EXPECT_EQ(window.status,
            "math.TYR saved. The file that could not be read whole is kept as " + Path("math.bad"));
  WriteClassFile();
  EXPECT_EQ(Files(), 2);
}

TEST_F(ClassFileTest, AnEarlierUnreadOriginalIsNotOverwritten) {
  Put(Path("math.bad"), "first");
  screen.ExpectBox("File Error: 62");
  Open("ty8");
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.bad")), "first");
  EXPECT_EQ(Get(Path("math.ba2")), "ty8");
}

TEST_F(ClassFileTest, WithoutAFreeNameTheUnreadOriginalIsNotReplaced) {
  Put(Path("math.bad"), "x");
  for (char n = '2'; n <= '9'; ++n) Put(Path(std::string("math.ba") + n), "x");
  screen.ExpectBox("File Error: 62");
  Open("ty8");
  ExpectSavingFails(kErrorPathAccess, "File Error: 75");
  EXPECT_EQ(Get(file), "ty8");
}

TEST_F(ClassFileTest, AFailedSaveTakesTheCopyOfTheUnreadOriginalBack) {
  const std::string broken = HeaderBytes(9, 0, 0, 0) + StudentBytes("Adams", "Ann");
  screen.ExpectBox("File Error: 62");
  Open(broken);
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  ExpectSavingFails(kErrorPermission, "File Error: 70. Disk may be write protected");
  EXPECT_EQ(Get(file), broken);
  EXPECT_EQ(Files(), 1);
  ASSERT_EQ(chmod(file.c_str(), 0644), 0);
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.bad")), broken) << "the next save keeps it after all";
}

TEST_F(ClassFileTest, SavedElsewhereTheUnreadOriginalStaysWhereItIs) {
  screen.ExpectBox("File Error: 62");
  Open("ty8");
  Current().FileName = Path("other.TYR");
  WriteClassFile();
  EXPECT_EQ(Get(file), "ty8");
  EXPECT_EQ(Files(), 2);
}

TEST_F(ClassFileTest, AConvertedClassKeepsItsOldFile) {
  Put(file, "old bytes of an older version, and quite a long file at that");
  Current().Magic = "ty7";
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.old")), "old bytes of an older version, and quite a long file at that");
  EXPECT_EQ(Current().Magic, "ty8");
  std::string bytes;
  SerializeClass(Current(), bytes);
  EXPECT_EQ(Get(file), bytes) << "the old file moved away and leaves no tail";
}

TEST_F(ClassFileTest, ASecondBackupTakesAnotherNameAndSaysSo) {
  Put(file, "second");
  Put(Path("math.old"), "first");
  Current().Magic = "ty5";
  screen.ExpectBox("A file with the name " + Path("math.old") +
                   " exists. The backup of the pre-converted file will therefore be saved as " +
                   Path("math.ol6"));
  WriteClassFile();
  EXPECT_EQ(screen.boxes[0].title, "Note to the Teacher");
  EXPECT_EQ(Get(Path("math.old")), "first");
  EXPECT_EQ(Get(Path("math.ol6")), "second");
}

TEST_F(ClassFileTest, WithBothNamesTakenTheSaveGoesOverTheOldFile) {
  const std::string old(3000, 'o');
  Put(file, old);
  Put(Path("math.old"), "first");
  Put(Path("math.ol6"), "second");
  Current().Magic = "ty7";
  screen.ExpectBox("A file with the name " + Path("math.old") +
                   " exists. The backup of the pre-converted file will therefore be saved as " +
                   Path("math.ol6"));
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.old")), "first");
  EXPECT_EQ(Get(Path("math.ol6")), "second");
  std::string bytes;
  SerializeClass(Current(), bytes);
  EXPECT_EQ(Get(file), bytes + old.substr(bytes.size()));
}

TEST_F(ClassFileTest, ANewClassOverNothingMakesNoBackup) {
  Current().Magic = "ty7";
  WriteClassFile();
  EXPECT_EQ(Files(), 1);
  EXPECT_EQ(FileErrorCode, 0);
}

TEST_F(ClassFileTest, AFailedFirstSaveTakesItsBackupBack) {
  Put(file, "old bytes");
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  Current().Magic = "ty7";
  ExpectSavingFails(kErrorPermission, "File Error: 70. Disk may be write protected");
  EXPECT_EQ(Get(file), "old bytes");
  EXPECT_EQ(Files(), 1);
  EXPECT_EQ(Current().Magic, "ty7");
}

TEST_F(ClassFileTest, ABackupThatAKilledSaveLeftIsTaken) {
  Put(file, std::string(3000, 'o'));
  std::filesystem::create_hard_link(file, Path("math.old"));
  Current().Magic = "ty7";
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.old")), std::string(3000, 'o'));
  EXPECT_LT(Get(file).size(), 3000u);
  EXPECT_EQ(Files(), 2);
}

// The least older file: no students and nothing else.
std::string LeastOldFile() {
  FileBytes f;
  f.Raw("ty5").Fixed("", 10).I16(0).I16(0).I16(0).I16(0).I16(0).NoList().NoList().I16(0);
  f.Fixed("Mr B", 20).Fixed("", 15).Fixed("", 15).Fixed("", 15).Fixed("Algebra", 30).Fixed("7", 6);
  return f.Text("").bytes;
}

TEST_F(ClassFileTest, AnOlderFileIsConvertedAndItsFirstSaveKeepsIt) {
  screen.ExpectBox(kConverting);
  Open(LeastOldFile());
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().Magic, "ty5");
  EXPECT_EQ(Current().description, "Algebra");
  EXPECT_EQ(Current().RoundTable[0][12], 58.5f);
  EXPECT_EQ(Current().LetterValues[1], Currency::FromWhole(99));
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.old")), LeastOldFile());
  EXPECT_EQ(Get(file).substr(0, 3), "ty8");
}

TEST_F(ClassFileTest, AnOlderFileThatIsCutIsReported) {
  screen.ExpectBox(kConverting);
  screen.ExpectBox("File Error: 62");
  Open(LeastOldFile().substr(0, 100));
  EXPECT_EQ(Current().FileName, file);
}

TEST_F(ClassFileTest, TheSideFilesServeWhenTheOldSettingsSaySo) {
  FileBytes letters;
  for (int k = 1; k <= 13; ++k) letters.Fixed("A", 3).Money(10000 * k);
  Put(Path("LetterVl.Let"), letters.bytes);
  screen.settings["TALLYRLW6/startup/LETTER"] = "1";
  screen.ExpectBox(kConverting);
  Open(LeastOldFile());
  EXPECT_EQ(Current().LetterValues[13], Currency::FromWhole(13));
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(ClassFileTest, AnOlderFileWithAPasswordAsksForIt) {
  std::string bytes = LeastOldFile();
  bytes.replace(3, 3, "abc");
  screen.ExpectBox(kConverting);
  screen.ExpectPortal("frmpassword", [](PortalDriver& driver) { driver.portal().Unload(); });
  Open(bytes);
  EXPECT_EQ(Current().FileName, "");
}

// A teacher's machine may die at any moment of a save: then the old file is there whole, or the
// new.
TEST_F(ClassFileTest, AKilledSaveLeavesTheOldFileOrTheNew) {
  Class old_class, new_class;
  old_class.Magic = new_class.Magic = "ty8";
  old_class.ReservedList.assign(2, std::string(60000, 'o'));
  new_class.ReservedList.assign(2, std::string(60000, 'n'));
  std::string bytes[2];
  ASSERT_EQ(SerializeClass(old_class, bytes[0]), 0);
  ASSERT_EQ(SerializeClass(new_class, bytes[1]), 0);
  ASSERT_EQ(ReplaceFile(file, bytes[0], OldTail::kKeep), 0);
  std::mt19937 random(3);
  int interrupted = 0;
  for (int round = 0; round < 300; ++round) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (int save = 0;; ++save) {
        if (ReplaceFile(file, bytes[save % 2], OldTail::kKeep) != 0) _exit(1);
      }
    }
    usleep(static_cast<useconds_t>(random() % 6000));
    ASSERT_EQ(kill(writer, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
    interrupted += std::filesystem::exists(file + ".saving");
    const std::string found = Get(file);
    ASSERT_TRUE(found == bytes[0] || found == bytes[1]) << round;
  }
  EXPECT_GT(interrupted, 0) << "no kill ever met a save in its middle";
}

}  // namespace
}  // namespace tallyroll
