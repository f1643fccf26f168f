// SPDX-License-Identifier: GPL-3.0-or-later
// Work that was not saved, seen from the class window: kept, found by the next start, taken or not.
#include "insight/kept_work.h"

#include <filesystem>

#include "companion/behind.h"
#include "companion/change_history.h"
#include "companion/companion_file.h"
#include "companion/working_copy.h"
#include "tests/shell/shell_test.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

class KeptWorkTest : public ShellTest {
 protected:
  KeptWorkTest() : window(&Open("A.TYR", Sample(2, 2))) {
    file = Current().FileName;
    // A file as the program writes it, so that opening it changes nothing.
    window->ClickMenu("mnusave");
  }

  // A command that gives the first student this mark.
  void Mark(const char* mark) {
    screen.ExpectPortal("frmletter", [mark](PortalDriver& work) {
      Current().Students[1].Marks[1] = mark;
      Current().Changed = kTrue;
      work.CloseWindow();
    });
    window->ClickMenu("mnuLetter");
  }
  // The program ends without a word, and is started again with the class.
  void CrashAndOpen() {
    AwaitBehind();
    ResetProgram();
    Screen = &frame_screen;
    DataFolder = folder;
    FrameForm = std::make_unique<MDIForm1>();
    FrameForm->OpenRecent(file);
    window = Window(1);
  }
  static std::string FirstMark() { return Current().Students[1].Marks[1].str(); }

  Form1* window;
  std::string file;
};

TEST_F(KeptWorkTest, ACommandThatChangedTheClassIsKeptWhenTheProgramWaits) {
  Mark("91");
  EXPECT_TRUE(window->WorkWaits);
  FrameForm->KeepWork(false);
  EXPECT_FALSE(window->WorkWaits);
  const std::string on_disk = ReadWholeFile(file).bytes;
  screen.ExpectPortal("frmrecover", [](PortalDriver& work) {
    EXPECT_EQ(work.Text("found"),
              "The program ended before A.TYR was saved. Work of 9/1/2026, 00:00:00, was found: 1 "
              "mark. Keep puts it into the class, as a step that Undo takes back; the file on the "
              "disk stays as it is until you save.");
    work.Press("keep");
  });
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "91");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(ReadWholeFile(file).bytes, on_disk);
  EXPECT_EQ(window->menu["mnuundo"].caption, "&Undo Recovered Work: Quiz, Last01, First01");
  EXPECT_EQ(window->Grid1.TextMatrix(2, 2), "91");
  window->ClickMenu("mnuundo");
  EXPECT_EQ(FirstMark(), "80");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(KeptWorkTest, WhatIsDiscardedIsOfferedNoMore) {
  Mark("91");
  FrameForm->KeepWork(false);
  screen.ExpectPortal("frmrecover", [](PortalDriver& work) { work.Press("discard"); });
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "80");
  EXPECT_EQ(Current().Changed, kFalse);
  CrashAndOpen();
}

TEST_F(KeptWorkTest, WhatWasTakenIsOfferedAgainAfterAnotherCrash) {
  Mark("91");
  FrameForm->KeepWork(false);
  for (int i = 0; i < 2; ++i) {
    screen.ExpectPortal("frmrecover", [](PortalDriver& work) { work.CloseWindow(); });
    CrashAndOpen();
    EXPECT_EQ(FirstMark(), "91");
  }
}

TEST_F(KeptWorkTest, ASavedClassOffersNothing) {
  Mark("91");
  FrameForm->KeepWork(false);
  window->ClickMenu("mnusave");
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "91");
}

// The file was written, and the program ended before it could forget the copy.
TEST_F(KeptWorkTest, ACopyThatIsTheFileIsForgotten) {
  Mark("91");
  FrameForm->KeepWork(false);
  const WorkingCopy copy = WorkingCopyOf(file);
  WriteFile(file, copy.bytes);
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "91");
  EXPECT_EQ(WorkingCopyOf(file).time, "");
}

TEST_F(KeptWorkTest, AClassThatIsClosedUnsavedIsGivenUp) {
  Mark("91");
  FrameForm->KeepWork(false);
  screen.ExpectBox("A.TYR Data has been changed. Save File?  ", BoxAnswer::kNo);
  EXPECT_TRUE(FrameForm->CloseWindow(*window));
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "80");
}

TEST_F(KeptWorkTest, WorkThatWasUndoneIsForgotten) {
  Mark("91");
  FrameForm->KeepWork(false);
  window->ClickMenu("mnuundo");
  FrameForm->KeepWork(false);
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "80");
}

TEST_F(KeptWorkTest, EachMinuteAlsoWhatNoCommandEnded) {
  Current().Students[1].Marks[1] = "92";
  Current().Changed = kTrue;
  FrameForm->KeepWork(false);
  AwaitBehind();
  EXPECT_EQ(WorkingCopyOf(file).time, "");
  FrameForm->KeepWork(true);
  screen.ExpectPortal("frmrecover", [](PortalDriver& work) { work.Press("keep"); });
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "92");
}

TEST_F(KeptWorkTest, OnlyTheLastWorkIsOffered) {
  for (const char* mark : {"91", "92", "93"}) {
    Mark(mark);
    FrameForm->KeepWork(false);
  }
  screen.ExpectPortal("frmrecover", [](PortalDriver& work) { work.Press("keep"); });
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "93");
}

// Another program wrote the file after the work was kept: the file is the newer one.
TEST_F(KeptWorkTest, AFileThatIsNewerThanTheWorkIsLeftAlone) {
  Mark("91");
  screen.now = 40000;  // long before the file's own time
  FrameForm->KeepWork(false);
  AwaitBehind();
  Class other = Sample(2, 2);
  other.Students[2].Marks[1] = "55";
  std::string bytes;
  ASSERT_EQ(SerializeClass(other, bytes), 0);
  WriteFile(file, bytes);
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "80");
  EXPECT_EQ(Current().Students[2].Marks[1], "55");
}

TEST_F(KeptWorkTest, SavedUnderAnotherNameItIsOfferedInNeither) {
  Mark("91");
  FrameForm->KeepWork(false);
  screen.ExpectFileDialog(Path("B.TYR"));
  window->ClickMenu("mnusaveas");
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "80");
  file = Path("B.TYR");
  CrashAndOpen();
  EXPECT_EQ(FirstMark(), "91");
}

TEST_F(KeptWorkTest, AClassWithAPasswordKeepsNoneUntilItIsAgreed) {
  Current().PasswordSet = 1;
  Mark("91");
  FrameForm->KeepWork(false);
  AwaitBehind();
  EXPECT_EQ(WorkingCopyOf(file).time, "");
  AgreeToHistory(file, true);
  Mark("92");
  FrameForm->KeepWork(false);
  EXPECT_NE(WorkingCopyOf(file).time, "");
}

TEST_F(KeptWorkTest, ACompanionThatIsDamagedIsToldOnceAndCostsNothing) {
  WriteFile(CompanionPath(file), "this is no database at all, and long enough to be looked at");
  const std::string told = "The work on this class is not kept until it is saved: it is damaged.";
  Mark("91");
  FrameForm->KeepWork(false);
  Mark("92");
  FrameForm->KeepWork(false);
  EXPECT_EQ(window->StatusText, told);
  Mark("93");
  FrameForm->KeepWork(false);
  EXPECT_EQ(window->StatusText, "");
  window->ClickMenu("mnusave");
  EXPECT_EQ(Current().Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
