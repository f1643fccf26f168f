// SPDX-License-Identifier: GPL-3.0-or-later
// A password from the menu of a class to the next time that its file is opened.
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class ClassPasswordTest : public ShellTest {
 protected:
  ClassPasswordTest() { window = &Open("A.TYR"); }

  void Lock() {
    screen.ExpectPortal("frmpassword", [](PortalDriver& portal) {
      portal.Type("textcontrol0", "Apple");
      portal.Press("okbt");
      portal.Type("textcontrol1", "Apple");
      portal.Press("okbt");
    });
    window->ClickMenu("mnupassenter");
  }
  void Reopen() {
    EXPECT_TRUE(FrameForm->CloseWindow(*window));
    FrameForm->OpenRecent(Path("A.TYR"));
    window = Window(1);
  }

  Form1* window;
};

TEST_F(ClassPasswordTest, ALockedClassIsSavedAtOnceAndAsksWhenItIsOpened) {
  Lock();
  EXPECT_EQ(Current().Changed, kFalse);
  screen.ExpectPortal("frmpassword", [](PortalDriver& portal) {
    portal.Type("textcontrol3", "Apple");
    portal.Press("okbt");
  });
  Reopen();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_FALSE(window->menu.Find("mnupassenter")->enabled);
  EXPECT_TRUE(window->menu.Find("mnupassdelete")->enabled);
}

TEST_F(ClassPasswordTest, InTheWrongCaseItIsRefusedAndCancellingLeavesNoWindowAndNoSlot) {
  Lock();
  screen.ExpectBox("Password incorrect. Please re-enter.");
  screen.ExpectBox("Are you sure you want to cancel?", BoxAnswer::kYes);
  screen.ExpectPortal("frmpassword", [](PortalDriver& portal) {
    portal.Type("textcontrol3", "APPLE");
    portal.Press("okbt");
    portal.Press("cancelbt");
  });
  Reopen();
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Classes[1].SlotState, 0);
}

TEST_F(ClassPasswordTest, OnceDeletedTheClassOpensWithoutAQuestion) {
  Lock();
  screen.ExpectBox("Your password has been deleted");
  screen.ExpectPortal("frmpassword", [](PortalDriver& portal) {
    portal.Type("textcontrol4", "Apple");
    portal.Press("okbt");
  });
  window->ClickMenu("mnupassdelete");
  EXPECT_EQ(Current().Changed, kFalse);
  Reopen();  // a Portal that nobody expects fails the test
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(Current().NumStudents, 2);
  EXPECT_TRUE(window->menu.Find("mnupassenter")->enabled);
  EXPECT_FALSE(window->menu.Find("mnupassdelete")->enabled);
}

}  // namespace
}  // namespace tallyroll
