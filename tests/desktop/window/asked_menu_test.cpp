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

  // Asks at a place of the grid, notes the entries and takes one of them.
  void Ask(QContextMenuEvent::Reason reason, QPoint place, const char* take) {
    QTimer::singleShot(0, &grid(), [this, take] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* action : menu->actions())
        if (!action->isSeparator()) entries << action->objectName();
      while (menu->activeAction() == nullptr ||
             menu->activeAction()->objectName() != QString::fromLatin1(take)) {
        const QAction* before = menu->activeAction();
        QTest::keyClick(menu, Qt::Key_Down);
        if (menu->activeAction() == before) break;
      }
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
  Ask(QContextMenuEvent::Mouse, grid().CellRect(3, 2).center(), "mnuexplain");
  EXPECT_EQ(entries,
            (QStringList{QStringLiteral("double_click"), QStringLiteral("mnuexplain"),
                         QStringLiteral("mnustudenthistory"), QStringLiteral("mnugradegraph")}));
  EXPECT_EQ(form.Grid1.Row, 3);
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmexplain"});
  EXPECT_EQ(CurrentStudent, 2);
}

TEST_F(AskedMenuTest, TheMenuKeyAsksAboutTheStudentOfTheCurrentCell) {
  RecordPortals();
  grid().MoveTo(2, 2);
  Ask(QContextMenuEvent::Keyboard, QPoint(1, 1), "mnuexplain");
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmexplain"});
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(AskedMenuTest, TheFirstEntryIsTheDoubleClickOfTheCell) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(2, 2).center(), "double_click");
  Ask(QContextMenuEvent::Mouse, grid().CellRect(3, 0).center(), "double_click");
  Ask(QContextMenuEvent::Mouse, grid().CellRect(0, 0).center(), "double_click");
  Ask(QContextMenuEvent::Mouse, grid().CellRect(0, 2).center(), "double_click");
  EXPECT_EQ(portals_asked_for,
            (std::vector<std::string>{"frmEmarks", "frmEdit", "frmAdd", "frmMarks"}));
}

TEST_F(AskedMenuTest, TheGraphIsOfTheGradeInTheColumn) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(1, 2).center(), "mnugradegraph");
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmgraph"});
  EXPECT_EQ(CurrentStudent, 1);
}

TEST_F(AskedMenuTest, WhereNoStudentAndNoGradeStandsOnlyTheDoubleClickIsOffered) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(6, 3).center(), "double_click");
  EXPECT_EQ(entries, QStringList{QStringLiteral("double_click")});
  EXPECT_EQ(form.Grid1.Row, 6);
}

TEST_F(AskedMenuTest, WhereADoubleClickDoesNothingNothingIsAsked) {
  RecordPortals();
  Ask(QContextMenuEvent::Mouse, grid().CellRect(1, 0).center(), "double_click");
  EXPECT_TRUE(entries.isEmpty());
  EXPECT_TRUE(portals_asked_for.empty());
}

}  // namespace
}  // namespace tallyroll
