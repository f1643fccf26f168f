// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes and lines look alike wherever they lie, also where a pixel is no whole number of dots.
#include "desktop/style/shapes.h"

#include <gtest/gtest.h>

#include <QImage>

namespace tallyroll {
namespace {

constexpr QRgb kGround = 0xFFFFFFFF, kFill = 0xFF2040FF, kLine = 0xFFC03020;

struct Stretch {
  QRgb color;
  int dots;
  bool operator==(const Stretch&) const = default;
};

struct Scale {
  double scale;
  int line, ring;  // in dots: what one pixel and two pixels are drawn as
};

constexpr Scale kScales[] = {{1, 1, 2}, {1.25, 1, 2}, {1.5, 1, 3}, {1.75, 2, 3}, {2, 2, 4}};

class Shapes : public testing::Test {
 protected:
  // Drawn at every fraction of a dot: what is passed from above, and from the left.
  template <typename Draw, typename Look>
  static void AtEveryFraction(double scale, const Draw& draw, const Look& look) {
    for (int at = 3; at < 7; ++at) {
      QImage picture(QSize(200, 200), QImage::Format_RGB32);
      picture.setDevicePixelRatio(scale);
      picture.fill(kGround);
      {
        QPainter painter(&picture);
        painter.translate(at, at);
        draw(painter);
      }
      look(RunsDown(picture));
      look(RunsDown(picture.transformed(QTransform(0, 1, 1, 0, 0, 0))));
    }
  }

 private:
  static QList<Stretch> RunsDown(const QImage& picture) {
    QList<Stretch> runs;
    for (int y = 0; y < picture.height(); ++y) {
      const QRgb color = picture.pixel(50, y);
      if (runs.isEmpty() || runs.last().color != color) runs << Stretch{color, 0};
      ++runs.last().dots;
    }
    return runs;
  }
};

TEST_F(Shapes, ABoxHasTheSameSharpLineOnEverySide) {
  for (const Scale& s : kScales)
    for (const int width : {1, 2}) {
      const int dots = width == 1 ? s.line : s.ring;
      AtEveryFraction(
          s.scale,
          [&](QPainter& painter) { DrawBox(painter, QRect(0, 0, 61, 61), 6, kFill, kLine, width); },
          [&](const QList<Stretch>& runs) {
            ASSERT_EQ(runs.size(), 5) << s.scale;
            EXPECT_EQ(runs[1], (Stretch{kLine, dots})) << s.scale;
            EXPECT_EQ(runs[2].color, kFill) << s.scale;
            EXPECT_EQ(runs[3], (Stretch{kLine, dots})) << s.scale;
          });
    }
}

TEST_F(Shapes, ALineAlongAnEdgeEndsWhereTheGroundDoes) {
  const QRect cell(0, 0, 61, 61);
  for (const Scale& s : kScales)
    AtEveryFraction(
        s.scale,
        [&](QPainter& painter) {
          painter.fillRect(cell, QColor(kFill));
          DrawEdge(painter, cell, Qt::BottomEdge, kLine);
          DrawEdge(painter, cell, Qt::RightEdge, kLine);
        },
        [&](const QList<Stretch>& runs) {
          ASSERT_EQ(runs.size(), 4) << s.scale;
          EXPECT_EQ(runs[1].color, kFill) << s.scale;
          EXPECT_EQ(runs[2], (Stretch{kLine, s.line})) << s.scale;
        });
}

}  // namespace
}  // namespace tallyroll
