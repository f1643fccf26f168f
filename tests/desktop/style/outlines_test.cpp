// SPDX-License-Identifier: GPL-3.0-or-later
// Borders and the buttons of a window stand out from their ground by 3 to 1, light or dark.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/grid/cell_list.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/style/program_style.h"
#include "desktop/style/tokens.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

class DarkOutlines : public testing::Test {
 protected:
  explicit DarkOutlines(const Tokens& tokens = DarkTokens()) {
    QApplication::setPalette(PaletteOf(tokens));
  }
  ~DarkOutlines() override { QApplication::setPalette(before_); }

  // The highest contrast to the window of what is passed from the left into the widget.
  template <typename W>
  double ContrastOfBorder(bool focused = false) {
    ProgramStyle style;
    QWidget window;
    auto* widget = new W;
    if constexpr (std::is_same_v<W, QDateEdit>) widget->setCalendarPopup(true);
    auto* other = new QPushButton;
    auto* rows = new QVBoxLayout(&window);
    rows->setContentsMargins(20, 20, 20, 20);
    rows->addWidget(widget);
    rows->addWidget(other);
    for (QWidget* each : {static_cast<QWidget*>(widget), static_cast<QWidget*>(other), &window})
      each->setStyle(&style);
    window.resize(300, 200);
    window.show();
    (focused ? static_cast<QWidget*>(widget) : other)->setFocus();
    QApplication::processEvents();
    const QImage picture = window.grab().toImage();
    const QColor ground = picture.pixelColor(2, 2);
    const QPoint middle = widget->mapTo(&window, QPoint(0, widget->height() / 2));
    double best = 1;
    for (int x = -2; x < 4; ++x)
      best = std::max(best, Contrast(picture.pixelColor(middle + QPoint(x, 0)), ground));
    widget->setStyle(nullptr);
    other->setStyle(nullptr);
    window.setStyle(nullptr);
    return best;
  }

 private:
  QPalette before_ = QApplication::palette();
};

TEST_F(DarkOutlines, FieldsAndListsHaveABorderThatIsSeen) {
  EXPECT_GE(ContrastOfBorder<QLineEdit>(), 3);
  EXPECT_GE(ContrastOfBorder<QComboBox>(), 3);
  EXPECT_GE(ContrastOfBorder<QDateEdit>(), 3);
  EXPECT_GE(ContrastOfBorder<QListWidget>(), 3);
  EXPECT_GE(ContrastOfBorder<GridWidget>(), 3);
  EXPECT_GE(ContrastOfBorder<QPushButton>(), 3);
}

class LightOutlines : public DarkOutlines {
 protected:
  LightOutlines() : DarkOutlines(LightTokens()) {}
};

TEST_F(LightOutlines, FieldsAndListsHaveABorderThatIsSeen) {
  EXPECT_GE(ContrastOfBorder<QLineEdit>(), 3);
  EXPECT_GE(ContrastOfBorder<QComboBox>(), 3);
  EXPECT_GE(ContrastOfBorder<QDateEdit>(), 3);
  EXPECT_GE(ContrastOfBorder<QListWidget>(), 3);
  EXPECT_GE(ContrastOfBorder<GridWidget>(), 3);
  EXPECT_GE(ContrastOfBorder<QPushButton>(), 3);
}

TEST_F(DarkOutlines, TheFieldWithTheFocusToo) {
  EXPECT_GE(ContrastOfBorder<QLineEdit>(true), 3);
  EXPECT_GE(ContrastOfBorder<QComboBox>(true), 3);
  EXPECT_GE(ContrastOfBorder<QDateEdit>(true), 3);
}

TEST_F(DarkOutlines, TheCellInWorkHasABorderThatIsSeen) {
  EXPECT_GE(ContrastOfBorder<CellList>(), 3);
}

// What is seen of a colour that lets some of the ground through.
QColor Over(const QColor& ground, const QColor& color) {
  const auto mix = [&](int below, int above) {
    return below + (above - below) * color.alpha() / 255;
  };
  return QColor(mix(ground.red(), color.red()), mix(ground.green(), color.green()),
                mix(ground.blue(), color.blue()));
}

TEST_F(DarkOutlines, TheSignsOfWindowsBarsAndFilesAreDrawnInLightLines) {
  const ProgramStyle style;
  const QColor button = PaletteOf(DarkTokens()).color(QPalette::Button);
  for (const auto icon :
       {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton,
        QStyle::SP_TitleBarCloseButton, QStyle::SP_ToolBarHorizontalExtensionButton,
        QStyle::SP_ToolBarVerticalExtensionButton}) {
    const QImage picture = style.standardIcon(icon, nullptr, nullptr).pixmap(16, 16).toImage();
    double best = 1;
    for (int x = 0; x < picture.width(); ++x)
      for (int y = 0; y < picture.height(); ++y)
        best = std::max(best, Contrast(Over(button, picture.pixelColor(x, y)), button));
    EXPECT_GE(best, 3) << icon;
  }
}

// The palette of lists is one of their own: what is drawn in them is not.
TEST(ListsInHighContrast, AChosenLineStandsOutAsTheDesktopWantsIt) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    QListWidget list;
    list.addItems({QStringLiteral("One"), QStringLiteral("Two")});
    list.setCurrentRow(0);
    list.resize(200, 100);
    list.show();
    QApplication::processEvents();
    const QRect line = list.visualItemRect(list.item(0));
    const QImage picture = list.viewport()->grab().toImage();
    EXPECT_EQ(picture.pixel(line.right() - 20, line.center().y()),
              TokensOf(QApplication::palette()).selection.rgb())
        << look.name;
  }
}

TEST(FrameOfASheet, HasNoSecondEdgeWithinItsLine) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    QWidget window;
    GridWidget sheet(&window);
    sheet.resize(200, 100);
    window.show();
    QApplication::processEvents();
    sheet.clearFocus();
    const QImage picture = sheet.grab().toImage();
    EXPECT_NE(picture.pixel(0, 50), picture.pixel(1, 50)) << look.name;
    EXPECT_EQ(picture.pixel(1, 50), picture.pixel(2, 50)) << look.name;
  }
}

// Beside the line of a frame there is room for that of the focus.
TEST_F(LightOutlines, WithinAFrameBeginsWhatLiesThere) {
  ProgramStyle style;
  QWidget window;
  QScrollArea desk(&window);
  desk.setBackgroundRole(QPalette::Dark);
  GridWidget sheet(&window);
  QListWidget list(&window);
  const Tokens t = LightTokens();
  for (const auto& [area, ground] : {std::pair<QAbstractScrollArea*, QColor>{&desk, t.desk},
                                     {&sheet, t.window},
                                     {&list, t.surface}}) {
    area->setStyle(&style);
    area->resize(200, 100);
    const QImage picture = area->grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 50), t.border);
    EXPECT_EQ(picture.pixelColor(1, 50), ground);
    EXPECT_EQ(picture.pixelColor(100, 98), ground);
    area->setStyle(nullptr);
  }
}

TEST(ScrollBars, GoOnRoundTheirCorner) {
  QListWidget list;
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  list.resize(200, 100);
  list.show();
  QApplication::processEvents();
  const QPoint corner = list.viewport()->geometry().bottomRight() + QPoint(5, 5);
  ASSERT_TRUE(list.contentsRect().contains(corner));
  EXPECT_EQ(list.grab().toImage().pixelColor(corner), TokensOf(list.palette()).window);
}

TEST(TabLine, GoesOnBehindTheLastTab) {
  QTabWidget tabs;
  tabs.addTab(new QWidget, QStringLiteral("One"));
  tabs.addTab(new QWidget, QStringLiteral("Two"));
  tabs.resize(600, 200);
  tabs.show();
  QApplication::processEvents();
  const QImage picture = tabs.grab().toImage();
  const int line = tabs.tabBar()->geometry().bottom();
  ASSERT_LT(tabs.tabBar()->geometry().right(), 590);
  EXPECT_EQ(picture.pixelColor(595, line), TokensOf(tabs.palette()).line);
  EXPECT_EQ(picture.pixelColor(tabs.tabBar()->geometry().right() - 2, line),
            TokensOf(tabs.palette()).line);
}

}  // namespace
}  // namespace tallyroll
