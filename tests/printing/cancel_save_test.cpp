// SPDX-License-Identifier: GPL-3.0-or-later
// A Cancel in the middle of saving a report leaves no file and the preview as it was.
#include <filesystem>

#include "printing/frmprintpre.h"
#include "store/program_state.h"
#include "tests/printing/print_portal_test.h"
#include "tests/support/played_progress.h"

namespace tallyroll {
namespace {

class CancelSaveTest : public PrintPortalTest {
 protected:
  CancelSaveTest() {
    SetPlatform(&ticking);
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ");
    EnrolMany(5);
    Choice.students = {2, 4};
    Choice.month_first = Choice.month_last = 46266;
  }
  ~CancelSaveTest() override {
    for (const std::string& complaint : ticking.Complaints()) ADD_FAILURE() << complaint;
    SetPlatform(&screen);
  }
  void Save(const char* button, const std::string& name) {
    ticking.ExpectFileDialog(Path(name));
    driver->Press(button);
    if (driver->Visible("Frame1")) driver->Press("Command5");
  }

  TickingScreen ticking;
};

TEST_F(CancelSaveTest, NoFileIsLeftAndTheNextOneIsWhole) {
  for (const int code : {1, 3, 8, 13}) {
    frmprintpre portal;
    LayOut(static_cast<i16>(code));
    Open(portal);
    window.status.clear();
    for (const char* button : {"nine", "ten"}) {
      {
        const PlayedProgress progress("Writing the report", 1);
        Save(button, "report");
        EXPECT_EQ(PlayedProgress::shown, (Rows{"Writing the report"})) << code;
      }
      EXPECT_FALSE(std::filesystem::exists(Path("report"))) << code << button;
      EXPECT_EQ(window.status, "") << code << button;
      EXPECT_FALSE(portal.Unloaded());
      FixedPrintTarget box;
      portal.picture1.Draw(box);
      EXPECT_FALSE(FixedPrintTarget::RowsOf(box.job->pages.back()).empty());
    }
    Save("nine", "report");
    EXPECT_TRUE(std::filesystem::exists(Path("report"))) << code;
    std::filesystem::remove(Path("report"));
    driver.reset();
  }
}

}  // namespace
}  // namespace tallyroll
