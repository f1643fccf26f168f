// SPDX-License-Identifier: GPL-3.0-or-later
// What a teacher sees while a class is opened and saved: the wait cursor, and the boxes of what
// went wrong or was changed meanwhile.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/run_time_error.h"
#include "platform/portal.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/class_format.h"
#include "store/older_class_file.h"
#include "tests/support/file_bytes.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

// Notes the wait cursor: '+' and '-' when it is set, '!' for a box or Portal that comes up over it,
// '.' for one that comes up without it.
class WatchedScreen : public HeadlessSurroundings {
 public:
  void SetWaitCursor(bool on) override {
    HeadlessSurroundings::SetWaitCursor(on);
    seen += on ? '+' : '-';
  }
  BoxAnswer MessageBox(const MessageRequest& request) override {
    Note();
    return HeadlessSurroundings::MessageBox(request);
  }
  void ShowModal(Portal& portal) override {
    Note();
    HeadlessSurroundings::ShowModal(portal);
  }
  // What was noted, setting the same twice taken as once.
  std::string Seen() const {
    std::string once;
    for (const char c : seen)
      if (once.empty() || once.back() != c || c == '.' || c == '!') once += c;
    return once;
  }
  std::string seen;

 private:
  void Note() { seen += wait_cursor ? '!' : '.'; }
};

struct PortalOfWords : Portal {
  PortalOfWords() : Portal("frmpassword") {}
  void Declare(ControlTable&) override {}
};

class ClassFileWatchTest : public PortalTest {
 protected:
  ClassFileWatchTest() {
    SetPlatform(&watched);
    MakePortal = [](std::string_view) -> std::unique_ptr<Portal> {
      return std::make_unique<PortalOfWords>();
    };
    file = Path("math.TYR");
    Current().FileName = file;
  }
  ~ClassFileWatchTest() override {
    for (const std::string& complaint : watched.Complaints()) ADD_FAILURE() << complaint;
    SetPlatform(&screen);
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
    Current().FileName = file;
    ReadClassFile();
  }
  static std::string BytesOf(const Class& c) {
    std::string bytes;
    EXPECT_EQ(SerializeClass(c, bytes), 0);
    return bytes;
  }

  WatchedScreen watched;
  std::string file;
};

std::string OneStudent() {
  return HeaderBytes(1, 0, 0, 0) + StudentBytes("Adams", "Ann");
}

std::string SmallOldFile() {
  FileBytes f;
  f.Raw("ty5").Fixed("", 10).I16(0).I16(0).I16(0).I16(0).I16(0).NoList().NoList().I16(0);
  f.Fixed("Mr B", 20).Fixed("", 15).Fixed("", 15).Fixed("", 15).Fixed("Algebra", 30).Fixed("7", 6);
  return f.Text("").bytes;
}

TEST_F(ClassFileWatchTest, TheWaitCursorStandsWhileAClassIsReadAndWritten) {
  Open(OneStudent());
  EXPECT_EQ(watched.Seen(), "+-");
  watched.seen.clear();
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(watched.Seen(), "+-");
}

TEST_F(ClassFileWatchTest, ItIsAwayWhileThePasswordIsAskedAndComesBackForTheRecords) {
  Class c;
  c.Magic = "ty8";
  c.PasswordSet = 1;
  watched.ExpectPortal("frmpassword", [](PortalDriver& driver) {
    OpenState = 15;
    driver.portal().Unload();
  });
  Open(BytesOf(c));
  EXPECT_EQ(watched.Seen(), "+-.+-");
}

TEST_F(ClassFileWatchTest, ItIsAwayBeforeAFileErrorIsTold) {
  watched.ExpectBox("File Error: 62");
  Open("ty8");
  EXPECT_EQ(watched.Seen(), "+-.-");
  watched.seen.clear();
  watched.ExpectBox("This file is NOT in a recognized Tallyroll format");
  Open("ty9");
  EXPECT_EQ(watched.Seen(), "+-.");
  watched.seen.clear();
  Current().FileName = Path("none/math.TYR");
  watched.ExpectBox("File Error: 76");
  WriteClassFile();
  EXPECT_EQ(watched.Seen(), "+-.");
}

TEST_F(ClassFileWatchTest, ItIsAwayBeforeAConversionIsTold) {
  watched.ExpectBox(
      "This file is being CONVERTED to the new Tallyroll format. When you save, the file will be "
      "written in the new format, which CAN NOT be read by versions of Tallyroll prior to version "
      "8. (Upon saving of the converted file, a backup of the pre-converted file will be saved "
      "with the extension of '.OLD'.)");
  Open(SmallOldFile());
  EXPECT_EQ(watched.Seen(), "+-.-");
}

// 400 students without marks under 400 grades ask for 6.4 million bytes; 60,000 bytes of a file
// grant 2 million.
TEST_F(ClassFileWatchTest, AClassThatCannotBePaddedIsToldAndKeptAside) {
  Class c;
  c.Magic = "ty8";
  c.NumInstruments = 400;
  ReDim(c.Instruments, 400);
  c.NumStudents = 400;
  ReDim(c.Students, 400);
  const std::string bytes = BytesOf(c);
  ASSERT_LT(bytes.size(), 60000u);
  watched.ExpectBox("File Error: 57");
  Open(bytes);
  EXPECT_EQ(Current().FileName, file);
  EXPECT_GT(Current().NumStudents, 0);
  EXPECT_LT(Current().NumStudents, 400);
  WriteClassFile();
  EXPECT_EQ(Get(Path("math.bad")), bytes);
}

TEST_F(ClassFileWatchTest, APercentOutOfRangeIsToldAndTheClassOpens) {
  Class c;
  c.Magic = "ty8";
  c.AverageSettings = "1,0,0,0,0,";
  c.PercentsText = "5\r1e30\r7";
  watched.ExpectBox("File Error: 6");
  Open(BytesOf(c));
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().Method, 1);
  EXPECT_EQ(Current().TypePercents[1], Currency::FromWhole(5));
}

TEST_F(ClassFileWatchTest, AScaleThatIsNoneIsNotInForceAfterOpening) {
  for (const int scale : {4, 5, 255}) {
    std::string bytes = OneStudent();
    bytes[395] = static_cast<char>(scale);
    Open(bytes);
    EXPECT_EQ(Current().RoundScale, 0) << scale;
  }
  std::string bytes = OneStudent();
  bytes[395] = 3;
  Open(bytes);
  EXPECT_EQ(Current().RoundScale, 3);
}

TEST_F(ClassFileWatchTest, AFileThatAnotherProgramEmptiedIsAskedFor) {
  Open(OneStudent());
  Put(file, "");
  watched.ExpectBox(
      "The class file has been changed by another program since it was opened. Save over it?",
      BoxAnswer::kNo);
  WriteClassFile();
  EXPECT_EQ(Get(file), "");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(ClassFileWatchTest, AnotherFileThanTheOneOpenedIsNotAskedFor) {
  Open(OneStudent());
  Put(Path("other.TYR"), "something else");
  Current().FileName = Path("other.TYR");
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(Get(Path("other.TYR")).substr(0, 3), "ty8");
  EXPECT_EQ(Get(file), OneStudent());
}

}  // namespace
}  // namespace tallyroll
