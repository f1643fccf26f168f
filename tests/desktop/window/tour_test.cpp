// SPDX-License-Identifier: GPL-3.0-or-later
// The first start: the sample is offered, and five steps point at real controls.
#include "desktop/window/tour.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <filesystem>

#include "desktop/grid/grid_widget.h"
#include "desktop/style/tokens.h"
#include "desktop/window/class_window_view.h"
#include "desktop/window/start_page.h"
#include "shell/data_folder.h"
#include "store/settings.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class TourTest : public FrameTest {
 protected:
  TourTest() {
    DataFolder = folder;
    std::filesystem::copy_file(WriteClass("MATH.TYR"), SamplePath());
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    auto* page = window->findChild<StartPage*>();  // it looks for the sample as it is shown
    page->hide();
    page->show();
    Settle();
  }
  void Offer() {
    window->OfferTour();
    Settle();
  }
  Tour* tour() const { return window->findChild<Tour*>(); }
  QWidget* Mark() const { return window->findChild<QWidget*>(QStringLiteral("TourMark")); }
  void Key(Qt::Key key) {
    QTest::keyClick(window->focusWidget(), key);
    Settle();
  }
  void Begin() {
    Offer();
    Key(Qt::Key_Return);
    ASSERT_NE(tour(), nullptr);
    ASSERT_EQ(tour()->Step(), 1);
  }
  QRect PlaceOf(const QWidget& widget) const {
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
  }
};

TEST_F(TourTest, TheSampleIsOfferedAtItsButton) {
  Offer();
  ASSERT_NE(tour(), nullptr);
  EXPECT_EQ(tour()->Step(), 0);
  ASSERT_NE(tour()->Target(), nullptr);
  EXPECT_EQ(tour()->Target()->objectName(), QString::fromLatin1(kSampleEntry));
  EXPECT_TRUE(Mark()->geometry().contains(PlaceOf(*tour()->Target())));
  EXPECT_FALSE(tour()->geometry().intersects(PlaceOf(*tour()->Target())));
  EXPECT_EQ(tour()->geometry().left() + tour()->geometry().right(),
            Mark()->geometry().left() + Mark()->geometry().right());
}

TEST_F(TourTest, TheMarkCoversTheLineOfTheCardItStandsRound) {
  Offer();
  const QRect place = PlaceOf(*tour()->Target());
  const QImage picture = window->grab(place).toImage();
  const QColor line = TokensOf(QApplication::palette()).line;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      ASSERT_NE(picture.pixelColor(x, y), line) << x << ", " << y;
}

TEST_F(TourTest, EveryStepPointsAtARealControlAndStandsWithinTheWindow) {
  Begin();
  const char* targets[] = {"", "", "Grades", "Attendance", "Average", "Print"};
  for (int step = 1; step <= Tour::kSteps; ++step) {
    ASSERT_NE(tour(), nullptr) << step;
    EXPECT_EQ(tour()->Step(), step);
    ASSERT_NE(tour()->Target(), nullptr) << step;
    EXPECT_TRUE(tour()->Target()->isVisible());
    EXPECT_TRUE(window->rect().contains(tour()->geometry())) << step;
    EXPECT_TRUE(Mark()->isVisible());
    if (step > 1) {
      const QRect place = PlaceOf(*tour()->Target());
      EXPECT_TRUE(Mark()->geometry().contains(place)) << step;
      EXPECT_FALSE(tour()->geometry().intersects(place)) << step;
      auto* bar = tour()->Target()->parentWidget();
      auto* action = bar->findChild<QAction*>(QString::fromLatin1(targets[step]));
      ASSERT_NE(action, nullptr) << step;
      EXPECT_EQ(qobject_cast<QToolBar*>(bar)->widgetForAction(action), tour()->Target());
    }
    Key(Qt::Key_Return);
  }
  EXPECT_EQ(tour(), nullptr);
  EXPECT_EQ(Mark(), nullptr);
}

TEST_F(TourTest, EscapeLeavesAtEveryStepAndGivesTheFocusBack) {
  QWidget* before = window->focusWidget();
  Offer();
  Key(Qt::Key_Escape);
  EXPECT_EQ(tour(), nullptr);
  EXPECT_EQ(window->focusWidget(), before);
  Begin();
  Key(Qt::Key_Escape);
  EXPECT_EQ(tour(), nullptr);
  EXPECT_NE(qobject_cast<GridWidget*>(window->focusWidget()), nullptr);
}

TEST_F(TourTest, BackGoesBack) {
  Begin();
  Key(Qt::Key_Return);
  ASSERT_EQ(tour()->Step(), 2);
  for (auto* button : tour()->findChildren<QPushButton*>())
    if (button->text() == QStringLiteral("Back")) button->click();
  EXPECT_EQ(tour()->Step(), 1);
}

TEST_F(TourTest, AClassThatClosesTakesItAlong) {
  Begin();
  EXPECT_TRUE(FrameForm->CloseWindow(*ClassWindows[static_cast<std::size_t>(CurrentClass)]));
  Settle();
  EXPECT_EQ(tour(), nullptr);
}

TEST_F(TourTest, OnceOfferedNoStartIsTheFirst) {
  EXPECT_TRUE(IsFirstStart());
  Offer();
  EXPECT_FALSE(IsFirstStart());
}

TEST_F(TourTest, WhoHasSettingsOfThisVersionOrOneBeforeItIsNotNew) {
  screen.settings["TALLYRLG8/startup/VERSION"] = "8";
  EXPECT_FALSE(IsFirstStart());
  screen.settings.clear();
  EXPECT_TRUE(IsFirstStart());
  screen.settings["TALLYRLW6/startup/VERSION"] = "6";
  EXPECT_FALSE(IsFirstStart());
}

TEST_F(TourTest, WithoutTheSampleNothingIsOffered) {
  std::filesystem::remove(SamplePath());
  Offer();
  EXPECT_EQ(tour(), nullptr);
  EXPECT_TRUE(IsFirstStart());
}

}  // namespace
}  // namespace tallyroll
