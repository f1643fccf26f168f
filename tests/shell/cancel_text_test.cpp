// SPDX-License-Identifier: GPL-3.0-or-later
// A Cancel in the middle of a text file's import or export: everything is as it was before.
#include "grades/frmMarks.h"
#include "store/settings.h"
#include "store/text/grade_file.h"
#include "store/text_layout.h"
#include "tests/shell/shell_test.h"
#include "tests/support/played_progress.h"

namespace tallyroll {
namespace {

class CancelTextTest : public ShellTest {
 protected:
  CancelTextTest() {
    ticking.profile_folder = ticking.program_folder = folder;
    SetPlatform(&ticking);
    TextMode = kCommasText;
  }
  ~CancelTextTest() override {
    for (const std::string& complaint : ticking.Complaints()) ADD_FAILURE() << complaint;
    SetPlatform(&screen);
  }

  // Sixty students: a step of the work is fifty.
  std::string RosterFile() {
    std::string text;
    for (int i = 1; i <= 60; ++i) text += PlainNumberText(500 + i) + ",Longestname Ada\n";
    WriteFile(Path("new.txt"), text);
    return Path("new.txt");
  }
  void ExpectChoice(bool where) {
    ticking.ExpectPortal("frmtxt", [where](PortalDriver& portal) {
      if (where) portal.Press("okbt");
      portal.Press("okbt");
    });
  }

  TickingScreen ticking;
};

using Works = std::vector<std::string>;

TEST_F(CancelTextTest, NoStudentIsAddedWhereTheFileOrTheAddingIsCancelled) {
  Form1& window = Open("A.TYR");
  const Class before = Current();
  for (const char* work : {"Reading the file", "Adding the students"}) {
    const PlayedProgress progress(work, 1);
    ExpectChoice(true);
    ticking.ExpectFileDialog(RosterFile());
    window.ClickMenu("mnuimportnames");
    ASSERT_FALSE(PlayedProgress::shown.empty());
    EXPECT_EQ(PlayedProgress::shown.back(), work);
    EXPECT_EQ(Current().Students, before.Students) << work;
    EXPECT_EQ(Current().NumStudents, 2) << work;
    EXPECT_EQ(Current().LastNameWidth, before.LastNameWidth) << work;
    EXPECT_EQ(Current().FirstNameWidth, before.FirstNameWidth) << work;
    EXPECT_EQ(Current().Changed, kFalse) << work;
  }
  ExpectChoice(true);
  ticking.ExpectFileDialog(RosterFile());
  window.ClickMenu("mnuimportnames");
  EXPECT_EQ(Current().NumStudents, 62);
}

TEST_F(CancelTextTest, NoClassIsBegunWhereItsStudentsAreCancelled) {
  for (const char* work : {"Reading the file", "Adding the students"}) {
    const PlayedProgress progress(work, 1);
    ExpectChoice(false);
    ticking.ExpectFileDialog(RosterFile());
    FrameForm->ClickMenu("mnuLoadText");
    EXPECT_EQ(WindowCount(), 0) << work;
    EXPECT_EQ(Classes[1].SlotState, 0) << work;
    EXPECT_EQ(Classes[1].NumStudents, 0) << work;
  }
}

TEST_F(CancelTextTest, NoFileIsLeftOfACancelledExport) {
  Form1& window = Open("A.TYR");
  for (const i16 mode : {kCommasText, kCsvText}) {
    TextMode = mode;
    const PlayedProgress progress("Writing the students", 1);
    ExpectChoice(false);
    ticking.ExpectFileDialog(Path("out.txt"));
    window.ClickMenu("mnuNametext");
    EXPECT_EQ(PlayedProgress::shown, (Works{"Writing the students"}));
    EXPECT_FALSE(std::filesystem::exists(Path("out.txt")));
    EXPECT_EQ(window.StatusText, "");
  }
}

TEST_F(CancelTextTest, NoGradeIsOfferedOfACancelledFile) {
  Open("A.TYR");
  std::string text;
  for (int i = 1; i <= 60; ++i) text += PlainNumberText(100 + i) + ",80\n";
  WriteFile(Path("marks.txt"), text);
  ImportFile = Path("marks.txt");
  OpenState = kGradesById;
  const PlayedProgress progress("Reading the file", 1);
  frmMarks portal;
  portal.Load();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(Current().NumInstruments, 0);
}

}  // namespace
}  // namespace tallyroll
