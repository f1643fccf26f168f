// SPDX-License-Identifier: GPL-3.0-or-later
// A class window on the screen.
#include "desktop/window/class_window_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QStatusTipEvent>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "desktop/grid/grid_widget.h"
#include "desktop/window/toolbar_view.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class ClassWindowTest : public FrameTest {
 protected:
  ClassWindowTest() : form(OpenClass("MATH.TYR")) {}

  ClassWindowView& view() const { return *window->Current(); }
  GridWidget& grid() const { return *view().findChild<GridWidget*>(); }
  QString Status() const { return view().findChild<QLabel*>(QStringLiteral("StatusBar1"))->text(); }
  QToolButton* Tool(const char* key) const {
    auto* toolbar = view().findChild<ToolbarView*>();
    auto* action = toolbar->findChild<QAction*>(QString::fromLatin1(key));
    return qobject_cast<QToolButton*>(toolbar->widgetForAction(action));
  }
  QPoint Middle(int row, int col) const { return grid().CellRect(row, col).center(); }
  void ClickTwice(int row, int col) {
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(row, col));
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, Middle(row, col));
  }

  Form1& form;
};

TEST_F(ClassWindowTest, ShowsTheGridOfTheClass) {
  EXPECT_EQ(grid().grid(), &form.Grid1);
  EXPECT_EQ(form.Grid1.TextMatrix(2, 0), " 1 Adams, Al");
  EXPECT_TRUE(grid().isVisible());
  EXPECT_EQ(grid().accessibleName(), QStringLiteral("Students and grades"));
}

TEST_F(ClassWindowTest, FollowsCaptionAndStatus) {
  EXPECT_EQ(view().windowTitle(), QStringLiteral("MATH.TYR"));
  form.Caption = "Caf\xE9.TYR";
  form.StatusText = "Na\xEFve";
  view().Sync();
  EXPECT_EQ(view().windowTitle(), QStringLiteral("Caf\u00e9.TYR"));
  EXPECT_EQ(Status(), QStringLiteral("Na\u00efve"));
}

TEST_F(ClassWindowTest, AChangedClassBearsAnAsteriskUntilItIsSaved) {
  Classes[1].Changed = kTrue;
  Settle();
  window->Sync();
  EXPECT_EQ(view().windowTitle(), QStringLiteral("MATH.TYR*"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Tallyroll - [MATH.TYR*]"));
  EXPECT_EQ(form.Caption, "MATH.TYR");
  PressMenu("mnusave");
  EXPECT_EQ(view().windowTitle(), QStringLiteral("MATH.TYR"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Tallyroll - [MATH.TYR]"));
}

TEST_F(ClassWindowTest, AMessageGoesAndTheHintOfThePointerComesBack) {
  PressMenu("mnusave");
  EXPECT_EQ(Status(), QStringLiteral("MATH.TYR saved."));
  QTest::mouseMove(grid().viewport(), Middle(2, 0));
  Settle();
  EXPECT_EQ(Status(), QStringLiteral("MATH.TYR saved."));
  auto* moment = view().findChild<QTimer*>(QStringLiteral("MessageMoment"));
  ASSERT_TRUE(moment->isActive());
  moment->setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Status() != QStringLiteral("MATH.TYR saved."); }));
  EXPECT_FALSE(moment->isActive());
  QTest::mouseMove(grid().viewport(), Middle(2, 2));
  Settle();
  EXPECT_EQ(Status(), QStringLiteral("Double Click on a Grade to Edit"));
}

TEST_F(ClassWindowTest, AMessageWaitsForThePortalInFront) {
  form.ShowStatus("Told.");
  view().Sync();
  auto* moment = view().findChild<QTimer*>(QStringLiteral("MessageMoment"));
  moment->setInterval(1);
  QDialog portal;
  QTimer::singleShot(200, &portal, &QDialog::reject);
  portal.exec();
  EXPECT_EQ(Status(), QStringLiteral("Told."));
}

TEST_F(ClassWindowTest, AToolbarButtonRunsItsCommand) {
  RecordPortals();
  QTest::mouseClick(Tool("Student"), Qt::LeftButton);
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmAdd"});
}

TEST_F(ClassWindowTest, TheToolbarFollowsWhatTheClassHas) {
  EXPECT_TRUE(Tool("Cgrades")->isEnabled());  // it has a grade
  EXPECT_FALSE(Tool("Eatt")->isEnabled());    // and no attendance
}

TEST_F(ClassWindowTest, ThePrintButtonDropsThePrintMenu) {
  QTest::mouseClick(Tool("Print"), Qt::LeftButton);
  Settle();
  QMenu* menu = view().menu().Action(QStringLiteral("mnuPrint"))->menu();
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(ClassWindowTest, ADoubleClickReachesTheClassWindow) {
  RecordPortals();
  ClickTwice(2, 2);
  EXPECT_TRUE(portals_asked_for.empty());  // not inside the mouse event
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
}

TEST_F(ClassWindowTest, ADoubleClickMeansItsOwnCellWhereverThePointerWentSince) {
  RecordPortals();
  ClickTwice(2, 2);
  QTest::mouseMove(grid().viewport(), Middle(2, 0));
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
}

TEST_F(ClassWindowTest, ADoubleClickThatBeganElsewhereIsAClick) {
  RecordPortals();
  const QPointF place = Middle(2, 2);
  QMouseEvent second(QEvent::MouseButtonDblClick, place, grid().viewport()->mapToGlobal(place),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(grid().viewport(), &second);
  Settle();
  EXPECT_TRUE(portals_asked_for.empty());
}

TEST_F(ClassWindowTest, EnterOnACellDoesWhatADoubleClickDoes) {
  RecordPortals();
  grid().MoveTo(3, 2);
  QTest::keyClick(&grid(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
}

TEST_F(ClassWindowTest, ThePointerTellsWhatADoubleClickWouldDo) {
  QTest::mouseMove(grid().viewport(), Middle(2, 2));
  Settle();
  EXPECT_EQ(Status(), QStringLiteral("Double Click on a Grade to Edit"));
}

TEST_F(ClassWindowTest, F6GoesToTheToolbarAndBack) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(window->focusWidget(), &grid());  // where the work is
  QTest::keyClick(&grid(), Qt::Key_F6);
  EXPECT_EQ(window->focusWidget(), Tool("New"));
  QTest::keyClick(Tool("New"), Qt::Key_F6);
  EXPECT_EQ(window->focusWidget(), &grid());
}

TEST_F(ClassWindowTest, AHighlightedEntryShowsItsStatusUntilItIsLeft) {
  form.StatusText = "Its own";
  QAction* entry = view().menu().Action(QStringLiteral("mnusave"));
  entry->showStatusText(window.get());
  EXPECT_EQ(Status(), QStringLiteral("Save this class"));
  QStatusTipEvent left{QString()};
  QCoreApplication::sendEvent(window.get(), &left);
  EXPECT_EQ(Status(), QStringLiteral("Its own"));
}

TEST_F(ClassWindowTest, ItsDisplayMarkFollowsTheChoice) {
  const auto checked = [this](const char* entry) {
    return view().menu().Action(QString::fromLatin1(entry))->isChecked();
  };
  EXPECT_TRUE(checked("mnunamefirst"));
  PressMenu("mnuidfirst");
  EXPECT_TRUE(checked("mnuidfirst"));
  EXPECT_FALSE(checked("mnunamefirst"));
  EXPECT_EQ(form.Grid1.TextMatrix(2, 0), "11 ");
}

}  // namespace
}  // namespace tallyroll
