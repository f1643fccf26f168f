// SPDX-License-Identifier: GPL-3.0-or-later
// A window is as large as what it shows needs, and grows when a press shows more.
#include <QAbstractButton>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

#include "attendance/frmAtsum.h"
#include "desktop/portal/scrolling_body.h"
#include "seating/frmseating.h"
#include "shell/frmclassinfo.h"
#include "store/text/frmtxt.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class TakeRoomTest : public ClassDialogs {
 protected:
  TakeRoomTest() { Current().SlotState = 10; }  // as an open one
  ~TakeRoomTest() override { dialog.reset(); }

  // In the size that it takes by itself.
  void OpenAsItIs(Portal& portal) {
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void Press(const char* button) {
    QTest::mouseClick(&Find<QAbstractButton>(button), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  // How far the body can be scrolled down and to the right.
  QSize Hidden() {
    const auto* body = dialog->findChild<QScrollArea*>();
    return {body->horizontalScrollBar()->maximum(), body->verticalScrollBar()->maximum()};
  }

  frmAtsum summary;
  frmclassinfo information;
  frmtxt text;
  frmseating seating;
};

TEST_F(TakeRoomTest, WrappedWordsBesideASheetMakeNothingScroll) {
  Open(summary);
  dialog->resize(1000, 560);
  QCoreApplication::processEvents();
  EXPECT_EQ(Hidden(), QSize(0, 0));
  Press("Summary");
  EXPECT_EQ(Hidden(), QSize(0, 0)) << "the sheet of a range is wider";
}

TEST_F(TakeRoomTest, ASheetThatLacksLittleIsWantedWhole) {
  Open(summary);
  Press("Summary");
  auto* body = dialog->findChild<ScrollingBody*>();
  const int left = grid().mapTo(dialog.get(), QPoint(0, 0)).x();
  const int margin = dialog->layout()->contentsMargins().right();
  // How wide its columns are beside its least width is a matter of the font: here a sixteenth more.
  grid().setMinimumWidth(grid().WholeWidth() * 15 / 16);
  const int wanted = left + grid().WholeWidth() + margin;
  EXPECT_GE(RoomWanted(*dialog, body).width(), wanted);
  dialog->resize(wanted, 560);
  QCoreApplication::processEvents();
  EXPECT_EQ(grid().width(), grid().WholeWidth());
}

TEST_F(TakeRoomTest, ASheetStandsBesideWhatActsOnItInFullHeight) {
  Open(summary);
  const QPoint place = grid().mapTo(dialog.get(), QPoint(0, 0));
  const auto& option = Find<QRadioButton>("Hand");
  EXPECT_GT(place.x(), option.mapTo(dialog.get(), QPoint(option.width(), 0)).x());
  EXPECT_LE(place.y(), option.mapTo(dialog.get(), QPoint(0, 0)).y());
}

TEST_F(TakeRoomTest, AWindowIsAsHighAsItsPage) {
  OpenState = kImportNames;
  OpenAsItIs(text);
  const int low = dialog->height();
  EXPECT_LE(low, 220) << "three options and two buttons";
  Press("okbt");
  EXPECT_EQ(text.framecontrol.Current, 1);
  EXPECT_GE(dialog->height(), low + 60) << "six options";
  EXPECT_EQ(Hidden(), QSize(0, 0));
}

TEST_F(TakeRoomTest, TheSizeKeptOfALowPageDoesNotCutAHighOne) {
  OpenState = kImportNames;
  OpenAsItIs(text);
  dialog->SaveAndHide();
  Find<QStackedWidget>("framecontrol").setCurrentIndex(1);
  dialog->RestoreAndShow();
  QCoreApplication::processEvents();
  EXPECT_EQ(Hidden(), QSize(0, 0));
}

TEST_F(TakeRoomTest, AWindowMadeSmallStaysSmallWhileNothingNewIsShown) {
  OpenAsItIs(summary);
  const QSize small(dialog->width(), 320);
  dialog->resize(small);
  Press("Hand");
  EXPECT_TRUE(Find<QLineEdit>("Title").isVisible());
  EXPECT_EQ(dialog->size(), small);
}

TEST_F(TakeRoomTest, ListsBesideOneAnotherBeginAtOneHeightHoweverLongTheirWordsAre) {
  Open(seating);
  dialog->focusWidget()->clearFocus();
  Find<QStackedWidget>("step").setCurrentIndex(1);
  dialog->resize(700, 500);
  QCoreApplication::processEvents();
  const auto& left = Find<QListWidget>("column");
  const auto& right = Find<QListWidget>("seatsrow");
  EXPECT_EQ(left.mapTo(dialog.get(), QPoint(0, 0)).y(),
            right.mapTo(dialog.get(), QPoint(0, 0)).y());
  EXPECT_EQ(left.height(), right.height());
}

TEST_F(TakeRoomTest, BothDatesOfATermStandInOneRow) {
  OpenAsItIs(information);
  const auto row_of = [this](const char* field) {
    const auto& edit = Find<QLineEdit>(field);
    return edit.mapTo(dialog.get(), QPoint(0, 0)).y();
  };
  EXPECT_EQ(row_of("tempstart"), row_of("tempend"));
  EXPECT_EQ(Find<QLineEdit>("tempstart").width(), Find<QLineEdit>("tempend").width());
  EXPECT_EQ(Hidden(), QSize(0, 0));
}

}  // namespace
}  // namespace tallyroll
