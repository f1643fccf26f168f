// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>

#include "shell/recent_list.h"
#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

using OpenClassTest = ShellTest;

TEST_F(OpenClassTest, OpenShowsTheClassInAWindowOfItsOwn) {
  const std::string path = MakeFile("maths.tyr", Sample(3));
  screen.ExpectFileDialog(path);
  FrameForm->ClickMenu("mnuOpen");
  ASSERT_NE(Window(1), nullptr);
  EXPECT_EQ(Window(1)->Caption, "MATHS.TYR");
  EXPECT_EQ(Window(1)->Tag, "1");
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_EQ(Classes[1].SlotState, 10);
  EXPECT_EQ(Classes[1].FileName, path);
  EXPECT_EQ(Window(1)->Grid1.TextMatrix(4, 0), " 3 Last03, First03");
  EXPECT_TRUE(Window(1)->menu.Find("mnusave")->enabled);
  EXPECT_EQ(RecentFiles[0], path);
  EXPECT_EQ(LastFolder, folder);
  EXPECT_EQ(OpenState, 0);
  EXPECT_EQ(PendingAction, 0);
  EXPECT_EQ(frame_screen.calls, std::vector<std::string>{"shown MATHS.TYR"});
}

TEST_F(OpenClassTest, WhatAKilledSaveLeftIsSweptUp) {
  const std::string path = MakeFile("maths.tyr", Sample(3));
  std::ofstream(path + ".saving") << "half";
  screen.ExpectFileDialog(path);
  FrameForm->ClickMenu("mnuOpen");
  EXPECT_FALSE(std::filesystem::exists(path + ".saving"));
  EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(OpenClassTest, DialogAsksForClassFilesThatExist) {
  LastFolder = "/somewhere";
  screen.ExpectFileDialog(std::nullopt);
  FrameForm->mnuOpen_Click();
  const FileDialogRequest& request = screen.file_dialogs.at(0);
  EXPECT_FALSE(request.save);
  EXPECT_EQ(request.folder, "/somewhere");
  EXPECT_EQ(request.filename, "");
  EXPECT_EQ(request.filter, "Data Files (*.tyr)|*.TYR");
  EXPECT_EQ(request.default_extension, "TYR");
  EXPECT_TRUE(request.file_must_exist);
  EXPECT_EQ(request.help_context, 110);
  EXPECT_EQ(std::filesystem::current_path(), folder);
}

TEST_F(OpenClassTest, CancelGivesTheSlotBackAndLeavesNoWindow) {
  screen.ExpectFileDialog(std::nullopt);
  FrameForm->mnuOpen_Click();
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Classes[1].SlotState, 0);
  EXPECT_EQ(OpenState, 0);
}

TEST_F(OpenClassTest, SixthClassIsRefused) {
  for (const char* name : {"A.TYR", "B.TYR", "C.TYR", "D.TYR", "E.TYR"}) Open(name);
  EXPECT_EQ(WindowCount(), 5);
  const std::string sixth = MakeFile("F.TYR");
  screen.ExpectBox("You may only have 5 class(es) open at a time.");
  Window(2)->Activate();
  Window(2)->ClickMenu("mnuOpen");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kCritical);
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  screen.ExpectBox("You may only have 5 class(es) open at a time.");
  FrameForm->OpenRecent(sixth);
  screen.ExpectBox("You may only have 5 class(es) open at a time.");
  FrameForm->NewClass(10);
  EXPECT_EQ(WindowCount(), 5);
  EXPECT_EQ(CurrentClass, 2);
  EXPECT_EQ(Classes[0].SlotState, 0);
  EXPECT_EQ(Classes[6].SlotState, 0);
}

TEST_F(OpenClassTest, FreedSlotIsHandedOutAgain) {
  Open("A.TYR");
  Open("B.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(*Window(1)));
  Open("C.TYR");
  EXPECT_EQ(Window(1)->Caption, "C.TYR");
  EXPECT_EQ(Window(2)->Caption, "B.TYR");
}

TEST_F(OpenClassTest, FileThatIsOpenFreesTheSlotAndOffersTheDialogAgain) {
  Open("a.tyr");
  screen.ExpectFileDialog(Path("A.TYR"));
  screen.ExpectBox(" The file is already open ");
  screen.ExpectFileDialog(MakeFile("b.tyr"));
  FrameForm->mnuOpen_Click();
  EXPECT_EQ(screen.file_dialogs.size(), 2u);
  EXPECT_EQ(WindowCount(), 2);
  EXPECT_EQ(Classes[2].FileName, Path("b.tyr"));
  EXPECT_EQ(Classes[3].SlotState, 0);
  EXPECT_EQ(Classes[1].FileName, Path("a.tyr"));
}

TEST_F(OpenClassTest, RecentFileThatIsOpenIsRefusedOnce) {
  Open("A.TYR");
  screen.ExpectBox(" The file is already open ");
  Window(1)->ClickMenu("mnuFileList0");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(Classes[2].SlotState, 0);
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(OpenClassTest, RecentFileThatIsGoneIsDropped) {
  const std::string kept = MakeFile("B.TYR");
  RecentFiles = {Path("GONE.TYR"), kept, "", "", ""};
  FrameForm->RebuildRecentMenu();
  screen.ExpectBox("Tallyroll cannot open the file " + Path("GONE.TYR"));
  FrameForm->ClickMenu("mnuFileList0");
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Classes[1].SlotState, 0);
  EXPECT_EQ(RecentFiles[0], kept);
  EXPECT_EQ(RecentFiles[1], "");
  EXPECT_EQ(FrameForm->menu.Find("mnuFileList0")->caption, RecentMenuText(0));
  EXPECT_FALSE(FrameForm->menu.Find("mnuFileList1")->visible);
}

TEST_F(OpenClassTest, FileThatIsNoClassLeavesTheFrontWindowInWork) {
  Open("A.TYR");
  Open("B.TYR");
  Window(1)->Activate();
  WriteFile(Path("no.tyr"), "hello");
  screen.ExpectBox("This file is NOT in a recognized Tallyroll format");
  FrameForm->OpenRecent(Path("no.tyr"));
  EXPECT_EQ(WindowCount(), 2);
  EXPECT_EQ(Classes[3].SlotState, 0);
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(OpenClassTest, WithNoOtherWindowAFailedOpenLeavesASlotThatIsNeverHandedOut) {
  WriteFile(Path("no.tyr"), "hello");
  screen.ExpectBox("This file is NOT in a recognized Tallyroll format");
  FrameForm->OpenRecent(Path("no.tyr"));
  EXPECT_EQ(CurrentClass, 0);
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Open("A.TYR").Tag, "1");
}

TEST_F(OpenClassTest, CancelledPasswordLeavesNoWindow) {
  Class c = Sample(1);
  c.PasswordSet = 1;
  c.Password = "x";
  const std::string path = MakeFile("A.TYR", c);
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kYes);
  screen.ExpectPortal("frmpassword", [](PortalDriver& portal) { portal.Press("cancelbt"); });
  FrameForm->OpenRecent(path);
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Classes[1].SlotState, 0);
}

TEST_F(OpenClassTest, MissingDataFolderIsReportedAndTheNextTryWorks) {
  DataFolder = Path("gone");
  screen.ExpectBox("File Error: 76. The folder of the class files cannot be reached: " +
                   Path("gone"));
  FrameForm->mnuOpen_Click();
  EXPECT_EQ(DataFolder, folder);
  EXPECT_EQ(WindowCount(), 0);
  screen.ExpectFileDialog(MakeFile("A.TYR"));
  FrameForm->mnuOpen_Click();
  EXPECT_EQ(WindowCount(), 1);
}

TEST_F(OpenClassTest, OpenEnablesWhatTheClassHolds) {
  Form1& window = Open("A.TYR", Sample(1, 1));
  EXPECT_TRUE(window.menu.Reachable("mnuEMarksT"));
  EXPECT_FALSE(window.menu.Reachable("mnuattscreen"));
  EXPECT_TRUE(window.menu.Find("mnunamefirst")->checked);
}

TEST_F(OpenClassTest, NewClassThatIsGivenUpLeavesNothing) {
  Open("A.TYR");
  screen.ExpectPortal("frmAdd", [](PortalDriver& portal) { portal.Press("Exitt"); });
  Window(1)->ClickMenu("mnuown");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(Classes[2].SlotState, 0);
  EXPECT_EQ(CurrentClass, 1);
  screen.ExpectPortal("frmWizard", [](PortalDriver& portal) { portal.Press("cmdCancel"); });
  Window(1)->ClickTool("New");
  EXPECT_EQ(WindowCount(), 1);
}

void EnterStudent(PortalDriver& portal) {
  portal.Type("lastname", "Ng");
  portal.Type("firstname", "Ada");
  portal.Type("id", "7");
  portal.Press("Exitt");
}

TEST_F(OpenClassTest, NewClassIsSavedUnderTheNameTheTeacherGives) {
  screen.ExpectPortal("frmAdd", EnterStudent);
  screen.ExpectFileDialog(Path("new.tyr"));
  FrameForm->ClickMenu("mnuown");
  ASSERT_NE(Window(1), nullptr);
  EXPECT_EQ(Window(1)->Caption, "NEW.TYR");
  EXPECT_EQ(Window(1)->Tag, "1");
  EXPECT_EQ(Classes[1].Changed, kFalse);
  EXPECT_EQ(Classes[1].LetterValues[0], Currency::FromWhole(100));
  EXPECT_EQ(Classes[1].RoundTable[0][0], 99.5f);
  EXPECT_EQ(RecentFiles[0], Path("new.tyr"));
  EXPECT_EQ(Window(1)->Grid1.TextMatrix(2, 0), " 1 Ng, Ada");
  EXPECT_TRUE(Window(1)->menu.Find("mnusave")->enabled);
  // The letters' values are in the file already.
  EXPECT_TRUE(FrameForm->CloseWindow(*Window(1)));
  FrameForm->OpenRecent(Path("new.tyr"));
  EXPECT_EQ(Classes[1].LetterValues[13], Currency::FromWhole(55));
}

TEST_F(OpenClassTest, NewClassWithoutANameIsCalledByItsSlot) {
  Open("A.TYR");
  screen.ExpectPortal("frmAdd", EnterStudent);
  screen.ExpectFileDialog(std::nullopt);
  FrameForm->NewClass(10);
  ASSERT_NE(Window(2), nullptr);
  EXPECT_EQ(Window(2)->Caption, "NewClass 2");
  EXPECT_EQ(Classes[2].FileName, "");
  EXPECT_EQ(Classes[2].Changed, kTrue);
}

TEST_F(OpenClassTest, NewClassTakesTheTeachersLetterValues) {
  screen.settings["TALLYRLG8/startup/LetterString"] = "343'98'";
  screen.ExpectPortal("frmAdd", EnterStudent);
  screen.ExpectFileDialog(std::nullopt);
  FrameForm->NewClass(10);
  EXPECT_EQ(Classes[1].LetterValues[1], Currency::FromWhole(98));
  EXPECT_EQ(Classes[1].LetterValues[2], Currency::FromWhole(95));
}

}  // namespace
}  // namespace tallyroll
