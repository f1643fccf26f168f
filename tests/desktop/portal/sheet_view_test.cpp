// SPDX-License-Identifier: GPL-3.0-or-later
// A sheet of paper in a Portal.
#include "desktop/portal/sheet_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <functional>
#include <memory>

#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "platform/print_target.h"

namespace tallyroll {
namespace {

// A letter sheet with a rule across its upper half inch.
struct SheetPortal : Portal {
  SheetPortal() : Portal("frmSheet") {
    sheet.SheetWidth = 12240;
    sheet.SheetHeight = 15840;
    sheet.Draw = [this](PrintTarget& target) {
      ++drawn;
      target.Cls();
      target.Line(0, 720, 12240, 720);
      if (while_drawing) while_drawing();
    };
  }
  void Declare(ControlTable& table) override {
    table.Add("sheet", sheet);
    table.Add("next", next).Click([this] { when_pressed(); });
  }

  PictureBox sheet;
  CommandButton next;
  int drawn = 0;
  std::function<void()> when_pressed = [] {};
  std::function<void()> while_drawing;
};

class SheetViewTest : public testing::Test {
 protected:
  void SetUp() override { SetPlatform(&surroundings); }
  void TearDown() override {
    dialog.reset();
    SetPlatform(nullptr);
  }
  void Open() {
    dialog = std::make_unique<PortalDialog>(portal, QStringLiteral(":/test/forms/sheet.ui"));
    ASSERT_TRUE(dialog->Complaints().isEmpty()) << dialog->Complaints().join(u'\n').toStdString();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }
  QScrollArea& area() { return *dialog->findChild<QScrollArea*>(QStringLiteral("sheet")); }
  SheetView& view() { return *area().findChild<SheetView*>(); }
  void Press() { dialog->findChild<QPushButton*>(QStringLiteral("next"))->click(); }
  static double DotsPerInch() { return qApp->primaryScreen()->logicalDotsPerInchX(); }

  HeadlessSurroundings surroundings;
  SheetPortal portal;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(SheetViewTest, ASheetIsAsLargeAsItsPaper) {
  Open();
  EXPECT_NEAR(view().width(), 8.5 * DotsPerInch(), 1);
  EXPECT_NEAR(view().height(), 11 * DotsPerInch(), 1);
}

// Line by line, whatever was drawn first; a page that is turned is told anew.
TEST_F(SheetViewTest, WhoHearsTheScreenIsToldTheWordsOfThePage) {
  std::string name = "Ng, Ada";
  portal.sheet.Draw = [&name](PrintTarget& target) {
    target.Cls();
    target.CurrentY = 720;
    target.CurrentX = 3000;
    target.PrintOpen("80");
    target.CurrentX = 100;
    target.Print(name);
    target.CurrentX = 100;
    target.Print("Average 80");
  };
  Open();
  EXPECT_EQ(area().accessibleDescription(), QStringLiteral("Ng, Ada 80\nAverage 80"));
  portal.when_pressed = [&] {
    name = "Orr, Bo";
    ++portal.sheet.Revision;
  };
  Press();
  EXPECT_EQ(area().accessibleDescription(), QStringLiteral("Orr, Bo 80\nAverage 80"));
}

TEST_F(SheetViewTest, ZoomMakesItLargerAndScrolls) {
  portal.sheet.Zoom = 1.4;
  Open();
  EXPECT_NEAR(view().width(), 1.4 * 8.5 * DotsPerInch(), 1);
  EXPECT_NEAR(view().height(), 1.4 * 11 * DotsPerInch(), 1);
  const QImage image = view().grab().toImage();
  const auto rule = static_cast<int>(1.4 * DotsPerInch() / 2);
  int dark_rows = 0;
  for (int y = rule - 2; y <= rule + 2; ++y)
    if (image.pixelColor(image.width() / 2, y).lightness() < 128) ++dark_rows;
  EXPECT_GE(dark_rows, 1);
}

TEST_F(SheetViewTest, PaperIsWhiteInADarkPalette) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(40, 40, 40)));
  Open();
  const QImage image = view().grab().toImage();
  EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(image.width() - 3, image.height() - 3), QColor(Qt::white));
  QApplication::setPalette(before);
}

TEST_F(SheetViewTest, ItIsDrawnAgainOnlyWhenItChanged) {
  Open();
  EXPECT_EQ(portal.drawn, 1);
  Press();
  view().repaint();
  EXPECT_EQ(portal.drawn, 1);
  portal.when_pressed = [this] { ++portal.sheet.Revision; };
  Press();
  EXPECT_EQ(portal.drawn, 2);
  portal.when_pressed = [this] { portal.sheet.Zoom = 0.75; };
  Press();
  EXPECT_EQ(portal.drawn, 3);
}

TEST_F(SheetViewTest, AnotherPageAskedForMeanwhileIsDrawnAfterwards) {
  Open();
  int depth = 0, deepest = 0;
  portal.while_drawing = [&] {
    deepest = std::max(deepest, ++depth);
    if (portal.drawn == 2) {
      ++portal.sheet.Revision;
      dialog->ShowControls();
    }
    --depth;
  };
  portal.when_pressed = [this] { ++portal.sheet.Revision; };
  Press();
  EXPECT_EQ(portal.drawn, 3);
  EXPECT_EQ(deepest, 1);
}

TEST_F(SheetViewTest, AFittedSheetIsAsWideAsItsDeskAndFollowsIt) {
  portal.sheet.Fit = SheetFit::kWidth;
  Open();
  const auto fits = [this] {
    const int free = area().viewport()->width() - area().widget()->width();
    return free >= 0 && free <= 40;
  };
  EXPECT_TRUE(fits()) << area().widget()->width() << " of " << area().viewport()->width();
  dialog->resize(dialog->width() + 150, dialog->height());
  QTest::qWait(50);
  EXPECT_TRUE(fits()) << area().widget()->width() << " of " << area().viewport()->width();
}

// It does not begin at the frame, as one would that is scrolled.
TEST_F(SheetViewTest, AnEdgeOfTheDeskIsSeenAboveASheetAndScrollsAway) {
  portal.sheet.Zoom = 1.4;
  Open();
  const auto top = [this] { return view().mapTo(area().viewport(), QPoint()).y(); };
  EXPECT_EQ(top(), 12);
  QScrollBar& down = *area().verticalScrollBar();
  down.setValue(down.maximum());
  EXPECT_LT(top(), 0);
  EXPECT_EQ(top() + view().height(), area().viewport()->height() - 12);
}

class PaintedPlaces : public QObject {
 public:
  QRegion places;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) places += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

// Blending a shadow below a whole sheet would take longer than the sheet itself.
TEST_F(SheetViewTest, NothingIsDrawnBelowASheetThatScrolls) {
  portal.sheet.Zoom = 1.4;
  Open();
  QTest::qWait(1);
  PaintedPlaces painted;
  area().viewport()->installEventFilter(&painted);
  area().verticalScrollBar()->setValue(50);
  QTest::qWait(1);
  const QRect sheet(view().mapTo(area().viewport(), QPoint()), view().size());
  ASSERT_TRUE(sheet.contains(area().viewport()->rect().center()));
  EXPECT_FALSE(painted.places.isEmpty());
  EXPECT_FALSE(painted.places.intersects(sheet));
}

TEST_F(SheetViewTest, WhatChangesNothingPaintsNothingAndASmallerSheetLeavesNoShadow) {
  Open();
  QTest::qWait(1);
  PaintedPlaces painted;
  area().viewport()->installEventFilter(&painted);
  Press();
  QTest::qWait(1);
  EXPECT_TRUE(painted.places.isEmpty());
  const QRect before(view().mapTo(area().viewport(), QPoint()), view().size());
  portal.when_pressed = [this] { portal.sheet.Zoom = 0.25; };
  Press();
  QTest::qWait(1);
  const QRect after(view().mapTo(area().viewport(), QPoint()), view().size());
  const QRegion bared = QRegion(before) - after;
  EXPECT_EQ(bared & area().viewport()->rect() & painted.places, bared & area().viewport()->rect());
}

TEST_F(SheetViewTest, TheEdgesOfTheDeskAloneBringNoBar) {
  Open();
  const int around = dialog->width() - area().width();
  const int frame_and_bar =
      2 * area().frameWidth() + area().verticalScrollBar()->sizeHint().width();
  for (const int spare : {0, 1, 2, 23, 24, 60}) {
    dialog->resize(view().width() + frame_and_bar + around + spare, 400);
    QTest::qWait(10);
    EXPECT_EQ(area().horizontalScrollBar()->maximum(), 0) << spare;
    EXPECT_GE(view().mapTo(area().viewport(), QPoint()).x(), std::min(spare / 2, 12)) << spare;
  }
}

TEST_F(SheetViewTest, AFittedPageNeedsNoBar) {
  for (const SheetFit fit : {SheetFit::kPage, SheetFit::kWidth}) {
    portal.sheet.Fit = fit;
    Open();
    EXPECT_EQ(area().horizontalScrollBar()->maximum(), 0);
    const bool whole = fit == SheetFit::kPage;
    EXPECT_EQ(area().verticalScrollBar()->maximum() == 0, whole);
  }
}

TEST_F(SheetViewTest, AFittedPageIsSeenWhole) {
  portal.sheet.Fit = SheetFit::kPage;
  Open();
  EXPECT_LE(area().widget()->width(), area().viewport()->width());
  EXPECT_LE(area().widget()->height(), area().viewport()->height());
  EXPECT_GE(area().widget()->height(), area().viewport()->height() - 40);
}

}  // namespace
}  // namespace tallyroll
