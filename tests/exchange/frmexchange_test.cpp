// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/frmexchange.h"

#include <gmock/gmock.h>

#include <fstream>

#include "platform/portal_driver.h"
#include "tests/exchange/exchange_test.h"
#include "tests/support/noting_window.h"

namespace tallyroll {
namespace {

using ::testing::HasSubstr;

constexpr const char* kThreeProblems =
    "Student,ID,SIS User ID,Section,Essay (4711),Quiz (12)\n"
    "    Points Possible,,,,25,10\n"
    "\"Abel, Robert\",1,,A,17,8\n"
    "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",2,8,A,x9,5\n";

class FrmexchangeTest : public ExchangeTest {
 protected:
  FrmexchangeTest() {
    SetClassWindow(&window);
    Current().FileName = Path("class.TYR");
  }
  ~FrmexchangeTest() override { SetClassWindow(nullptr); }

  void Open(frmexchange& portal) {
    portal.Load();
    driver = std::make_unique<PortalDriver>(portal);
  }
  void Choose(const std::string& bytes) {
    std::ofstream(Path("canvas.csv"), std::ios::binary) << bytes;
    screen.ExpectFileDialog(Path("canvas.csv"));
    driver->Press("choose");
  }
  static std::string Cell(const frmexchange& portal, int row, int col) {
    return std::string(portal.changes.TextMatrix(row, col));
  }

  NotingWindow window;
  std::unique_ptr<PortalDriver> driver;
};

TEST_F(FrmexchangeTest, TheFileIsRecognisedAndNothingHappensYet) {
  frmexchange portal;
  Open(portal);
  EXPECT_EQ(driver->Text("told"), "Choose the file that the other system has written.");
  EXPECT_FALSE(driver->Enabled("okbt"));
  Choose("ID,Name,Essay [20]\n7,\"Abel, Bo\",17\n");
  EXPECT_EQ(portal.system.ListIndex, 2);
  EXPECT_EQ(driver->Text("told"), "canvas.csv: 1 line ticked, 0 problems, 0 with nothing to do");
  EXPECT_EQ(Cell(portal, 1, 0), "X");
  EXPECT_EQ(Cell(portal, 1, 1), "C2");
  EXPECT_EQ(Cell(portal, 1, 2), "changed mark");
  EXPECT_EQ(Cell(portal, 1, 5), "18");
  EXPECT_EQ(Cell(portal, 1, 6), "17");
  EXPECT_EQ(MarkAt(1, 1), "18");
  driver->Press("cancelbt");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmexchangeTest, ProblemsKeepItFromBeingTakenUntilTheyAreSettled) {
  frmexchange portal;
  Open(portal);
  Choose(kThreeProblems);
  // The maximum, Quiz, Robert, x9, Zoé's quiz.
  EXPECT_EQ(driver->Text("told"), "canvas.csv: 2 lines ticked, 2 problems, 0 with nothing to do");
  screen.ExpectBox(
      "Some lines cannot be used. Say whom an unknown line is about, mend the file, or tick that "
      "they are left out.");
  driver->Press("okbt");
  EXPECT_FALSE(portal.Unloaded());

  driver->PickCell("changes", 3, 2);
  EXPECT_EQ(Cell(portal, 3, 2), "unknown student");
  EXPECT_EQ(NoteOf(portal.changes.Notes, 3, 2).words, "cannot be carried out as it stands");
  ASSERT_TRUE(driver->Enabled("who"));
  EXPECT_EQ(portal.who.List[1], "Abel, Bo (by last name)");
  driver->Choose("who", 1);
  EXPECT_EQ(NoteOf(portal.changes.Notes, 3, 2).words, "");
  EXPECT_EQ(driver->Text("told"), "canvas.csv: 4 lines ticked, 1 problem, 0 with nothing to do");
  driver->Tick("leaveout");
  driver->Press("okbt");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(MarkAt(1, 1), "17");
  EXPECT_EQ(MarkAt(1, 3), "8");
  EXPECT_EQ(MarkAt(2, 1), "ABS");
  EXPECT_EQ(MarkAt(2, 3), "5");
  EXPECT_EQ(Current().Instruments[1].mvalue, 20);
  EXPECT_EQ(window.status, "1 grade and 3 marks taken from canvas.csv.");
}

TEST_F(FrmexchangeTest, ATickIsTakenAwayByTheSpaceBarAndByTheMouse) {
  frmexchange portal;
  Open(portal);
  Choose("ID,Name,Essay [20],Test [100]\n7,\"Abel, Bo\",17,90\n");
  driver->PickCell("changes", 1, 1);
  driver->TypeKeys("changes", " ");
  EXPECT_EQ(Cell(portal, 1, 0), "");
  driver->PickCell("changes", 2, 0);
  EXPECT_EQ(Cell(portal, 2, 0), "");
  driver->TypeKeys("changes", " ");
  driver->Press("okbt");
  EXPECT_EQ(MarkAt(1, 1), "18");
  EXPECT_EQ(MarkAt(1, 2), "90");
}

TEST_F(FrmexchangeTest, TheListShowsOneKindAndTicksWhatItShows) {
  frmexchange portal;
  Open(portal);
  Choose(kThreeProblems);
  driver->Choose("show", 1);  // new grades
  EXPECT_EQ(portal.changes.Rows(), 2);
  driver->Press("ticknone");
  driver->Choose("show", 0);
  EXPECT_EQ(Cell(portal, 2, 0), "");
  EXPECT_EQ(portal.changes.Rows(), 6);
  driver->Press("tickall");
  EXPECT_EQ(Cell(portal, 1, 2), "maximum differs");
  EXPECT_EQ(Cell(portal, 1, 0), "X");
  EXPECT_EQ(Cell(portal, 3, 0), "");  // nobody's line says nothing that could be done
}

TEST_F(FrmexchangeTest, TicksStayWhenSomeoneIsChosen) {
  frmexchange portal;
  Open(portal);
  Choose(kThreeProblems);
  driver->PickCell("changes", 2, 0);
  EXPECT_EQ(Cell(portal, 2, 0), "");
  driver->PickCell("changes", 3, 2);
  driver->Choose("who", 1);
  EXPECT_EQ(Cell(portal, 2, 0), "");
}

TEST_F(FrmexchangeTest, AnUnknownFileAsksForItsSystem) {
  frmexchange portal;
  Open(portal);
  screen.ExpectBox(Path("canvas.csv") +
                   " is of none of these systems as far as its head tells. Choose the system "
                   "yourself.");
  Choose("a,b\n1,2\n");
  EXPECT_THAT(driver->Text("told"), HasSubstr("has no column \"ID\", \"Section\"."));
  EXPECT_FALSE(driver->Enabled("okbt"));
}

TEST_F(FrmexchangeTest, TheClassGoesOutWithTheSignsThatWereChosen) {
  frmexchange portal;
  Open(portal);
  driver->Tick("giveout");
  EXPECT_TRUE(driver->Visible("outframe"));
  EXPECT_FALSE(driver->Visible("inframe"));
  driver->Choose("system", 2);
  driver->Choose("sign_ABS", 2);
  screen.ExpectFileDialog(Path("out.csv"));
  driver->Press("okbt");
  std::ifstream file(Path("out.csv"));
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  EXPECT_THAT(text, HasSubstr("8,\"Mu\xC3\xB1oz, Zo\xC3\xA9\",0,B+\r\n"));
  EXPECT_EQ(RememberedSigns(ExchangeFormat::kSakai).by_mark[0], SignOut::kZero);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmexchangeTest, AWarningIsMendedWhileItsTickStands) {
  Current().Instruments[1].title = "Final Score";
  frmexchange portal;
  Open(portal);
  driver->Tick("giveout");
  ASSERT_EQ(portal.warnings.Rows(), 2);
  EXPECT_EQ(portal.warnings.TextMatrix(1, 2), "Write \"Final-Score\".");
  driver->PickCell("warnings", 1, 0);
  EXPECT_EQ(portal.warnings.TextMatrix(1, 0), "");
  screen.ExpectFileDialog(Path("out.csv"));
  driver->Press("okbt");
  std::ifstream file(Path("out.csv"));
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  EXPECT_THAT(text, HasSubstr("Section,Final Score,Test"));
}

}  // namespace
}  // namespace tallyroll
