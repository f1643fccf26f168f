// SPDX-License-Identifier: GPL-3.0-or-later
// A test in a program whose frame stands, without a screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "shell/shell_state.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

// Notes what the frame asks of it.
class NotingScreen : public FrameScreen {
 public:
  void ShowFrame() override { calls.push_back("frame shown"); }
  void CloseFrame() override { calls.push_back("frame closed"); }
  void ShowWindow(Form1& window) override { calls.push_back("shown " + window.Caption); }
  void DestroyWindow(Form1& window) override { calls.push_back("destroyed " + window.Caption); }
  void BringToFront(Form1& window) override { calls.push_back("front " + window.Caption); }
  void PopUpMenu(Form1&, std::string_view entry) override {
    calls.push_back("menu " + std::string(entry));
  }
  void Arrange(Arrangement how) override {
    constexpr const char* kNames[] = {"cascade", "horizontal", "vertical"};
    calls.push_back(kNames[static_cast<int>(how)]);
  }
  void ShowAbout() override { calls.push_back("about"); }

  std::vector<std::string> calls;
};

class ShellTest : public PortalTest {
 protected:
  ShellTest() {
    Screen = &frame_screen;
    DataFolder = folder;
    ProgramFolder = folder;
    FrameForm = std::make_unique<MDIForm1>();
  }
  // The windows go before their screen, and nothing works in the folder when it goes.
  ~ShellTest() override {
    ResetShell();
    std::filesystem::current_path("/");
  }

  // A class of that many students, "Last01, First01" with the id "101" and so on.
  static Class Sample(int students, int grades = 0) {
    Class c;
    c.Magic = "ty8";
    c.NumStudents = static_cast<i16>(students);
    c.NumInstruments = static_cast<i16>(grades);
    ReDim(c.Students, students);
    ReDim(c.Instruments, grades);
    for (int j = 1; j <= grades; ++j) {
      Instrument& instrument = c.Instruments[static_cast<std::size_t>(j)];
      instrument.title = "Quiz";
      instrument.code = "Q" + PlainNumberText(j);
      instrument.mvalue = 100;
    }
    for (int i = 1; i <= students; ++i) {
      Student& student = c.Students[static_cast<std::size_t>(i)];
      const std::string number = (i < 10 ? "0" : "") + PlainNumberText(i);
      student.lastname = "Last" + number;
      student.firstname = "First" + number;
      student.id = PlainNumberText(100 + i);
      ReDim(student.Marks, grades, ShortText("80"));
    }
    return c;
  }

  static void WriteFile(const std::string& path, const std::string& bytes) {
    ASSERT_EQ(ReplaceFile(path, bytes, OldTail::kDrop), 0);
  }

  // The path of a class file made so.
  std::string MakeFile(std::string_view name, const Class& c = Sample(2)) {
    std::string bytes;
    EXPECT_EQ(SerializeClass(c, bytes), 0);
    WriteFile(Path(name), bytes);
    return Path(name);
  }

  Form1& Open(std::string_view name, const Class& c = Sample(2)) {
    FrameForm->OpenRecent(MakeFile(name, c));
    return *ClassWindows[static_cast<std::size_t>(CurrentClass)];
  }

  static Form1* Window(int slot) { return ClassWindows[static_cast<std::size_t>(slot)].get(); }

  static int WindowCount() {
    int count = 0;
    for (const auto& window : ClassWindows) count += window != nullptr;
    return count;
  }

  NotingScreen frame_screen;
};

}  // namespace tallyroll
