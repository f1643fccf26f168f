// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a list, by the pixel.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QTest>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

class ListLines : public testing::Test {
 protected:
  ListLines() {
    list.setGeometry(10, 10, 300, 200);
    list.addItems({QStringLiteral("One"), QStringLiteral("Two\nlines"), QStringLiteral("Three")});
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  int HeightOf(int line) { return list.visualItemRect(list.item(line)).height(); }

  QWidget window;
  QListWidget list{&window};
};

// Within the frame of two pixels one of the sheet is seen, above the line as beside it.
TEST_F(ListLines, TheRingOfTheFirstStandsClearOfThatOfTheList) {
  list.setFocus();
  list.setCurrentRow(0);
  QCoreApplication::processEvents();
  const QImage picture = list.grab().toImage();
  const Tokens t = TokensOf(QApplication::palette());
  const int x = list.width() / 2, y = HeightOf(0) / 2;
  EXPECT_EQ(picture.pixelColor(x, 1), t.focus);
  EXPECT_EQ(picture.pixelColor(x, 2), t.surface);
  EXPECT_EQ(picture.pixelColor(x, 3), t.focus);
  EXPECT_EQ(picture.pixelColor(2, y), t.surface);
  EXPECT_EQ(picture.pixelColor(3, y), t.focus);
}

TEST_F(ListLines, AreAsFarApartWhenTheirWordsWrap) {
  EXPECT_EQ(HeightOf(0), HeightOf(2));
  EXPECT_NEAR(HeightOf(1) - HeightOf(0), list.fontMetrics().height(), 2);
}

TEST_F(ListLines, AreAsFarApartInEveryType) {
  for (double points = 6; points <= 30; points += 0.25) {
    QFont font = list.font();
    font.setPointSizeF(points);
    list.setFont(font);
    QCoreApplication::processEvents();
    EXPECT_NEAR(HeightOf(1) - HeightOf(0), list.fontMetrics().height(), 2) << points;
  }
}

}  // namespace
}  // namespace tallyroll
