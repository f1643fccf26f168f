// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QImage>
#include <QMenu>

#include "desktop/style/tokens.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

class MenuLook : public testing::Test {
 protected:
  // As a screen of that scale shows it.
  static QImage PictureOf(QMenu& menu, double scale = 1) {
    menu.resize(menu.sizeHint());
    QImage picture((QSizeF(menu.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    menu.render(&picture);
    return picture;
  }

  // How many dots each run of that colour has, from above.
  static QList<int> RunsDown(const QImage& picture, int x, const QColor& color) {
    QList<int> runs;
    bool within = false;
    for (int y = 0; y < picture.height(); ++y) {
      const bool is_it = picture.pixelColor(x, y) == color;
      if (is_it && !within) runs << 0;
      if (is_it) ++runs.last();
      within = is_it;
    }
    return runs;
  }

  // The last dot that is not of the ground, left of the menu's own edge.
  static int LastInk(const QImage& picture, const QRect& line) {
    const QColor ground = TokensOf(QApplication::palette()).raised;
    for (int x = line.right() - 6; x > line.left(); --x)
      for (int y = line.top() + 4; y < line.bottom() - 4; ++y)
        if (picture.pixelColor(x, y) != ground) return x;
    return -1;
  }
};

TEST_F(MenuLook, ItsRulesAreOfOneThicknessAtEveryScale) {
  const WornLook worn(kLooks[0]);
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    QMenu menu;
    // Rules at every fraction of a dot.
    for (int i = 0; i < 8; ++i) {
      for (int line = 0; line <= i % 4; ++line) menu.addAction(QStringLiteral("Line"));
      menu.addSeparator();
    }
    menu.addAction(QStringLiteral("Last"));
    const QImage picture = PictureOf(menu, scale);
    const QColor rule = TokensOf(QApplication::palette()).line;
    const int dots = qRound(scale);
    EXPECT_EQ(RunsDown(picture, picture.width() / 2, rule), QList<int>(8, dots)) << scale;
  }
}

TEST_F(MenuLook, TheArrowOfASubmenuEndsWhereTheKeysEnd) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    QMenu menu;
    QAction* keys = menu.addAction(QStringLiteral("Open"));
    keys->setShortcut(Qt::CTRL | Qt::Key_H);
    keys->setShortcutVisibleInContextMenu(true);
    QAction* more = menu.addMenu(QStringLiteral("New"))->menuAction();
    const QImage picture = PictureOf(menu);
    EXPECT_NEAR(LastInk(picture, menu.actionGeometry(more)),
                LastInk(picture, menu.actionGeometry(keys)), 2)
        << look.name;
  }
}

}  // namespace
}  // namespace tallyroll
