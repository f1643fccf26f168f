// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/exit_tips.h"

#include <QAbstractButton>

#include "tests/desktop/every_window.h"

namespace tallyroll {
namespace {

class ExitTipsTest : public EveryWindow {};

TEST_F(ExitTipsTest, EachButtonThatLeavesSaysWhatItDoesWithTheWork) {
  int told = 0;
  ForEach([&told](const std::string& name, PortalDialog& window) {
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->text() != QStringLiteral("E&xit")) continue;
      ++told;
      EXPECT_FALSE(button->toolTip().isEmpty())
          << name << ": " << button->objectName().toStdString();
      EXPECT_EQ(button->toolTip(), ExitTipOf(window.objectName(), button->objectName())) << name;
    }
  });
  EXPECT_GE(told, 28);
}

TEST_F(ExitTipsTest, AnotherControlHasNone) {
  EXPECT_EQ(ExitTipOf(QStringLiteral("frmMarks"), QStringLiteral("exit")),
            QStringLiteral("Keeps the grade and its marks"));
  EXPECT_EQ(ExitTipOf(QStringLiteral("frmMarks"), QStringLiteral("cancel")), QString());
}

}  // namespace
}  // namespace tallyroll
