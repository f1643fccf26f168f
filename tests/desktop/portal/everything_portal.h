// SPDX-License-Identifier: GPL-3.0-or-later
// A Portal with a control of every kind, that writes down what happens to it.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "platform/portal.h"

namespace tallyroll {

struct EverythingPortal : Portal {
  EverythingPortal();

  Label note;
  TextBox first, second, lines;
  ComboBox pick, typed;
  DTPicker day;
  ListBox list;
  Grid grid;
  CheckBox tick;
  Frame choice;
  OptionButton one, two;
  TabStrip tabs;
  Pages pages;
  PictureBox picture;
  CommandButton ok, other, cancel;

  std::vector<std::string> log;
  // What a handler does besides writing down, by the line it writes.
  std::function<void(const std::string&)> when = [](const std::string&) {};
  bool use_up_keys = false;
  bool refuse_to_go = false;

  void Declare(ControlTable& table) override;
  void QueryUnload() override;

 private:
  void Log(const std::string& line);
};

// Shows it without a loop of its own, so that a test acts step by step.
class EverythingTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Shows the Portal as it is filled by now.
  void Open();
  template <typename W>
  W& Find(const char* name) {
    auto* widget = dialog->findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  // What was written down since the last call.
  std::vector<std::string> Events();
  void Focus(const char* name);

  HeadlessSurroundings surroundings;
  EverythingPortal portal;
  std::unique_ptr<PortalDialog> dialog;
};

inline QString EverythingForm() {
  return QStringLiteral(":/test/forms/everything.ui");
}
using Lines = std::vector<std::string>;

}  // namespace tallyroll
