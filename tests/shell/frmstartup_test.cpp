// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmstartup.h"

#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class FrmStartupTest : public PortalTest {
 protected:
  frmstartup portal;
};

TEST_F(FrmStartupTest, GreetsWithTheProgramsNameAndVersion) {
  portal.Load();
  PortalDriver driver(portal);
  EXPECT_EQ(driver.Text("program"), "Tallyroll");
  EXPECT_EQ(driver.Text("version"), "Version " TALLYROLL_VERSION);
  EXPECT_FALSE(driver.Text("greeting").empty());
}

TEST_F(FrmStartupTest, ContinueLeaves) {
  portal.Load();
  PortalDriver driver(portal);
  driver.Press("Command1");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_TRUE(driver.Complaints().empty());
}

TEST_F(FrmStartupTest, ClosingTheWindowLeaves) {
  portal.Load();
  PortalDriver driver(portal);
  driver.CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
