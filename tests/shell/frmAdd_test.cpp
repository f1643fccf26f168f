// SPDX-License-Identifier: GPL-3.0-or-later
// Students added from the menu of a class, and where they stand in its table afterwards.
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class AddToClassTest : public ShellTest {
 protected:
  // Adds Bo Abel behind the two students "Last01" and "Last02" with the ids 101 and 102.
  Form1& AddAbel(std::string_view leave_by) {
    Form1& window = Open("A.TYR");
    screen.ExpectPortal("frmAdd", [leave_by](PortalDriver& portal) {
      portal.Type("lastname", "Abel");
      portal.Type("firstname", "Bo");
      portal.Type("id", "1015");
      portal.Press(leave_by);
      if (!portal.portal().Unloaded()) portal.Press("Exitt");
    });
    window.ClickMenu("mnuAdd");
    return window;
  }
};

TEST_F(AddToClassTest, TheTableIsSortedByNameAfterExit) {
  const Form1& window = AddAbel("Exitt");
  EXPECT_EQ(window.Grid1.TextMatrix(2, 0), " 1 Abel, Bo");
  EXPECT_EQ(window.Grid1.TextMatrix(3, 0), " 2 Last01, First01");
  EXPECT_EQ(window.Grid1.TextMatrix(4, 0), " 3 Last02, First02");
}

TEST_F(AddToClassTest, TheTableIsSortedByIdWhenTheDisplayAsksForIt) {
  NameMode = 73;
  const Form1& window = AddAbel("Exitt");
  EXPECT_EQ(Current().Students[1].id, "101");
  EXPECT_EQ(Current().Students[2].id, "1015");
  EXPECT_EQ(window.Grid1.TextMatrix(3, 0), "1015 ");
}

TEST_F(AddToClassTest, ExitFromTheEmptyPlaceBehindNextSortsToo) {
  const Form1& window = AddAbel("nextt");
  EXPECT_EQ(window.Grid1.TextMatrix(2, 0), " 1 Abel, Bo");
}

}  // namespace
}  // namespace tallyroll
