// SPDX-License-Identifier: GPL-3.0-or-later
// The frame on the screen with classes in it; boxes, dialogs and Portals come from a script.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/window/frame_window.h"
#include "desktop/window/menu_view.h"
#include "shell/shell_state.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

// Lets everything that waits in the event queue happen.
void Settle();

// Presses the entry as a user does. One that is missing, hidden or disabled is a failure.
void Press(const MenuView& menu, const char* entry);

class FrameTest : public PortalTest {
 protected:
  FrameTest();
  ~FrameTest() override;

  // Writes a class of two students, Brown and Adams, with one grade each, and gives its path.
  std::string WriteClass(std::string_view name);
  // Writes it and opens it in the frame.
  Form1& OpenClass(std::string_view name);
  void PressMenu(const char* entry) { Press(window->CurrentMenu(), entry); }
  // The texts of the headings in the menu bar.
  std::vector<std::string> Headings() const;

  std::unique_ptr<FrameWindow> window;
};

// The Portals that were asked for by name; none of them is shown.
extern std::vector<std::string> portals_asked_for;
void RecordPortals();

}  // namespace tallyroll
