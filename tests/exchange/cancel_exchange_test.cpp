// SPDX-License-Identifier: GPL-3.0-or-later
// A Cancel in the middle of taking in and giving out: everything is as it was before.
#include <filesystem>
#include <fstream>

#include "exchange/frmexchange.h"
#include "platform/portal_driver.h"
#include "tests/exchange/exchange_test.h"
#include "tests/support/noting_window.h"
#include "tests/support/played_progress.h"

namespace tallyroll {
namespace {

class CancelExchangeTest : public ExchangeTest {
 protected:
  CancelExchangeTest() {
    SetClassWindow(&window);
    SetPlatform(&ticking);
    Current().FileName = Path("class.TYR");
    portal.Load();
    driver = std::make_unique<PortalDriver>(portal);
  }
  ~CancelExchangeTest() override {
    for (const std::string& complaint : ticking.Complaints()) ADD_FAILURE() << complaint;
    SetPlatform(&screen);
    SetClassWindow(nullptr);
  }

  void Choose(const std::string& name, const std::string& bytes) {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    ticking.ExpectFileDialog(Path(name));
    driver->Press("choose");
  }
  std::string Cell(int row, int col) const {
    return std::string(portal.changes.TextMatrix(row, col));
  }

  TickingScreen ticking;
  NotingWindow window;
  frmexchange portal;
  std::unique_ptr<PortalDriver> driver;
};

constexpr const char* kOneMark = "ID,Name,Essay [20]\n7,\"Abel, Bo\",17\n";
constexpr const char* kCanvasMark =
    "Student,ID,SIS User ID,Section,Essay (4711)\n    Points Possible,,,,20\n"
    "\"Abel, Robert\",1,,A,16\n";

TEST_F(CancelExchangeTest, TheFormerListStaysWhereAnotherFileIsCancelled) {
  Choose("first.csv", kOneMark);
  ASSERT_EQ(driver->Text("told"), "first.csv: 1 line ticked, 0 problems, 0 with nothing to do");
  {
    const PlayedProgress progress("Reading the file", 1);
    Choose("second.csv", kCanvasMark);
    EXPECT_EQ(PlayedProgress::shown, (Strings{"Reading the file"}));
  }
  EXPECT_EQ(driver->Text("told"), "first.csv: 1 line ticked, 0 problems, 0 with nothing to do");
  EXPECT_EQ(portal.system.ListIndex, 2);
  ASSERT_EQ(portal.changes.Rows(), 2);
  EXPECT_EQ(Cell(1, 6), "17");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(MarkAt(1, 1), "18");
  driver->Press("okbt");  // what is listed is what is taken
  EXPECT_EQ(MarkAt(1, 1), "17");
}

TEST_F(CancelExchangeTest, NothingIsListedWhereTheFirstFileIsCancelled) {
  const PlayedProgress progress("Reading the file", 1);
  Choose("first.csv", kOneMark);
  EXPECT_EQ(driver->Text("told"), "Choose the file that the other system has written.");
  EXPECT_FALSE(driver->Enabled("okbt"));
  EXPECT_EQ(portal.changes.Rows(), 1);
  EXPECT_EQ(portal.system.ListIndex, 0);
}

TEST_F(CancelExchangeTest, ASystemOrAStudentChosenIsTakenBack) {
  Choose("first.csv", kCanvasMark);
  ASSERT_EQ(portal.system.ListIndex, 0);
  ASSERT_EQ(Cell(1, 2), "unknown student");
  {
    const PlayedProgress progress("Reading the file", 1);
    driver->Choose("system", 2);
    EXPECT_EQ(portal.system.ListIndex, 0);
    driver->PickCell("changes", 1, 2);
    driver->Choose("who", 1);
    EXPECT_EQ(portal.who.ListIndex, 0);
  }
  EXPECT_EQ(Cell(1, 2), "unknown student");
  driver->Choose("who", 1);
  EXPECT_EQ(Cell(1, 2), "changed mark");
}

TEST_F(CancelExchangeTest, NoFileIsLeftWhereItsWritingIsCancelled) {
  driver->Tick("giveout");
  for (const int system : {0, 1, 2, 3}) {
    driver->Choose("system", system);
    const PlayedProgress progress("Writing the file", 1);
    ticking.ExpectFileDialog(Path("out.csv"));
    driver->Press("okbt");
    EXPECT_EQ(PlayedProgress::shown, (Strings{"Writing the file"})) << system;
    EXPECT_FALSE(std::filesystem::exists(Path("out.csv"))) << system;
    EXPECT_FALSE(portal.Unloaded());
  }
  ticking.ExpectFileDialog(Path("out.csv"));
  driver->Press("okbt");
  EXPECT_TRUE(std::filesystem::exists(Path("out.csv")));
}

TEST_F(CancelExchangeTest, AClassThatWasNotLookedThroughDoesNotGoOut) {
  {
    const PlayedProgress progress("Looking through the class", 1);
    driver->Tick("giveout");
  }
  EXPECT_EQ(driver->Text("told"), "The class was not looked through to its end.");
  EXPECT_FALSE(driver->Enabled("okbt"));
  driver->Choose("sign_ABS", 2);
  EXPECT_TRUE(driver->Enabled("okbt"));
}

}  // namespace
}  // namespace tallyroll
