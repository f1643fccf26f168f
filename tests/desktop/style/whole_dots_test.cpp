// SPDX-License-Identifier: GPL-3.0-or-later
// Lines and edges at the scales of a screen that have fractions: sharp, and of one thickness.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <functional>

#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

constexpr double kScalesOfScreens[] = {1.0, 1.25, 1.5, 1.75, 2.0};

// What is painted on a screen of that scale.
QImage OnScreen(const QSize& size, double scale, const std::function<void(QImage&)>& paint) {
  QImage picture((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::white);
  paint(picture);
  return picture;
}

// How many dots each run of that colour has, along a row or down a column.
QList<int> RunsOf(const QColor& color, const QImage& picture, int at, Qt::Orientation along) {
  QList<int> runs;
  bool within = false;
  const bool across = along == Qt::Horizontal;
  for (int i = 0; i < (across ? picture.width() : picture.height()); ++i) {
    const bool is_it = (across ? picture.pixelColor(i, at) : picture.pixelColor(at, i)) == color;
    if (is_it && !within) runs << 0;
    if (is_it) ++runs.last();
    within = is_it;
  }
  return runs;
}

// A pixel of 1.25 dots is one, of 1.5 and 1.75 two; a ring of two pixels never more than they are.
TEST(WholeDots, TheLineOfABoxIsSharpWhereverTheBoxLies) {
  const auto box = [](int left, double scale, double width) {
    return OnScreen({80, 60}, scale, [&](QImage& picture) {
      QPainter painter(&picture);
      DrawBox(painter, QRect(left, left, 50, 30), 6, Qt::yellow, Qt::blue, width);
    });
  };
  for (const double scale : kScalesOfScreens)
    for (const double width : {1.0, 2.0})
      for (int left = 3; left < 11; ++left) {
        const QImage picture = box(left, scale, width);
        const int dots = width == 1 ? qRound(scale) : static_cast<int>(2 * scale);
        const int y = qRound((left + 15) * scale), x = qRound((left + 25) * scale);
        EXPECT_EQ(RunsOf(Qt::blue, picture, y, Qt::Horizontal), QList<int>(2, dots)) << scale;
        EXPECT_EQ(RunsOf(Qt::blue, picture, x, Qt::Vertical), QList<int>(2, dots)) << scale;
        QSet<QRgb> colors;
        for (int i = 0; i < picture.width(); ++i) colors << picture.pixel(i, y);
        EXPECT_EQ(colors.size(), 3) << scale << " at " << left;
      }
}

TEST(WholeDots, ADiscStaysRound) {
  const QImage picture = OnScreen({40, 40}, 1.25, [](QImage& image) {
    QPainter painter(&image);
    DrawBox(painter, QRectF(5.3, 7.7, 9, 9), 4.5, Qt::blue);
  });
  QRect ink;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y).blue() > picture.pixelColor(x, y).red() + 64)
        ink |= QRect(x, y, 1, 1);
  EXPECT_LE(std::abs(ink.width() - ink.height()), 1);
}

TEST(WholeDots, TheLineBelowTabsGoesOnAsThickBesideThem) {
  const WornLook worn(kLooks[0]);
  QWidget window;
  auto* tabs = new QTabWidget(&window);
  for (const char* name : {"One", "Two", "Three"}) tabs->addTab(new QWidget, QLatin1String(name));
  window.resize(420, 220);
  window.show();
  const QColor line = TokensOf(QApplication::palette()).line;
  for (const double scale : kScalesOfScreens)
    for (int top = 0; top < 4; ++top) {  // at every fraction of a dot
      tabs->setGeometry(0, top, 400, 200);
      const QImage picture =
          OnScreen(window.size(), scale, [&](QImage& image) { window.render(&image); });
      const QRect last = tabs->tabBar()->tabRect(2);
      for (const int x : {last.left() + 2, last.right() + 20})
        EXPECT_EQ(RunsOf(line, picture, qRound(x * scale), Qt::Vertical), QList<int>{qRound(scale)})
            << scale << " at " << x << ", " << top;
    }
}

}  // namespace
}  // namespace tallyroll
