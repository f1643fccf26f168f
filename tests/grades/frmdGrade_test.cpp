// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmdGrade.h"

#include <algorithm>

#include "base/number_text.h"
#include "grades/frmMarks.h"
#include "grades/student_grid.h"
#include "tests/grades/grade_portal_test.h"

namespace tallyroll {
namespace {

class FrmdGradeTest : public GradePortalTest {
 protected:
  FrmdGradeTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    Give("Rivers ", "RIV", "Q", {"81", "82"});
    Give("Lakes", "LAK", "HW", {"71", "72"});
    Give("Hills", "HIL", "Q ", {"61", "62"});
    for (int i = 1; i <= 3; ++i) {
      Current().Weights[static_cast<std::size_t>(i)] = Currency::FromWhole(10 * i);
      Current().InstrumentUse[static_cast<std::size_t>(i)] = Currency::FromWhole(i == 2 ? 2 : 1);
    }
  }
  void OpenFor(int mode) {
    OpenState = mode;
    Open(portal);
  }
  void Delete(int grade) {
    driver->Choose("List1", grade - 1);
    screen.ExpectBox("Delete " + std::string(Trimmed(Grade(grade).title)) + "?", BoxAnswer::kOk);
    driver->Press("delete");
  }
  static std::string_view Trimmed(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  static std::int64_t Weight(int i) {
    return Current().Weights.at(static_cast<std::size_t>(i)).scaled() / 10000;
  }
  static std::int64_t Use(int i) {
    return Current().InstrumentUse.at(static_cast<std::size_t>(i)).scaled() / 10000;
  }

  frmdGrade portal;
};

TEST_F(FrmdGradeTest, EachModeHasItsCaptionAndItsControls) {
  struct {
    int mode;
    const char* caption;
    bool deletes, transfers, moves;
  } const modes[] = {{121, "Delete Grades Portal", true, false, false},
                     {157, "Transfer Grade Between Classes Portal", false, true, false},
                     {269, "Edit Order of Grade Title Portal", false, false, true}};
  for (const auto& each : modes) {
    OpenState = each.mode;
    frmdGrade one;
    one.Load();
    EXPECT_EQ(one.Caption, each.caption);
    EXPECT_EQ(one.delete_.Visible, each.deletes);
    EXPECT_EQ(one.transfer.Visible, each.transfers);
    EXPECT_EQ(one.reorderFrame.Visible, each.moves);
  }
}

TEST_F(FrmdGradeTest, AGradesLineIsItsCodeAndTitle) {
  OpenFor(121);
  EXPECT_EQ(portal.List1.List,
            (std::vector<std::string>{"RIV\tRivers ", "LAK\tLakes", "HIL\tHills"}));
}

TEST_F(FrmdGradeTest, DeletingNeedsAChoice) {
  OpenFor(121);
  screen.ExpectBox("You must select a grade to delete or press Exit.");
  driver->Press("delete");
  EXPECT_FALSE(portal.Unloaded());
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(Current().NumInstruments, 3);
}

TEST_F(FrmdGradeTest, DeletingAsksAndCancelIsTheDefault) {
  OpenFor(121);
  driver->Choose("List1", 0);
  screen.ExpectBox("Delete Rivers?", BoxAnswer::kCancel);
  driver->Press("delete");
  ExpectLastBox("Delete Portal", BoxIcon::kQuestion, BoxButtons::kOkCancel, true);
  EXPECT_EQ(Current().NumInstruments, 3);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmdGradeTest, DeletingMovesEverythingBehindDown) {
  Current().Students[1].Marks[0] = "B";
  OpenFor(121);
  Delete(2);
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Rivers ", "Hills"}));
  EXPECT_EQ(Mark(1, 0), "B");
  EXPECT_EQ(Mark(1, 1), "81");
  EXPECT_EQ(Mark(1, 2), "61");
  EXPECT_EQ(Mark(2, 2), "62");
  EXPECT_EQ(UpperBound(Current().Students[1].Marks), 2);
  EXPECT_EQ(UpperBound(Current().Instruments), 2);
  EXPECT_EQ(Weight(2), 30);
  EXPECT_EQ(Use(2), 1);
  EXPECT_EQ(UpperBound(Current().Weights), 2);
  EXPECT_EQ(UpperBound(Current().InstrumentUse), 2);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(portal.List1.List, (std::vector<std::string>{"RIV\tRivers ", "HIL\tHills"}));
  EXPECT_EQ(portal.List1.ListIndex, -1);
}

TEST_F(FrmdGradeTest, DeletingTheLastGradeLeavesAnEmptyClass) {
  OpenFor(121);
  Delete(3);
  Delete(2);
  Delete(1);
  EXPECT_EQ(Current().NumInstruments, 0);
  EXPECT_EQ(UpperBound(Current().Students[2].Marks), 0);
  EXPECT_FALSE(Bytes().empty());
}

TEST_F(FrmdGradeTest, DeletingTheLastGradeOfATypeForgetsTheMethod) {
  UseMethod(1);
  OpenFor(121);
  Delete(2);
  ExpectMethodForgotten();
}

TEST_F(FrmdGradeTest, DeletingAGradeOfATypeThatKeepsOneKeepsTheMethod) {
  for (const i16 method : {i16{1}, i16{3}}) {
    UseMethod(method);
    Give("More", "M", "Q", {"1", "2"});
    frmdGrade one;
    OpenState = 121;
    one.Load();
    PortalDriver hand(one);
    hand.Choose("List1", Current().NumInstruments - 1);
    screen.ExpectBox("Delete More?", BoxAnswer::kOk);
    hand.Press("delete");
    ExpectMethodKept(method);
  }
}

TEST_F(FrmdGradeTest, UnderMethod2ADeleteNeverTouchesTheMethod) {
  UseMethod(2);
  OpenFor(121);
  Delete(2);
  ExpectMethodKept(2);
}

TEST_F(FrmdGradeTest, DeletingTheLastGradeOfATypeForgetsMethod3Too) {
  UseMethod(3);
  OpenFor(121);
  Delete(2);
  ExpectMethodForgotten();
}

TEST_F(FrmdGradeTest, WithoutAMethodADeleteEmptiesTheSettings) {
  UseMethod(5);
  OpenFor(121);
  Delete(1);  // another quiz remains
  ExpectMethodForgotten();
}

TEST_F(FrmdGradeTest, UnderMethod0ADeleteAlwaysForgetsTheMethod) {
  UseMethod(0);
  OpenFor(121);
  Delete(1);
  ExpectMethodForgotten();
}

TEST_F(FrmdGradeTest, TransferNeedsAChoice) {
  OpenFor(157);
  screen.ExpectBox(
      "No grade was chosen to place in the clipboard. Either choose a grade title to transfer or "
      "press Exit to leave this portal.");
  driver->Press("transfer");
  EXPECT_FALSE(portal.Unloaded());
  ExpectLastBox("Note to the Teacher", BoxIcon::kNone);
  EXPECT_EQ(screen.clipboard, "");
}

TEST_F(FrmdGradeTest, TransferAsksFirst) {
  OpenFor(157);
  driver->Choose("List1", 0);
  screen.ExpectBox(
      "Transfer Rivers to the clipboard? (The Grade will still remain in the current class.)",
      BoxAnswer::kCancel);
  driver->Press("transfer");
  ExpectLastBox("Transfer Portal", BoxIcon::kQuestion, BoxButtons::kOkCancel, true);
  EXPECT_EQ(screen.clipboard, "");
}

TEST_F(FrmdGradeTest, TransferWritesTheGradeWithItsMarks) {
  Current().Students[1].Marks[2] = "ABS ";
  OpenFor(157);
  driver->Choose("List1", 1);
  screen.ExpectBox(
      "Transfer Lakes to the clipboard? (The Grade will still remain in the current class.)",
      BoxAnswer::kOk);
  driver->Press("transfer");
  EXPECT_EQ(screen.clipboard, "8z\rLakes\rLAK\r100\r65\r9/1/2026\rN\rHW\r2\r2,ABS \r1,72\r");
  EXPECT_EQ(Current().NumInstruments, 3);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmdGradeTest, With12StudentsTheTextHas9AndThen12Lines) {
  for (int i = 3; i <= 12; ++i) {
    Student& student = Enrol("Last", "First", PlainNumberText(i));
    student.Marks[1] = "50";
  }
  OpenFor(157);
  driver->Choose("List1", 0);
  screen.ExpectBox(
      "Transfer Rivers to the clipboard? (The Grade will still remain in the current class.)",
      BoxAnswer::kOk);
  driver->Press("transfer");
  EXPECT_EQ(std::ranges::count(screen.clipboard, '\r'), 9 + 12);
}

// A clipboard that another program holds fast, wholly or as far as it cannot be emptied.
struct LostClipboard : HeadlessSurroundings {
  void SetClipboardText(std::string_view text) override {
    if (can_be_emptied && text.empty()) clipboard.clear();
  }
  bool can_be_emptied = false;
};

TEST_F(FrmdGradeTest, AClipboardThatTakesNothingIsTold) {
  const std::string before = Bytes();
  for (const char* old : {"", "8z\rOld\r"}) {
    for (const bool can_be_emptied : {false, true}) {
      LostClipboard lost;
      lost.clipboard = old;
      lost.can_be_emptied = can_be_emptied;
      SetPlatform(&lost);
      OpenState = 157;
      frmdGrade one;
      one.Load();
      PortalDriver hand(one);
      hand.Choose("List1", 0);
      lost.ExpectBox(
          "Transfer Rivers to the clipboard? (The Grade will still remain in the current class.)",
          BoxAnswer::kOk);
      lost.ExpectBox("An error has occured writing on Clipboard.");
      hand.Press("transfer");
      EXPECT_EQ(lost.Complaints(), std::vector<std::string>{});
      EXPECT_EQ(lost.boxes.at(1).title, "Note to the Teacher");
      EXPECT_EQ(lost.boxes.at(1).icon, BoxIcon::kNone);
      SetPlatform(&screen);
    }
  }
  EXPECT_EQ(Bytes(), before);
}

TEST_F(FrmdGradeTest, TransferReplacesAnOlderGradeOnTheClipboard) {
  screen.clipboard = "8z\rOld\r";
  OpenFor(157);
  driver->Choose("List1", 2);
  screen.ExpectBox(
      "Transfer Hills to the clipboard? (The Grade will still remain in the current class.)",
      BoxAnswer::kOk);
  driver->Press("transfer");
  EXPECT_EQ(screen.clipboard, "8z\rHills\rHIL\r100\r65\r9/1/2026\rN\rQ \r2\r2,61\r1,62\r");
}

TEST_F(FrmdGradeTest, AGradeGoesToAnotherClassThroughTheClipboard) {
  OpenFor(157);
  driver->Choose("List1", 0);
  screen.ExpectBox(
      "Transfer Rivers to the clipboard? (The Grade will still remain in the current class.)",
      BoxAnswer::kOk);
  driver->Press("transfer");
  driver->Press("exitbt");

  // Ng (1) is in both; Li (2) is unknown there, Orr (3) unknown here.
  CurrentClass = 2;
  Enrol("Orr", "Cy", "3");
  Enrol("Ng", "Ada", " 1");
  frmMarks receiver;
  receiver.Load();
  PortalDriver hand(receiver);
  hand.Press("pastegrade");
  hand.Press("exit");
  EXPECT_TRUE(hand.Complaints().empty());
  ASSERT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Grade(1).title, "Rivers ");
  EXPECT_EQ(Grade(1).typecode, "Q ");
  EXPECT_EQ(Mark(1, 1), "NEW");
  EXPECT_EQ(Mark(2, 1), "82");
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(FrmdGradeTest, DownKeepsEverythingTogether) {
  OpenFor(269);
  driver->Choose("List1", 0);
  driver->Press("down");
  EXPECT_EQ(Titles(), (std::vector<std::string>{"Lakes", "Rivers ", "Hills"}));
  EXPECT_EQ(Mark(1, 1), "71");
  EXPECT_EQ(Mark(1, 2), "81");
  EXPECT_EQ(Mark(2, 2), "82");
  EXPECT_EQ(Weight(1), 20);
  EXPECT_EQ(Weight(2), 10);
  EXPECT_EQ(Use(1), 2);
  EXPECT_EQ(Use(2), 1);
  EXPECT_EQ(portal.List1.ListIndex, 1);
  EXPECT_EQ(portal.List1.List.at(1), "RIV\tRivers ");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(FrmdGradeTest, UpIsTheWayBack) {
  const std::string before = Bytes();
  OpenFor(269);
  driver->Choose("List1", 1);
  driver->Press("down");
  EXPECT_NE(Bytes(), before);
  EXPECT_EQ(Use(3), 2);
  driver->Press("up");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Weight(2), 20);
  EXPECT_EQ(Use(2), 2);
  EXPECT_EQ(portal.List1.ListIndex, 1);
}

TEST_F(FrmdGradeTest, UpOnTheFirstAndDownOnTheLastChangeNothing) {
  const std::string before = Bytes();
  OpenFor(269);
  driver->Press("up");
  driver->Press("down");
  driver->Choose("List1", 0);
  driver->Press("up");
  driver->Choose("List1", 2);
  driver->Press("down");
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmdGradeTest, ReorderingSizesTheUseOfGradesAndKeepsIt) {
  ReDimPreserve(Current().InstrumentUse, 1);
  OpenFor(269);
  EXPECT_EQ(UpperBound(Current().InstrumentUse), 3);
  EXPECT_EQ(Use(1), 1);
}

TEST_F(FrmdGradeTest, AClassWithoutGradesHasNothingToChoose) {
  DropGrades();
  const std::string before = Bytes();
  for (const int mode : {121, 157, 269}) {
    OpenState = mode;
    frmdGrade one;
    one.Load();
    PortalDriver hand(one);
    EXPECT_TRUE(one.List1.List.empty());
    if (mode == 121) {
      screen.ExpectBox("You must select a grade to delete or press Exit.");
      hand.Press("delete");
    } else if (mode == 157) {
      screen.ExpectBox(
          "No grade was chosen to place in the clipboard. Either choose a grade title to transfer "
          "or press Exit to leave this portal.");
      hand.Press("transfer");
    } else {
      hand.Press("up");
      hand.Press("down");
    }
    hand.Press("exitbt");
    EXPECT_TRUE(one.Unloaded());
    EXPECT_EQ(hand.Complaints(), std::vector<std::string>{});
  }
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Current().Changed, kFalse);
}

}  // namespace
}  // namespace tallyroll
