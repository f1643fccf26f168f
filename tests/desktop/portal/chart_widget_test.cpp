// SPDX-License-Identifier: GPL-3.0-or-later
// A chart in a Portal, worked by keys and mouse.
#include "desktop/portal/chart_widget.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "desktop/portal/portal_dialog.h"
#include "desktop/style/tokens.h"
#include "platform/headless.h"

namespace tallyroll {
namespace {

struct ChartPortal : Portal {
  ChartPortal() : Portal("frmChart") {
    Graph1.chart.title = "QUIZ";
    Graph1.chart.sets[0].values = {2, 4, 1};
    Graph1.chart.labels = {"low", "mid", "high"};
    Graph1.chart.dots = {{0, 0.5, "Ng: 50"}, {2, 0.5, "Abel: 96"}};
    Graph1.Draw();
  }
  void Declare(ControlTable& table) override {
    table.Add("Graph1", Graph1).Click([this] { clicks.push_back(Graph1.Dot); }).DblClick([this] {
      opened.push_back(Graph1.Dot);
    });
    table.Add("more", more).Click([this] {
      Graph1.chart.sets[0].values.push_back(9);
      Graph1.Draw();
    });
  }
  Graph Graph1;
  CommandButton more;
  std::vector<int> clicks, opened;
};

class ChartWidgetTest : public testing::Test {
 protected:
  void SetUp() override {
    SetPlatform(&surroundings);
    dialog = std::make_unique<PortalDialog>(portal, QStringLiteral(":/test/forms/chart.ui"));
    ASSERT_TRUE(dialog->Complaints().isEmpty()) << dialog->Complaints().join(u'\n').toStdString();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }
  void TearDown() override {
    dialog.reset();
    for (const std::string& complaint : surroundings.Complaints()) ADD_FAILURE() << complaint;
    SetPlatform(nullptr);
  }
  ChartWidget& widget() { return *dialog->findChild<ChartWidget*>(QStringLiteral("Graph1")); }
  std::string Told() { return widget().accessibleDescription().toStdString(); }
  const ChartSpot& Dot(int number) {
    for (const ChartSpot& spot : widget().Spots())
      if (spot.dot == number) return spot;
    throw std::runtime_error("no such dot");
  }
  void Key(Qt::Key key) { QTest::keyClick(&widget(), key); }

  HeadlessSurroundings surroundings;
  ChartPortal portal;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(ChartWidgetTest, AScreenReaderFindsAChartWithItsTitle) {
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget());
  EXPECT_EQ(spoken->role(), QAccessible::Chart);
  EXPECT_EQ(spoken->text(QAccessible::Description), QStringLiteral("QUIZ"));
  EXPECT_TRUE(spoken->state().focusable);
}

TEST_F(ChartWidgetTest, IsDrawnAnewWhenThePortalDraws) {
  EXPECT_EQ(widget().Spots().size(), 3u + 2u);
  QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("more")), Qt::LeftButton);
  EXPECT_EQ(widget().Spots().size(), 4u + 2u);
}

TEST_F(ChartWidgetTest, OneSetIsDrawnInTheInkOfTheScreen) {
  const QPoint bar = widget().PlaceOf(widget().Spots().at(1));
  const QImage picture = widget().grab().toImage();
  EXPECT_EQ(picture.pixel(bar), TokensOf(widget().palette()).focus.rgb());
}

TEST_F(ChartWidgetTest, StandsInTheFrameOfEveryList) {
  for (const bool focused : {false, true}) {
    QWidget window;
    ChartWidget chart(&window);
    QListWidget list(&window);
    QPushButton other(&window);
    for (QWidget* each : {static_cast<QWidget*>(&chart), static_cast<QWidget*>(&list)})
      each->resize(200, 100);
    window.show();
    const auto corner = [&](QWidget& framed) {
      (focused ? &framed : static_cast<QWidget*>(&other))->setFocus();
      QCoreApplication::processEvents();
      return framed.grab(QRect(0, 0, 12, 12)).toImage();
    };
    window.activateWindow();
    EXPECT_EQ(corner(chart), corner(list)) << focused;
  }
}

// Where the words above the points end: the first row without ink below the title.
int BottomOfTitle(ChartWidget& chart) {
  const QImage picture = chart.grab().toImage();
  const auto has_ink = [&](int y) {
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y).lightness() < 128) return true;
    return false;
  };
  int y = 0;
  while (y < picture.height() && !has_ink(y)) ++y;
  while (y < picture.height() && has_ink(y)) ++y;
  return y;
}

TEST_F(ChartWidgetTest, ItsWordsGrowWithTheTypeOfTheScreen) {
  ChartWidget chart;
  chart.setPalette(PaletteOf(LightTokens()));
  chart.resize(1200, 900);
  Chart quiz = portal.Graph1.chart;
  quiz.dots.clear();
  chart.ShowChart(&quiz, 1);
  const int before = BottomOfTitle(chart);
  QFont large = chart.font();
  large.setPointSizeF(2 * chart.fontInfo().pointSizeF());
  chart.setFont(large);
  EXPECT_NEAR(BottomOfTitle(chart), 2 * before, 3);
  // The pointer finds a bar where it is drawn.
  const ChartSpot bar = chart.Spots().at(1);
  EXPECT_EQ(chart.grab().toImage().pixelColor(chart.PlaceOf(bar)), LightTokens().focus);
  QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.PlaceOf(bar));
  EXPECT_EQ(chart.accessibleDescription().toStdString(), TellSpot(quiz, bar));
}

TEST_F(ChartWidgetTest, AnEmptyChartSaysWhatWillStandThere) {
  ChartWidget empty;
  empty.SetEmptyText(QStringLiteral("Choose a title"));
  Chart chart;
  empty.ShowChart(&chart, 1);
  EXPECT_EQ(empty.accessibleDescription(), QStringLiteral("Choose a title"));
  chart.title = "QUIZ";
  chart.sets[0].values = {2, 4};
  empty.ShowChart(&chart, 2);
  EXPECT_EQ(empty.accessibleDescription(), QStringLiteral("QUIZ"));
}

TEST_F(ChartWidgetTest, ArrowsGoFromPointToPointAndTell) {
  widget().setFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ(Told(), "low: 2");
  Key(Qt::Key_Right);
  EXPECT_EQ(Told(), "mid: 4");
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  EXPECT_EQ(Told(), "high: 1");  // the last one
  Key(Qt::Key_Up);
  EXPECT_EQ(Told(), "Abel: 96");  // the nearest dot
  Key(Qt::Key_Left);
  EXPECT_EQ(Told(), "Ng: 50");
  Key(Qt::Key_Left);
  EXPECT_EQ(Told(), "Ng: 50");
  Key(Qt::Key_Down);
  EXPECT_EQ(Told(), "low: 2");
}

TEST_F(ChartWidgetTest, EnterOpensADotAndNothingElse) {
  widget().setFocus();
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  EXPECT_TRUE(portal.opened.empty());
  Key(Qt::Key_Up);
  Key(Qt::Key_Return);
  EXPECT_EQ(portal.opened, std::vector<int>{0});
}

TEST_F(ChartWidgetTest, ThePointerTellsAndADoubleClickOpens) {
  const QPoint place = widget().PlaceOf(Dot(1));
  QTest::mouseMove(&widget(), place);
  EXPECT_EQ(Told(), "Abel: 96");
  QTest::mouseDClick(&widget(), Qt::LeftButton, Qt::NoModifier, place);
  ASSERT_FALSE(portal.opened.empty());
  EXPECT_EQ(portal.opened.back(), 1);
  const QPoint bar = widget().PlaceOf(widget().Spots()[1]);
  QTest::mouseClick(&widget(), Qt::LeftButton, Qt::NoModifier, bar);
  EXPECT_EQ(portal.clicks.back(), -1);
  EXPECT_EQ(Told(), "mid: 4");
}

// The line runs at 3 through the bar of 4, whose spot is as wide and high as its room.
TEST_F(ChartWidgetTest, ThePointerFindsTheThinLineBeforeTheBarsBehindIt) {
  portal.Graph1.chart.thin_line = {3, 3, 3};
  portal.Graph1.chart.thin_name = "Average";
  portal.Graph1.Draw();
  widget().ShowChart(&portal.Graph1.chart, portal.Graph1.Revision);
  const QPoint on_line = widget().PlaceOf(widget().Spots()[3 + 1]);
  QTest::mouseMove(&widget(), on_line);
  EXPECT_EQ(Told(), "Average, mid: 3");
  QTest::mouseMove(&widget(), on_line + QPoint(0, 30));
  EXPECT_EQ(Told(), "mid: 4");
  widget().setFocus();
  Key(Qt::Key_Up);
  EXPECT_EQ(Told(), "Average, mid: 3");
  Key(Qt::Key_Right);
  EXPECT_EQ(Told(), "Average, high: 3");
}

TEST_F(ChartWidgetTest, TheSpotsFollowTheSizeOfTheWindow) {
  const QPoint before = widget().PlaceOf(Dot(1));
  dialog->resize(900, 700);
  QTest::qWait(50);
  const QPoint after = widget().PlaceOf(Dot(1));
  EXPECT_GT(after.x(), before.x());
  EXPECT_LT(after.x(), widget().width());
}

TEST_F(ChartWidgetTest, TheGroundFollowsThePalette) {
  EXPECT_EQ(widget().grab().toImage().pixelColor(3, 3), QColor(Qt::white));
  widget().setPalette(PaletteOf(DarkTokens()));
  EXPECT_EQ(widget().grab().toImage().pixelColor(3, 3), DarkTokens().surface);
}

TEST_F(ChartWidgetTest, IsCopiedAsPictureAndAsDrawing) {
  widget().setFocus();
  QTest::keyClick(&widget(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* data = QApplication::clipboard()->mimeData();
  ASSERT_TRUE(data->hasImage());
  EXPECT_GT(qvariant_cast<QImage>(data->imageData()).width(), 1000);
  EXPECT_TRUE(data->data(QStringLiteral("image/svg+xml")).contains(">QUIZ</text>"));
}

TEST_F(ChartWidgetTest, IsSavedAsPngOrSvg) {
  const QTemporaryDir folder;
  const std::string png = folder.filePath(QStringLiteral("a.png")).toStdString();
  const std::string svg = folder.filePath(QStringLiteral("a.svg")).toStdString();
  surroundings.ExpectFileDialog(png);
  widget().SavePicture();
  EXPECT_FALSE(QImage(QString::fromStdString(png)).isNull());
  surroundings.ExpectFileDialog(svg);
  widget().SavePicture();
  QFile file(QString::fromStdString(svg));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().endsWith("</svg>\n"));
  surroundings.ExpectFileDialog(std::nullopt);
  widget().SavePicture();
  surroundings.ExpectFileDialog(folder.filePath(QStringLiteral("no/a.svg")).toStdString());
  surroundings.ExpectBox("File Error: 76");
  widget().SavePicture();
}

}  // namespace
}  // namespace tallyroll
