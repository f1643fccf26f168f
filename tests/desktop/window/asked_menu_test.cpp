// SPDX-License-Identifier: GPL-3.0-or-later
// What can be asked about a student by the other mouse button or the menu key.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "desktop/grid/grid_widget.h"
#include "desktop/window/class_window_view.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class AskedMenuTest : public FrameTest {
 protected:
  AskedMenuTest() : form(OpenClass("MATH.TYR")) {}

  GridWidget& grid() const { return *window->Current()->findChild<GridWidget*>(); }

  // Asks at a place of the grid, notes the entries and takes the first one.
  void Ask(QContextMenuEvent::Reason reason, QPoint place) {
    QTimer::singleShot(0, &grid(), [this] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* action : menu->actions()) entries << action->objectName();
      QTest::keyClick(menu, Qt::Key_Down);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(reason, place, grid().viewport()->mapToGlobal(place));
    QApplication::sendEvent(grid().viewport(), &event);
    Settle();
  }

  Form1& form;
  QStringList entries;
};

TEST_F(AskedMenuTest, TheOtherMouseButtonAsksAboutTheStudentUnderThePointer) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(3, 2).center());
  EXPECT_EQ(entries.value(0), QStringLiteral("mnuexplain"));
  EXPECT_EQ(form.Grid1.Row, 3);
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmexplain"});
  EXPECT_EQ(CurrentStudent, 2);
}

TEST_F(AskedMenuTest, TheMenuKeyAsksAboutTheStudentOfTheCurrentCell) {
  RecordPortals();
  grid().MoveTo(2, 2);
  Ask(QContextMenuEvent::Keyboard, QPoint(1, 1));
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmexplain"});
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(AskedMenuTest, WhereNoStudentStandsNothingIsAsked) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(1, 2).center());
  Ask(QContextMenuEvent::Mouse, grid().CellRect(6, 2).center());
  EXPECT_TRUE(entries.isEmpty());
  EXPECT_TRUE(portals_asked_for.empty());
}

}  // namespace
}  // namespace tallyroll
