// SPDX-License-Identifier: GPL-3.0-or-later
// The frame on the screen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusTipEvent>
#include <QTest>
#include <QTimer>

#include "desktop/grid/grid_widget.h"
#include "desktop/window/class_window_view.h"
#include "store/settings.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;

class FrameWindowTest : public FrameTest {
 protected:
  QMdiArea& area() const { return *window->findChild<QMdiArea*>(); }
  void Change(Form1& form) { Classes[static_cast<std::size_t>(form.SlotIndex)].Changed = kTrue; }
  const std::string save_question = " Data has been changed. Save File?  ";
};

TEST_F(FrameWindowTest, FitsASmallScreenWithAndWithoutAClass) {
  const QSize room(1024 - 16, 640 - 40);
  EXPECT_LE(window->minimumSizeHint().width(), room.width());
  EXPECT_LE(window->minimumSizeHint().height(), room.height());
  OpenClass("MATH.TYR");
  EXPECT_LE(window->minimumSizeHint().width(), room.width());
  EXPECT_LE(window->minimumSizeHint().height(), room.height());
}

TEST_F(FrameWindowTest, ShowsItsOwnMenuUntilAClassIsOpen) {
  EXPECT_THAT(Headings(), ElementsAre("&File", "&Edit", "&Help"));
  Form1& form = OpenClass("MATH.TYR");
  EXPECT_EQ(Headings().size(), 12U);
  EXPECT_TRUE(FrameForm->CloseWindow(form));
  EXPECT_THAT(Headings(), ElementsAre("&File", "&Edit", "&Help"));
}

TEST_F(FrameWindowTest, TheOnlyClassFillsTheFrame) {
  OpenClass("MATH.TYR");
  EXPECT_TRUE(window->Current()->isMaximized());
}

TEST_F(FrameWindowTest, TheMenuSwitchesWithTheClassInFront) {
  Form1& math = OpenClass("MATH.TYR");
  Form1& art = OpenClass("ART.TYR");
  EXPECT_EQ(window->Current()->form(), &art);
  window->BringToFront(math);
  EXPECT_EQ(window->Current()->form(), &math);
  EXPECT_EQ(window->menuBar()->actions().front(),
            window->Current()->menu().Action(QStringLiteral("mnuFile")));
}

TEST_F(FrameWindowTest, ComingToTheFrontPutsTheClassInWork) {
  Form1& math = OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  EXPECT_EQ(CurrentClass, 2);
  window->BringToFront(math);
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(FrameWindowTest, CtrlF6GoesToTheNextClassAndCtrlF4ClosesIt) {
  Form1& math = OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_F6, Qt::ControlModifier);
  EXPECT_EQ(window->Current()->form(), &math);
  QTest::keyClick(window.get(), Qt::Key_F4, Qt::ControlModifier);
  Settle();
  EXPECT_EQ(ClassWindows[1], nullptr);
  ASSERT_NE(window->Current(), nullptr);
  EXPECT_EQ(window->Current()->form(), ClassWindows[2].get());
}

TEST_F(FrameWindowTest, TheWindowMenuListsTheOpenClasses) {
  Form1& math = OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  const MenuView& menu = window->Current()->menu();
  EXPECT_TRUE(menu.Action(QStringLiteral("mnuWindowList1"))->isChecked());
  EXPECT_FALSE(menu.Action(QStringLiteral("mnuWindowList2"))->isVisible());
  EXPECT_EQ(menu.Action(QStringLiteral("mnuWindowList0"))->text(), QStringLiteral("&1. MATH.TYR"));
  PressMenu("mnuWindowList0");
  EXPECT_EQ(window->Current()->form(), &math);
  EXPECT_TRUE(window->Current()->menu().Action(QStringLiteral("mnuWindowList0"))->isChecked());
}

TEST_F(FrameWindowTest, CtrlWClosesTheClass) {
  OpenClass("MATH.TYR");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier);
  Settle();
  EXPECT_EQ(ClassWindows[1], nullptr);
}

TEST_F(FrameWindowTest, ClosingAClassAsksAndCancelKeepsIt) {
  Form1& form = OpenClass("MATH.TYR");
  Change(form);
  screen.ExpectBox("MATH.TYR" + save_question, BoxAnswer::kCancel);
  window->Current()->close();
  Settle();
  ASSERT_NE(window->Current(), nullptr);
  EXPECT_EQ(window->Current()->form(), &form);
  screen.ExpectBox("MATH.TYR" + save_question, BoxAnswer::kNo);
  window->Current()->close();
  Settle();
  EXPECT_EQ(window->Current(), nullptr);
}

TEST_F(FrameWindowTest, ClosingTheFrameAsksAndCancelKeepsIt) {
  Change(OpenClass("MATH.TYR"));
  screen.ExpectBox("MATH.TYR" + save_question, BoxAnswer::kCancel);
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  EXPECT_NE(window->Current(), nullptr);
}

TEST_F(FrameWindowTest, ClosingTheFrameSavesTheSettings) {
  OpenClass("MATH.TYR");
  EXPECT_TRUE(window->close());
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/VERSION"], "8");
}

TEST_F(FrameWindowTest, ExitAsksOnlyOnce) {
  Change(OpenClass("MATH.TYR"));
  screen.ExpectBox("MATH.TYR" + save_question, BoxAnswer::kNo);
  PressMenu("mnuExit");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(FrameWindowTest, HorizontalTilesStandOneBelowTheOther) {
  OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  PressMenu("mnhorizontal");
  const auto windows = area().subWindowList();
  const QRect room = area().viewport()->rect();
  EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, room.width(), room.height() / 2));
  EXPECT_EQ(windows[1]->geometry().top(), room.height() / 2);
  EXPECT_EQ(windows[1]->geometry().bottom(), room.bottom());
  EXPECT_EQ(windows[1]->width(), room.width());
}

TEST_F(FrameWindowTest, VerticalTilesStandSideBySide) {
  OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  PressMenu("mnuvertical");
  const auto windows = area().subWindowList();
  const QRect room = area().viewport()->rect();
  EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, room.width() / 2, room.height()));
  EXPECT_EQ(windows[1]->geometry().left(), room.width() / 2);
  EXPECT_EQ(windows[1]->geometry().right(), room.right());
}

TEST_F(FrameWindowTest, CascadeShowsEveryTitle) {
  OpenClass("MATH.TYR");
  OpenClass("ART.TYR");
  PressMenu("mnucascade");
  const auto windows = area().subWindowList();
  EXPECT_FALSE(windows[0]->isMaximized());
  EXPECT_NE(windows[0]->pos(), windows[1]->pos());
}

TEST_F(FrameWindowTest, ArrangingTheWindowsLeavesTheFocusOnTheGrid) {
  OpenClass("MATH.TYR");
  Form1& art = OpenClass("ART.TYR");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  for (const char* entry : {"mnucascade", "mnhorizontal", "mnuvertical", "mnucascade"}) {
    PressMenu(entry);
    ASSERT_EQ(window->Current()->form(), &art) << entry;
    EXPECT_EQ(window->focusWidget(), window->Current()->findChild<GridWidget*>()) << entry;
    EXPECT_EQ(CurrentClass, 2);
  }
}

TEST_F(FrameWindowTest, WhatTheFrameTellsGoesWhenItsMomentIsOver) {
  Change(OpenClass("MATH.TYR"));
  screen.ExpectBox("MATH.TYR" + save_question, BoxAnswer::kYes);
  PressMenu("mnuclose");
  const auto* status = window->findChild<QLabel*>(QStringLiteral("FrameStatus"));
  EXPECT_EQ(status->text(), QStringLiteral("MATH.TYR saved."));
  window->findChild<QTimer*>(QStringLiteral("MessageMoment"), Qt::FindDirectChildrenOnly)
      ->setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([status] { return status->text().isEmpty(); }));
}

TEST_F(FrameWindowTest, TheLastOfTwoFillsTheFrameAgain) {
  OpenClass("MATH.TYR");
  Form1& art = OpenClass("ART.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(art));
  ASSERT_NE(window->Current(), nullptr);
  EXPECT_EQ(window->Current()->form(), ClassWindows[1].get());
  EXPECT_TRUE(window->Current()->isMaximized());
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(FrameWindowTest, WithNoClassTheStatusStandsBelowTheStartPage) {
  window->CurrentMenu().Action(QStringLiteral("mnuOpen"))->showStatusText(window.get());
  const auto* status = window->findChild<QLabel*>(QStringLiteral("FrameStatus"));
  EXPECT_EQ(status->text(), QStringLiteral("Open a class file"));
  FrameForm->StatusText = "Hello";
  QStatusTipEvent left{QString()};
  QCoreApplication::sendEvent(window.get(), &left);
  EXPECT_EQ(status->text(), QStringLiteral("Hello"));
}

TEST_F(FrameWindowTest, ShowsWhatTheLogicChangesWhileItWaits) {
  Form1& form = OpenClass("MATH.TYR");
  form.Caption = "Another";
  QEventLoop loop;  // one that blocks, as a Portal's does
  QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
  loop.exec();
  EXPECT_EQ(window->Current()->windowTitle(), QStringLiteral("Another"));
}

TEST_F(FrameWindowTest, APressThatWaitedBehindAPortalIsDropped) {
  RecordPortals();
  OpenClass("MATH.TYR");
  QDialog portal;
  QTimer::singleShot(0, &portal, [&] {
    window->CurrentMenu().Action(QStringLiteral("mnuAdd"))->trigger();
    Settle();
    portal.reject();
  });
  portal.exec();
  Settle();
  EXPECT_TRUE(portals_asked_for.empty());
}

TEST_F(FrameWindowTest, AboutTellsNameVersionAndLicence) {
  QString text;
  QTimer::singleShot(0, window.get(), [&text] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text() + box->informativeText();
    box->reject();
  });
  window->ShowAbout();
  EXPECT_TRUE(text.contains(QStringLiteral("Tallyroll " TALLYROLL_VERSION)));
  EXPECT_TRUE(text.contains(QStringLiteral("General Public License")));
}

TEST_F(FrameWindowTest, KeepsItsSizeBetweenRuns) {
  window->resize(777, 555);
  EXPECT_TRUE(window->close());
  window.reset();
  window = std::make_unique<FrameWindow>();
  EXPECT_EQ(window->size(), QSize(777, 555));
}

}  // namespace
}  // namespace tallyroll
