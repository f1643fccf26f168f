// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame asks of the screen it is shown on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

class Form1;

enum class Arrangement { kCascade, kTileHorizontal, kTileVertical };

// A page of the help.
struct HelpTopic {
  int context = 0;
  std::string title;  // in the code page
};

// The desktop shows it with Qt; without a screen the calls do nothing.
class FrameScreen {
 public:
  virtual ~FrameScreen() = default;
  virtual void ShowFrame() {}
  virtual void CloseFrame() {}                      // the frame was allowed to go
  virtual void ShowWindow(Form1& /*window*/) {}     // a new class window, in front
  virtual void DestroyWindow(Form1& /*window*/) {}  // its Form1 is about to be destroyed
  virtual void BringToFront(Form1& /*window*/) {}
  // Drops down one menu of the window, as its toolbar's Print button does.
  virtual void PopUpMenu(Form1& /*window*/, std::string_view /*entry*/) {}
  virtual void TogglePanel(Form1& /*window*/) {}
  virtual void Arrange(Arrangement /*how*/) {}
  virtual void ShowAbout() {}
  virtual std::vector<HelpTopic> HelpTopics() { return {}; }
};

}  // namespace tallyroll
