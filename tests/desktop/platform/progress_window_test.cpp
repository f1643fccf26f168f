// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/progress_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

namespace tallyroll {
namespace {

TEST(ProgressWindow, TellsHowFarItIsAndHoldsEverythingElse) {
  ProgressWindow window(QStringLiteral("Counting"), nullptr);
  EXPECT_TRUE(window.Show(3, 12));
  EXPECT_EQ(window.findChild<QProgressBar*>()->value(), 3);
  EXPECT_EQ(window.findChild<QProgressBar*>()->maximum(), 12);
  EXPECT_EQ(QApplication::activeModalWidget(), &window);
}

// The key comes in the middle of the work.
TEST(ProgressWindow, EscapeCancels) {
  ProgressWindow window(QStringLiteral("Counting"), nullptr);
  EXPECT_TRUE(window.Show(1, 12));
  QTimer::singleShot(0, &window, [&window] { QTest::keyClick(&window, Qt::Key_Escape); });
  EXPECT_FALSE(window.Show(2, 12));
  EXPECT_FALSE(window.Show(3, 12));
}

}  // namespace
}  // namespace tallyroll
