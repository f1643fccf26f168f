// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>

#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class StartUpTest : public ShellTest {
 protected:
  StartUpTest() {
    DataFolder.clear();
    ProgramFolder.clear();
  }
  void StartWithout(const std::string& away, int error) {
    screen.settings["TALLYRLG8/startup/DIRFILE"] = Path(away);
    screen.ExpectBox("File Error: " + PlainNumberText(error) +
                     ". The folder of the class files cannot be reached: " + Path(away));
    ExpectGreeting();
    FrameForm->Load("");
  }
  void ExpectGreeting() {
    screen.ExpectPortal("frmstartup", [this](PortalDriver& portal) {
      EXPECT_TRUE(frame_screen.calls.empty()) << "the greeting comes before the frame";
      portal.CloseWindow();
    });
  }
};

TEST_F(StartUpTest, FirstRunMakesTheDataFolderWithTheSample) {
  WriteFile(Path("Sample8.TYR"), "sample");
  std::filesystem::create_directory(Path("letters"));
  WriteFile(Path("letters/Progress.rtf"), "{\\rtf1}");
  ExpectGreeting();
  FrameForm->Load("");
  EXPECT_EQ(DataFolder, Path("Tallyroll"));
  EXPECT_EQ(screen.settings.at("TALLYRLG8/startup/DIRFILE"), Path("Tallyroll"));
  EXPECT_TRUE(std::filesystem::exists(Path("Tallyroll/Sample8.TYR")));
  EXPECT_TRUE(std::filesystem::exists(Path("Tallyroll/letters/Progress.rtf")));
  EXPECT_EQ(std::filesystem::current_path(), Path("Tallyroll"));
  EXPECT_EQ(ProgramFolder, folder);
  EXPECT_EQ(frame_screen.calls, std::vector<std::string>{"frame shown"});
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_EQ(OpenState, 0);
}

TEST_F(StartUpTest, SampleThatTheTeacherWorkedOnIsKept) {
  WriteFile(Path("Sample8.TYR"), "sample");
  std::filesystem::create_directory(Path("Tallyroll"));
  WriteFile(Path("Tallyroll/Sample8.TYR"), "mine");
  ExpectGreeting();
  FrameForm->Load("");
  EXPECT_EQ(std::filesystem::file_size(Path("Tallyroll/Sample8.TYR")), 4u);
}

TEST_F(StartUpTest, WhereNoFolderCanBeMadeTheProgramsOwnServes) {
  WriteFile(Path("file"), "");
  screen.profile_folder = Path("file");
  ExpectGreeting();
  FrameForm->Load("");
  EXPECT_EQ(DataFolder, folder);
  EXPECT_EQ(screen.settings.at("TALLYRLG8/startup/DIRFILE"), folder);
}

TEST_F(StartUpTest, KnownFolderIsUsedAsItIs) {
  std::filesystem::create_directory(Path("classes"));
  screen.settings["TALLYRLG8/startup/DIRFILE"] = Path("classes");
  ExpectGreeting();
  FrameForm->Load("");
  EXPECT_EQ(DataFolder, Path("classes"));
  EXPECT_FALSE(std::filesystem::exists(Path("Tallyroll")));
}

TEST_F(StartUpTest, KnownFolderThatIsAwayIsReportedByItsName) {
  StartWithout("gone", 76);
  EXPECT_EQ(DataFolder, folder);
  EXPECT_EQ(std::filesystem::current_path(), folder);
}

TEST_F(StartUpTest, WhatCannotBeEnteredIsAwayToo) {
  WriteFile(Path("gone"), "");
  StartWithout("gone", 76);
  EXPECT_EQ(DataFolder, folder);
}

TEST_F(StartUpTest, AFolderThatIsAwayStaysRemembered) {
  StartWithout("gone", 76);
  FrameForm->Unload();
  EXPECT_EQ(screen.settings.at("TALLYRLG8/startup/DIRFILE"), Path("gone"));
}

TEST_F(StartUpTest, AFolderThatIsBackIsUsedAgain) {
  StartWithout("gone", 76);
  std::filesystem::create_directory(Path("gone"));
  screen.ExpectFileDialog(std::nullopt);
  FrameForm->mnuOpen_Click();
  EXPECT_EQ(DataFolder, Path("gone"));
  EXPECT_EQ(std::filesystem::current_path(), Path("gone"));
}

TEST_F(StartUpTest, AClassWhoseFolderIsAwayLeavesTheDataFolderRemembered) {
  std::filesystem::create_directory(Path("classes"));
  screen.settings["TALLYRLG8/startup/DIRFILE"] = Path("classes");
  ExpectGreeting();
  FrameForm->Load("");
  screen.ExpectFileDialog(Path("gone/A.TYR"));
  screen.ExpectBox("File Error: 76");
  FrameForm->mnuOpen_Click();
  FrameForm->Unload();
  EXPECT_EQ(screen.settings.at("TALLYRLG8/startup/DIRFILE"), Path("classes"));
}

TEST_F(StartUpTest, RecentFilesStandInTheMenu) {
  screen.settings["TALLYRLG8/fileused/File0"] = "/a/A.TYR";
  screen.settings["TALLYRLG8/startup/NAMEID"] = "73";
  ExpectGreeting();
  FrameForm->Load("");
  EXPECT_EQ(FrameForm->menu.Find("mnuFileList0")->caption, "&1. /a/A.TYR");
  EXPECT_FALSE(FrameForm->menu.Find("mnuFileList1")->visible);
  EXPECT_EQ(NameMode, 73);
}

TEST_F(StartUpTest, FileOfTheCommandLineOpensWithoutAGreeting) {
  const std::string path = MakeFile("maths.tyr");
  FrameForm->Load(path);
  EXPECT_EQ(FrameForm->CommandFile, path);
  EXPECT_EQ(frame_screen.calls, (std::vector<std::string>{"frame shown", "shown MATHS.TYR"}));
  EXPECT_EQ(Classes[1].FileName, path);
}

TEST_F(StartUpTest, FileOfTheCommandLineIsFoundFromWhereTheProgramStarted) {
  MakeFile("maths.tyr");
  std::filesystem::current_path(folder);
  FrameForm->Load("./maths.tyr");
  EXPECT_EQ(Classes[1].FileName, Path("maths.tyr"));
}

TEST_F(StartUpTest, FileOfTheCommandLineThatIsGoneLeavesTheFrame) {
  screen.ExpectBox("Tallyroll cannot open the file " + Path("gone.tyr"));
  FrameForm->Load(Path("gone.tyr"));
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(frame_screen.calls, std::vector<std::string>{"frame shown"});
}

}  // namespace
}  // namespace tallyroll
