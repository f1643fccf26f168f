// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_list.h"

#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

using RecentListTest = ShellTest;
using Five = std::array<std::string, 5>;

TEST_F(RecentListTest, NewFileGoesToTheTopAndTheOldestFallsOut) {
  RecentFiles = {"/1.TYR", "/2.TYR", "/3.TYR", "/4.TYR", "/5.TYR"};
  AddRecentFile("/6.TYR");
  EXPECT_EQ(RecentFiles, (Five{"/6.TYR", "/1.TYR", "/2.TYR", "/3.TYR", "/4.TYR"}));
}

TEST_F(RecentListTest, KnownFileMovesUpWhateverItsCase) {
  RecentFiles = {"/1.TYR", "/2.TYR", "/three.tyr", "/4.TYR", ""};
  AddRecentFile("/Three.TYR");
  EXPECT_EQ(RecentFiles, (Five{"/Three.TYR", "/1.TYR", "/2.TYR", "/4.TYR", ""}));
}

TEST_F(RecentListTest, RemovedFileClosesItsGap) {
  RecentFiles = {"/1.TYR", "/2.TYR", "/3.TYR", "", ""};
  RemoveRecentFile("/2.tyr");
  EXPECT_EQ(RecentFiles, (Five{"/1.TYR", "/3.TYR", "", "", ""}));
  RemoveRecentFile("/9.TYR");
  EXPECT_EQ(RecentFiles, (Five{"/1.TYR", "/3.TYR", "", "", ""}));
}

TEST_F(RecentListTest, PathsAreComparedWithoutCaseAndOuterBlanks) {
  EXPECT_TRUE(SameFile(" /Home/\xC3\xA9t\xC3\xA9.tyr", "/home/\xC3\x89T\xC3\x89.TYR "));
  EXPECT_FALSE(SameFile("/\xC3\x9A.tyr", "/\xC3\x8A.tyr"));
  EXPECT_FALSE(SameFile("/\xE6\x95\xB0.tyr", "/\xE5\xAD\xA6.tyr"));
  EXPECT_TRUE(SameFile("/\xE6\x95\xB0.tyr", "/\xE6\x95\xB0.TYR"));
  EXPECT_FALSE(SameFile("", "/a.tyr"));
}

TEST_F(RecentListTest, PathIsPartedAtItsLastSlash) {
  EXPECT_EQ(FileNameOf("/home/a/b.tyr"), "b.tyr");
  EXPECT_EQ(FileNameOf("C:\\classes\\b.tyr"), "b.tyr");
  EXPECT_EQ(FileNameOf("b.tyr"), "b.tyr");
  EXPECT_EQ(FolderOf("/home/a/b.tyr"), "/home/a");
  EXPECT_EQ(FolderOf("/b.tyr"), "/");
  EXPECT_EQ(FolderOf("b.tyr"), "");
}

TEST_F(RecentListTest, ShortPathStandsWholeBehindItsNumber) {
  RecentFiles[2] = "/home/anna/R&B.tyr";
  EXPECT_EQ(RecentMenuText(2), "&3. /home/anna/R&&B.tyr");
}

TEST_F(RecentListTest, LongPathKeepsItsFirstPartAndItsLastFolder) {
  const std::string sixty = "/home/" + std::string(44, 'x') + "/maths.tyr";
  ASSERT_EQ(sixty.size(), 60u);
  RecentFiles[0] = sixty;
  EXPECT_EQ(RecentMenuText(0), "&1. " + sixty);
  RecentFiles[0] = "/home/" + std::string(40, 'x') + "/classes/maths.tyr";
  EXPECT_EQ(RecentMenuText(0), "&1. /home ... /classes/maths.tyr");
  RecentFiles[0] = "C:\\" + std::string(50, 'x') + "\\classes\\maths.tyr";
  EXPECT_EQ(RecentMenuText(0), "&1. C: ... \\classes\\maths.tyr");
}

TEST_F(RecentListTest, LongPathOfOneFolderHasNothingToLeaveOut) {
  const std::string path = "/home/" + std::string(80, 'x') + ".tyr";
  RecentFiles[0] = path;
  EXPECT_EQ(RecentMenuText(0), "&1. " + path);
}

TEST_F(RecentListTest, FrameLeavesOutWhatIsOpenAndWindowsListAll) {
  Form1& window = Open("A.TYR");
  EXPECT_FALSE(FrameForm->menu.Find("mnuFileList0")->visible);
  EXPECT_TRUE(window.menu.Find("mnuFileList0")->visible);
  EXPECT_FALSE(window.menu.Find("mnuFileList1")->visible);
  FrameForm->CloseWindow(window);
  EXPECT_TRUE(FrameForm->menu.Find("mnuFileList0")->visible);
  EXPECT_EQ(FrameForm->menu.Find("mnuFileList0")->caption, RecentMenuText(0));
}

}  // namespace
}  // namespace tallyroll
