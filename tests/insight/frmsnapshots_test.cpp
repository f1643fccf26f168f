// SPDX-License-Identifier: GPL-3.0-or-later
// Snapshots seen from the class window: made by saves, looked at, compared, taken back.
#include "insight/frmsnapshots.h"

#include <filesystem>

#include "companion/change_history.h"
#include "companion/companion_file.h"
#include "insight/frmsnapshot.h"
#include "store/frmpassword.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

constexpr double kFirstOfSeptember = 46266;  // a Tuesday
constexpr const char* kKeepQuestion =
    "The history and the snapshots of this class are kept in its companion file, where they can be "
    "read without the password. Keep them?";

class FrmSnapshotsTest : public ShellTest {
 protected:
  FrmSnapshotsTest() {
    Class c = Sample(3, 2);
    c.Instruments[2].title = "Test";
    window = &Open("A.TYR", c);
  }

  void SaveAt(double day) {
    screen.now = day;
    Current().Changed = kTrue;
    window->ClickMenu("mnusave");
  }
  static void Mark(std::size_t student, std::size_t grade, const char* mark) {
    Current().Students[student].Marks[grade] = mark;
  }
  static std::string MarkIn(std::size_t student, std::size_t grade) {
    return Current().Students[student].Marks[grade].str();
  }
  // The file's own time stands before that of the first save.
  void TwoSaves() {
    Mark(1, 1, "70");
    SaveAt(kFirstOfSeptember + 0.5);
    Mark(2, 1, "0");
    Mark(2, 2, "1");
    Mark(3, 1, "2");
    SaveAt(kFirstOfSeptember + 1.5);
  }
  static std::vector<std::string> Row(PortalDriver& work, const char* grid, int row) {
    const Grid& cells =
        dynamic_cast<frmsnapshots&>(work.portal()).*
        (std::string_view(grid) == "Grid1" ? &frmsnapshots::Grid1 : &frmsnapshots::Grid2);
    std::vector<std::string> texts;
    for (int col = 0; col < cells.Cols(); ++col) texts.emplace_back(cells.TextMatrix(row, col));
    return texts;
  }
  using Texts = std::vector<std::string>;

  Form1* window = nullptr;
};

TEST_F(FrmSnapshotsTest, ASaveWithoutAChangeMakesNone) {
  SaveAt(kFirstOfSeptember);
  EXPECT_FALSE(PathExists(CompanionPath(Current().FileName)));
}

TEST_F(FrmSnapshotsTest, TheFirstSaveKeepsTheFileThatWasAsWell) {
  Mark(1, 1, "70");
  SaveAt(kFirstOfSeptember);
  const KeptSnapshots kept = SnapshotsOf(Current().FileName);
  ASSERT_EQ(kept.snapshots.size(), 2U);
  EXPECT_EQ(kept.snapshots[0].time, "2026-09-01 00:00:00");
  EXPECT_EQ(kept.snapshots[0].told, "1 mark");
}

TEST_F(FrmSnapshotsTest, TheyStandByDayWithWhatChanged) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    EXPECT_EQ(Row(work, "Grid1", 1), (Texts{"Wed 9/2/2026", "12:00:00", "3 marks"}));
    EXPECT_EQ(Row(work, "Grid1", 2), (Texts{"Tue 9/1/2026", "12:00:00", "1 mark"}));
    EXPECT_EQ(work.Text("differs"), "0 differences.");
    EXPECT_FALSE(work.Enabled("takestudent"));
    work.Press("exit");
  });
  const std::string undo = window->menu["mnuundo"].caption;
  window->ClickMenu("mnusnapshots");
  EXPECT_EQ(window->menu["mnuundo"].caption, undo);
}

TEST_F(FrmSnapshotsTest, ALineAStudentAndAGradeAreTakenBackAsOneStep) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    work.PickCell("Grid1", 2, 0);
    EXPECT_EQ(work.Text("differs"), "3 differences.");
    EXPECT_EQ(Row(work, "Grid2", 1), (Texts{"Last02, First02", "Quiz", "mark", "80", "0"}));
    work.PickCell("Grid2", 3, 0);
    work.Press("takeline");
    EXPECT_EQ(work.Text("differs"), "Quiz of Last03, First03 is \"80\" again. 2 differences.");
    EXPECT_EQ(MarkIn(3, 1), "80");
    work.PickCell("Grid2", 1, 0);
    work.Press("takestudent");
    EXPECT_EQ(work.Text("differs"), "Last02, First02 is as on that day. 0 differences.");
    EXPECT_EQ(MarkIn(2, 1), "80");
    EXPECT_EQ(MarkIn(2, 2), "80");
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
  EXPECT_EQ(MarkIn(1, 1), "70");
  EXPECT_EQ(Current().Changed, kTrue);
  window->ClickMenu("mnuundo");
  EXPECT_EQ(MarkIn(2, 2), "1");
  EXPECT_EQ(MarkIn(3, 1), "2");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmSnapshotsTest, AGradeIsTakenBackForEverybody) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    work.PickCell("Grid1", 2, 0);
    work.PickCell("Grid2", 1, 0);
    work.Press("takegrade");
    EXPECT_EQ(work.Text("differs"), "Quiz is as on that day. 1 difference.");
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
  EXPECT_EQ(MarkIn(2, 1), "80");
  EXPECT_EQ(MarkIn(3, 1), "80");
  EXPECT_EQ(MarkIn(2, 2), "1");
}

TEST_F(FrmSnapshotsTest, TheWholeClassIsTakenBackAndTheSnapshotsStay) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    work.PickCell("Grid1", 3, 0);  // the file before the first save
    work.Press("takeall");
    EXPECT_EQ(work.Text("differs"), "The class is as on that day. 0 differences.");
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
  for (std::size_t s = 1; s <= 3; ++s) EXPECT_EQ(MarkIn(s, 1), "80");
  EXPECT_EQ(window->Grid1.TextMatrix(2, 2), "80");
  EXPECT_EQ(SnapshotsOf(Current().FileName).snapshots.size(), 3U);
  SaveAt(kFirstOfSeptember + 1.6);
  EXPECT_EQ(SnapshotsOf(Current().FileName).snapshots[0].told, "4 marks");
}

TEST_F(FrmSnapshotsTest, ADeletedGradeComesBackAndWantsItsWeight) {
  Current().Method = 0;
  Current().Instruments[2].code = "T1";
  SaveAt(kFirstOfSeptember + 0.5);
  Class& c = Current();
  c.NumInstruments = 1;
  c.Instruments.pop_back();
  for (std::size_t s = 1; s <= 3; ++s) c.Students[s].Marks.pop_back();
  c.Changed = kTrue;
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    EXPECT_EQ(Row(work, "Grid2", 1), (Texts{"", "Test", "grade", "Test", ""}));
    EXPECT_FALSE(work.Enabled("takeline"));
    work.Press("takegrade");
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
  EXPECT_EQ(Current().NumInstruments, 2);
  EXPECT_EQ(MarkIn(3, 2), "80");
  EXPECT_EQ(Current().Method, 5);
}

TEST_F(FrmSnapshotsTest, TwoSnapshotsAreComparedWithOneAnother) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    work.PickCell("Grid1", 3, 0);
    work.Choose("with", 2);  // that of 1 September
    EXPECT_EQ(work.Text("differs"), "1 difference.");
    EXPECT_EQ(Row(work, "Grid2", 1), (Texts{"Last01, First01", "Quiz", "mark", "80", "70"}));
    EXPECT_EQ(Row(work, "Grid2", 0)[4], "In the other");
    EXPECT_FALSE(work.Enabled("takeline"));
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
}

TEST_F(FrmSnapshotsTest, OneStandsBesideTheClassWithWhatDiffersInColour) {
  TwoSaves();
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    work.PickCell("Grid1", 2, 0);
    work.Press("openbeside");
  });
  window->ClickMenu("mnusnapshots");
  auto* beside = dynamic_cast<frmsnapshot*>(screen.PortalBeside("frmsnapshot"));
  ASSERT_NE(beside, nullptr);
  EXPECT_EQ(beside->Caption, "A.TYR on Tue 9/1/2026, 12:00:00 (read-only)");
  EXPECT_EQ(beside->readonly.Caption,
            "Read-only: the class as it was saved. 3 marks differ from the class as it stands, "
            "marked by colour.");
  EXPECT_EQ(beside->Grid1.TextMatrix(1, 2), "70");
  EXPECT_EQ(beside->Grid1.Style(1, 2), CellStyle::kPlain);
  EXPECT_EQ(beside->Grid1.TextMatrix(2, 2), "80");
  EXPECT_EQ(beside->Grid1.Style(2, 2), CellStyle::kInWork);
  EXPECT_EQ(NoteOf(beside->Grid1.Notes, 2, 2).words, "differs");
  EXPECT_EQ(NoteOf(beside->Grid1.Notes, 1, 2).words, "");
  // It goes with the class.
  EXPECT_TRUE(FrameForm->CloseWindow(*window));
  EXPECT_EQ(screen.PortalBeside("frmsnapshot"), nullptr);
}

TEST_F(FrmSnapshotsTest, ACompanionThatIsDamagedSaysSo) {
  TwoSaves();
  WriteFile(CompanionPath(Current().FileName),
            "this is no database at all, and long enough to be looked at");
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    EXPECT_EQ(work.Text("found"), "The snapshots cannot be read: it is damaged.");
    EXPECT_FALSE(work.Enabled("takeall"));
    EXPECT_FALSE(work.Enabled("openbeside"));
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
}

// ---- A class with a password ----

TEST_F(FrmSnapshotsTest, AClassWithAPasswordKeepsNoneUntilItIsAgreed) {
  Current().PasswordSet = 1;
  Mark(1, 1, "70");
  SaveAt(kFirstOfSeptember);
  EXPECT_FALSE(PathExists(CompanionPath(Current().FileName)));
  screen.ExpectPortal("frmsnapshots", [](PortalDriver& work) {
    EXPECT_TRUE(work.Visible("agreed"));
    work.Tick("agreed");
    work.Press("exit");
  });
  window->ClickMenu("mnusnapshots");
  Mark(1, 1, "71");
  SaveAt(kFirstOfSeptember);
  EXPECT_EQ(SnapshotsOf(Current().FileName).snapshots.size(), 2U);
}

class PasswordOnSnapshotsTest : public FrmSnapshotsTest {
 protected:
  void GivePassword(BoxAnswer answer) {
    TwoSaves();
    screen.ExpectPortal("frmpassword", [](PortalDriver& work) {
      for (const char* box : {"textcontrol0", "textcontrol1"}) {
        work.Type(box, "secret");
        work.Press("okbt");
      }
    });
    screen.ExpectBox(kKeepQuestion, answer);
    window->ClickMenu("mnupassenter");
  }
};

TEST_F(PasswordOnSnapshotsTest, WhatIsKeptAlreadyIsForgottenIfTheTeacherSaysSo) {
  GivePassword(BoxAnswer::kNo);
  EXPECT_FALSE(KeepsMarks(Current().FileName));
  EXPECT_FALSE(HistoryAgreed(Current().FileName));
}

TEST_F(PasswordOnSnapshotsTest, OrKeptAndAgreedFromThenOn) {
  GivePassword(BoxAnswer::kYes);
  EXPECT_TRUE(KeepsMarks(Current().FileName));
  EXPECT_TRUE(HistoryAgreed(Current().FileName));
}

}  // namespace
}  // namespace tallyroll
