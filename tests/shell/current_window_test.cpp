// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/current_window.h"

#include <algorithm>

#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class WindowListTest : public ShellTest {
 protected:
  // The captions that a window's list shows, the checked one with an asterisk.
  static std::vector<std::string> Listed(int slot) {
    ListOpenWindows();
    std::vector<std::string> captions;
    for (const MenuEntry& entry : Window(slot)->menu.entries())
      if (entry.name.starts_with("mnuWindowList") && entry.visible)
        captions.push_back(entry.caption + (entry.checked ? "*" : ""));
    return captions;
  }
};

using Captions = std::vector<std::string>;

TEST_F(WindowListTest, EachWindowListsAllAndChecksItsOwn) {
  Open("A.TYR");
  EXPECT_EQ(Listed(1), (Captions{"&1. A.TYR*"}));
  Open("B.TYR");
  EXPECT_EQ(Listed(1), (Captions{"&1. A.TYR*", "&2. B.TYR"}));
  EXPECT_EQ(Listed(2), (Captions{"&1. A.TYR", "&2. B.TYR*"}));
}

TEST_F(WindowListTest, AnAmpersandInANameIsShown) {
  Open("A & B.TYR");
  EXPECT_EQ(Listed(1), (Captions{"&1. A && B.TYR*"}));
}

TEST_F(WindowListTest, AClosedClassLeavesTheList) {
  Open("A.TYR");
  Open("B.TYR");
  Window(1)->ClickMenu("mnuclose");
  EXPECT_EQ(Listed(2), (Captions{"&1. B.TYR*"}));
}

TEST_F(WindowListTest, AnEntryBringsItsClassToTheFront) {
  Open("A.TYR");
  Open("B.TYR");
  ListOpenWindows();
  frame_screen.calls.clear();
  Window(2)->ClickMenu("mnuWindowList0");
  EXPECT_EQ(frame_screen.calls, (Captions{"front A.TYR"}));
}

}  // namespace
}  // namespace tallyroll
