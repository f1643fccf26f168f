// SPDX-License-Identifier: GPL-3.0-or-later
// Whose companion a file is, seen from the class window: opened, saved, saved under another name.
#include "companion/companion_at_save.h"

#include <fstream>

#include "companion/companion_file.h"
#include "companion/seat_wishes.h"
#include "tests/shell/shell_test.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

using Wishes = std::vector<SeatWish>;

const Wishes kFirstAtTheFront = {{"front", "101", ""}};

class CompanionAtSaveTest : public ShellTest {
 protected:
  // A class of 4 students beside which a wish is kept.
  Form1& OpenWithWish(std::string_view name) {
    Form1& window = Open(name, Sample(4));
    EXPECT_EQ(KeepSeatWishes(Path(name), kFirstAtTheFront), "");
    return window;
  }
  void SaveAs(Form1& window, std::string_view name) {
    screen.ExpectFileDialog(Path(name));
    window.ClickMenu("mnusaveas");
  }
  static Class Strangers() {
    Class c = Sample(4);
    for (int i = 1; i <= 4; ++i) c.Students[static_cast<std::size_t>(i)].lastname += "er";
    return c;
  }
  bool Exists(std::string_view name) const { return std::filesystem::exists(Path(name)); }
};

TEST_F(CompanionAtSaveTest, AfterASaveItKnowsTheClassByItsNewBytes) {
  Form1& window = OpenWithWish("MATH.TYR");
  Current().room = "12";
  Current().Changed = kTrue;
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "MATH.TYR saved.");
  EXPECT_TRUE(FrameForm->CloseWindow(window));
  // Nobody is open now whose students would tell.
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
}

TEST_F(CompanionAtSaveTest, AClassWhoseStudentsAllChangedInTheProgramKeepsItsOwn) {
  Form1& window = OpenWithWish("MATH.TYR");
  Current().Students = Strangers().Students;
  Current().Changed = kTrue;
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "MATH.TYR saved.");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
}

TEST_F(CompanionAtSaveTest, SaveAsTakesACopyAlong) {
  Form1& window = OpenWithWish("MATH.TYR");
  SaveAs(window, "COPY.TYR");
  EXPECT_EQ(window.StatusText, "COPY.TYR saved.");
  EXPECT_EQ(KeepSeatWishes(Path("COPY.TYR"), {{"back", "102", ""}}), "");
  EXPECT_EQ(SeatWishes(Path("COPY.TYR")).wishes, (Wishes{{"back", "102", ""}}));
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
  EXPECT_TRUE(FrameForm->CloseWindow(window));
  EXPECT_EQ(SeatWishes(Path("COPY.TYR")).fault, "");
}

TEST_F(CompanionAtSaveTest, SaveAsOverAnotherClassPutsItsCompanionAside) {
  Form1& other = OpenWithWish("OLD.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(other));
  Form1& window = Open("MATH.TYR", Strangers());
  SaveAs(window, "OLD.TYR");
  EXPECT_EQ(window.StatusText,
            "OLD.TYR saved. The companion file of the class that was here before is kept as "
            "OLD.tyx.old.");
  EXPECT_EQ(SeatWishes(Path("OLD.TYR")).wishes, Wishes{});
  EXPECT_EQ(SeatWishes(Path("OLD.TYR")).fault, "");
  EXPECT_TRUE(Exists("OLD.tyx.old"));
  EXPECT_FALSE(Exists("OLD.tyx"));
}

TEST_F(CompanionAtSaveTest, ANewClassOverAnOldFileDoesNotTakeItsWishes) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("OLD.TYR")));
  std::ofstream(Path("OLD.tyx.old")) << "an older one";
  Form1& window = Open("MATH.TYR", Sample(4));
  ResetClassSlot();
  Current() = Sample(4);  // the same names: it is another class all the same
  Current().FileName.clear();
  SaveAs(window, "OLD.TYR");
  EXPECT_EQ(SeatWishes(Path("OLD.TYR")).wishes, Wishes{});
  EXPECT_TRUE(Exists("OLD.tyx.old2"));
  EXPECT_EQ(std::filesystem::file_size(Path("OLD.tyx.old")), 12u);
}

// Another teacher's file is copied over the class file.
TEST_F(CompanionAtSaveTest, AFileThatWasReplacedHasNoCompanionAndIsToldSo) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  Form1& window = Open("MATH.TYR", Strangers());
  EXPECT_EQ(window.StatusText, "The companion file MATH.tyx is off: it belongs to another class.");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, Wishes{});
  EXPECT_EQ(KeepSeatWishes(Path("MATH.TYR"), {}), "it belongs to another class");
  Current().Changed = kTrue;
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText,
            "MATH.TYR saved. The companion file of the class that was here before is kept as "
            "MATH.tyx.old.");
  EXPECT_EQ(KeepSeatWishes(Path("MATH.TYR"), kFirstAtTheFront), "");
}

TEST_F(CompanionAtSaveTest, TheSameClassWrittenByAnotherProgramKeepsItsCompanion) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  Class c = Sample(5);  // one student more
  c.room = "7";
  Form1& window = Open("MATH.TYR", c);
  EXPECT_EQ(window.StatusText, "");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
}

// Two of four are half of the larger class; two of five are less.
TEST_F(CompanionAtSaveTest, HalfOfTheStudentsMakeTheClass) {
  for (const int students : {4, 5}) {
    EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
    Class c = Sample(students);
    c.room = "7";
    for (int i = 3; i <= students; ++i) c.Students[static_cast<std::size_t>(i)].id += "0";
    Form1& window = Open("MATH.TYR", c);
    EXPECT_EQ(window.StatusText.empty(), students == 4);
    EXPECT_TRUE(FrameForm->CloseWindow(window));
    std::filesystem::remove(Path("MATH.tyx"));
  }
}

TEST_F(CompanionAtSaveTest, ACompanionCopiedToAnotherClassIsOff) {
  OpenWithWish("MATH.TYR");
  std::filesystem::copy_file(Path("MATH.tyx"), Path("ART.tyx"));
  Form1& window = Open("ART.TYR", Strangers());
  EXPECT_EQ(window.StatusText, "The companion file ART.tyx is off: it belongs to another class.");
}

TEST_F(CompanionAtSaveTest, ADamagedOneKeepsNoClassFromOpeningAndSaving) {
  std::ofstream(Path("MATH.tyx")) << std::string(2000, 'x');
  Form1& window = Open("MATH.TYR");
  EXPECT_EQ(window.StatusText, "The companion file MATH.tyx is off: it is damaged.");
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "MATH.TYR saved.");
  EXPECT_EQ(std::filesystem::file_size(Path("MATH.tyx")), 2000u);
}

TEST_F(CompanionAtSaveTest, AFailedSaveMovesNothing) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("OLD.TYR")));
  Form1& window = Open("MATH.TYR", Strangers());
  std::filesystem::permissions(Path("OLD.TYR"), std::filesystem::perms::owner_read);
  screen.ExpectBox("File Error: 70. Disk may be write protected");
  SaveAs(window, "OLD.TYR");
  EXPECT_TRUE(Exists("OLD.tyx"));
  EXPECT_FALSE(Exists("OLD.tyx.old"));
}

TEST_F(CompanionAtSaveTest, ANameThatDiffersByItsEndingAloneSharesTheCompanion) {
  Form1& window = OpenWithWish("MATH.TYR");
  SaveAs(window, "MATH.tyr");
  EXPECT_EQ(window.StatusText, "MATH.tyr saved.");
  EXPECT_EQ(SeatWishes(Path("MATH.tyr")).wishes, kFirstAtTheFront);
}

TEST_F(CompanionAtSaveTest, WhereNothingMayBeWrittenItIsReadAllTheSame) {
  Form1& window = OpenWithWish("MATH.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(window));
  const ReadOnlyFolder refusing(folder);
  ASSERT_TRUE(refusing.Refuses());
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).fault, "");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
  EXPECT_EQ(KeepSeatWishes(Path("MATH.TYR"), {}), "it is write-protected, or its folder is");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
}

TEST_F(CompanionAtSaveTest, AClassFileThatWasRenamedGetsItsCompanionBack) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  std::filesystem::rename(Path("MATH.TYR"), Path("ALGEBRA.TYR"));
  FrameForm->OpenRecent(Path("ALGEBRA.TYR"));
  EXPECT_EQ(Window(1)->StatusText,
            "The companion file MATH.tyx is ALGEBRA.tyx now, as its class file is.");
  EXPECT_EQ(SeatWishes(Path("ALGEBRA.TYR")).wishes, kFirstAtTheFront);
  EXPECT_FALSE(Exists("MATH.tyx"));
}

TEST_F(CompanionAtSaveTest, ACopyOfAClassFileTakesNobodysCompanion) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  std::filesystem::copy_file(Path("MATH.TYR"), Path("COPY.TYR"));
  FrameForm->OpenRecent(Path("COPY.TYR"));
  EXPECT_EQ(Window(1)->StatusText, "");
  EXPECT_TRUE(Exists("MATH.tyx"));
}

TEST_F(CompanionAtSaveTest, WhatAnotherClassLeftBehindIsNotTaken) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  std::filesystem::remove(Path("MATH.TYR"));
  EXPECT_EQ(Open("ART.TYR", Strangers()).StatusText, "");
  EXPECT_TRUE(Exists("MATH.tyx"));
  EXPECT_FALSE(Exists("ART.tyx"));
}

TEST_F(CompanionAtSaveTest, AClassBehindALinkHasOneCompanion) {
  EXPECT_TRUE(FrameForm->CloseWindow(OpenWithWish("MATH.TYR")));
  std::filesystem::create_symlink(Path("MATH.TYR"), Path("LINK.TYR"));
  FrameForm->OpenRecent(Path("LINK.TYR"));
  Form1& window = *Window(1);
  EXPECT_EQ(SeatWishes(Path("LINK.TYR")).wishes, kFirstAtTheFront);
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "LINK.TYR saved.");
  EXPECT_EQ(SeatWishes(Path("MATH.TYR")).wishes, kFirstAtTheFront);
  SaveAs(window, "COPY.TYR");
  EXPECT_EQ(SeatWishes(Path("COPY.TYR")).wishes, kFirstAtTheFront);
  EXPECT_FALSE(Exists("LINK.tyx"));
}

// Signs that mean something in the name by which such a file is opened.
TEST_F(CompanionAtSaveTest, AProtectedFolderMayBearAnyName) {
  std::filesystem::permissions(folder, std::filesystem::perms(0755));
  const std::string odd = Path("50% #1?");
  std::filesystem::create_directory(odd);
  ASSERT_EQ(KeepSeatWishes(odd + "/MATH.TYR", kFirstAtTheFront), "");
  const ReadOnlyFolder refusing(odd);
  ASSERT_TRUE(refusing.Refuses());
  EXPECT_EQ(SeatWishes(odd + "/MATH.TYR").wishes, kFirstAtTheFront);
}

}  // namespace
}  // namespace tallyroll
