// SPDX-License-Identifier: GPL-3.0-or-later
// The side panel and the status line of a class window, by keys and mouse.
#include "desktop/panel/side_panel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "desktop/grid/grid_widget.h"
#include "desktop/panel/missing_line.h"
#include "desktop/style/appearance.h"
#include "desktop/window/class_window_view.h"
#include "store/class_defaults.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

constexpr QSize kWide(1500, 800), kNarrow(900, 600);

// Adams and Brown with a quiz of 10 and a test of 100, by points.
class SidePanelTest : public FrameTest {
 protected:
  SidePanelTest() {
    QSettings().remove(QStringLiteral("Panel"));
    window->resize(kWide);
    OpenClass("MATH.TYR");
    Class& c = Classes[1];
    c.Method = 2;
    c.NumInstruments = 2;
    ReDimPreserve(c.Instruments, 2);
    c.Instruments[2].title = "Unit Test";
    c.Instruments[2].code = "T1";
    c.Instruments[2].mvalue = 100;
    for (std::size_t s : {1U, 2U}) ReDimPreserve(c.Students[s].Marks, 2, ShortText("80"));
    PrepareWeights();
    Refill();
  }
  ~SidePanelTest() override { QSettings().remove(QStringLiteral("Panel")); }

  void Refill() {
    Current().InstrumentUse.assign(3, Currency::FromWhole(1));
    form().showform3();
    window->Sync();
    Rest();
  }
  static Form1& form() { return *ClassWindows[1]; }
  ClassWindowView& view() const { return *window->Current(); }
  GridWidget& grid() const { return *view().findChild<GridWidget*>(); }
  SidePanel& panel() const { return *view().findChild<SidePanel*>(); }
  // Longer than the keys rest.
  static void Rest() {
    QTest::qWait(80);
    Settle();
  }
  // The text of a label that is shown; "-" of one that is not.
  QString Said(const char* name) const {
    const auto* label = view().findChild<QLabel*>(QString::fromLatin1(name));
    return label != nullptr && label->isVisible() ? label->text() : QStringLiteral("-");
  }
  MissingLine& Missing() const { return *panel().findChild<MissingLine*>(); }
  // Gives Adams a missing test and goes to his quiz.
  void MissATest() {
    Classes[1].Students[1].Marks[2] = "NON";
    Refill();
    grid().MoveTo(2, 2);
    Rest();
  }
};

// 7 of 10 and 80 of 100 are 87 of 110: 79.09.
TEST_F(SidePanelTest, TellsOfTheStudentAndTheGradeOfTheCell) {
  EXPECT_EQ(Said("name"), QStringLiteral("Al Adams"));
  EXPECT_EQ(Said("id"), QStringLiteral("ID 11"));
  EXPECT_EQ(Said("average"), QStringLiteral("79.09"));
  EXPECT_EQ(Said("final"), QStringLiteral("80 B-"));
  EXPECT_EQ(Said("title"), QStringLiteral("First Quiz"));
  EXPECT_EQ(Said("mark"), QStringLiteral("7"));
  EXPECT_EQ(Said("to_pass"), QStringLiteral("6.5"));
  EXPECT_EQ(Said("counts"), QStringLiteral("2 counted  \u00b7  0 missing  \u00b7  0 failing"));
  EXPECT_EQ(panel().findChild<QLabel*>(QStringLiteral("average"))->accessibleName(),
            QStringLiteral("Average 79.09"));
}

TEST_F(SidePanelTest, FollowsTheArrowsWhenTheKeysRest) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right}) {
    QTest::keyClick(&grid(), key);
    QApplication::processEvents();
  }
  EXPECT_EQ(Said("name"), QStringLiteral("Al Adams"));
  Rest();
  EXPECT_EQ(Said("name"), QStringLiteral("Bea Brown"));
  EXPECT_EQ(Said("title"), QStringLiteral("Unit Test"));
  QTest::keyClick(&grid(), Qt::Key_Down);
  Rest();
  EXPECT_EQ(Said("name"), QStringLiteral("-"));
  EXPECT_EQ(Said("nothing"), QStringLiteral("No student stands in this row"));
  EXPECT_EQ(Said("title"), QStringLiteral("Unit Test"));
  QTest::keyClick(&grid(), Qt::Key_Right);
  Rest();
  EXPECT_EQ(Said("nothing"), QStringLiteral("Choose a mark to see more of it here"));
}

TEST_F(SidePanelTest, FollowsWhatAPortalChangedOnceItIsLeft) {
  QDialog portal;
  QTimer::singleShot(0, &portal, [&] {
    Classes[1].Students[1].Marks[2] = "90";
    form().showform3();
    Rest();
    EXPECT_EQ(Said("average"), QStringLiteral("79.09"));
    portal.reject();
  });
  portal.exec();
  window->Sync();
  Rest();
  EXPECT_EQ(Said("average"), QStringLiteral("88.18"));  // 97 of 110
}

TEST_F(SidePanelTest, HidesItselfInANarrowWindowAndComesBack) {
  const auto* button = view().findChild<QToolButton*>(QStringLiteral("panel"));
  EXPECT_TRUE(panel().isVisible());
  window->resize(kNarrow);
  Settle();
  EXPECT_FALSE(panel().isVisible());
  EXPECT_FALSE(button->isChecked());
  EXPECT_FALSE(form().menu["mnupanel"].checked);
  window->resize(kWide);
  Settle();
  EXPECT_TRUE(panel().isVisible());
  EXPECT_TRUE(button->isChecked());
  EXPECT_EQ(Said("name"), QStringLiteral("Al Adams"));
}

TEST_F(SidePanelTest, F4ShowsAndHidesItWhateverTheRoom) {
  QTest::keyClick(&grid(), Qt::Key_F4);
  Settle();
  EXPECT_FALSE(panel().isVisible());
  EXPECT_FALSE(form().menu["mnupanel"].checked);
  window->resize(kNarrow);
  Settle();
  QTest::keyClick(&grid(), Qt::Key_F4);
  Rest();
  EXPECT_TRUE(panel().isVisible());
  EXPECT_TRUE(form().menu["mnupanel"].checked);
  EXPECT_EQ(Said("name"), QStringLiteral("Al Adams"));
}

TEST_F(SidePanelTest, TheWishIsKept) {
  auto* button = view().findChild<QToolButton*>(QStringLiteral("panel"));
  EXPECT_TRUE(button->isChecked());
  QTest::mouseClick(button, Qt::LeftButton);
  Settle();
  EXPECT_FALSE(button->isChecked());
  EXPECT_FALSE(panel().isVisible());
  OpenClass("ART.TYR");
  EXPECT_FALSE(panel().isVisible());
  QTest::keyClick(&grid(), Qt::Key_F4);
  OpenClass("BIO.TYR");
  EXPECT_TRUE(panel().isVisible());
}

TEST_F(SidePanelTest, AClickOnAMissingMarkMovesTheCell) {
  RecordPortals();
  MissATest();
  EXPECT_EQ(Missing().accessibleName(), QStringLiteral("Missing: NON Unit Test"));
  QTest::mouseClick(&Missing(), Qt::LeftButton);
  Rest();
  EXPECT_EQ(form().Grid1.Row, 2);
  EXPECT_EQ(form().Grid1.Col, 3);
  EXPECT_EQ(Said("title"), QStringLiteral("Unit Test"));
  EXPECT_TRUE(portals_asked_for.empty());
}

TEST_F(SidePanelTest, ADoubleClickOnAMissingMarkDoesWhatTheCellsWould) {
  RecordPortals();
  MissATest();
  QTest::mouseClick(&Missing(), Qt::LeftButton);
  QTest::mouseDClick(&Missing(), Qt::LeftButton);
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
  EXPECT_EQ(CurrentStudent, 2);  // the grade
}

TEST_F(SidePanelTest, TheMissingMarksAreReachedByKeys) {
  RecordPortals();
  MissATest();
  grid().setFocus();
  QTest::keyClick(&grid(), Qt::Key_F6);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  ASSERT_EQ(QApplication::focusWidget(), &Missing());
  QTest::keyClick(&Missing(), Qt::Key_Space);
  Settle();
  EXPECT_EQ(form().Grid1.Col, 3);
  QTest::keyClick(&Missing(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(portals_asked_for, std::vector<std::string>{"frmEmarks"});
  EXPECT_TRUE(grid().hasFocus());  // the Portal is left into the table
  QTest::keyClick(&grid(), Qt::Key_F6);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  QTest::keyClick(&Missing(), Qt::Key_F6);
  EXPECT_TRUE(grid().hasFocus());
  QTest::keyClick(&grid(), Qt::Key_F6);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  QTest::keyClick(&Missing(), Qt::Key_F4);
  Settle();
  EXPECT_TRUE(grid().hasFocus());  // what had it is hidden
}

TEST_F(SidePanelTest, FourMissingMarksAreListedAndTheOthersCounted) {
  Class& c = Classes[1];
  c.NumInstruments = 6;
  ReDimPreserve(c.Instruments, 6);
  for (std::size_t j = 3; j <= 6; ++j) c.Instruments[j].mvalue = 10;
  for (std::size_t s : {1U, 2U}) ReDimPreserve(c.Students[s].Marks, 6, ShortText("ABS"));
  c.InstrumentUse.assign(7, Currency::FromWhole(1));
  form().showform3();
  window->Sync();
  Rest();
  EXPECT_EQ(Said("missing_count"), QStringLiteral("4"));
  EXPECT_EQ(Said("more_missing"), QStringLiteral("-"));
  c.Students[1].Marks[1] = "CUT";
  form().showform3();
  window->Sync();
  Rest();
  EXPECT_EQ(Said("missing_count"), QStringLiteral("5"));
  EXPECT_EQ(Said("more_missing"), QStringLiteral("and 1 more"));
}

TEST_F(SidePanelTest, TheRankIsToldByWishAlone) {
  EXPECT_EQ(Said("rank"), QStringLiteral("-"));
  Classes[1].Students[2].Marks[2] = "90";
  Refill();
  QTimer::singleShot(0, &panel(), [] {
    QWidget* menu = QApplication::activePopupWidget();
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, panel().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(panel().viewport(), &event);
  Rest();
  EXPECT_EQ(Said("rank"), QStringLiteral("2 / 2"));
}

TEST_F(SidePanelTest, AClassWithoutAMethodIsLedToOne) {
  Classes[1].Method = 5;
  Refill();
  EXPECT_EQ(Said("no_method"), QStringLiteral("No method chosen yet"));
  EXPECT_EQ(Said("average"), QStringLiteral("-"));
  EXPECT_EQ(Said("class_average_of_all"), QStringLiteral("-"));
  EXPECT_EQ(Said("method"), QStringLiteral("No method yet"));
  QTest::mouseClick(panel().findChild<QToolButton*>(QStringLiteral("make_up")), Qt::LeftButton);
  Settle();
  QMenu* menu = view().menu().Action(QStringLiteral("mnuequalW"))->menu();
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(SidePanelTest, TheStatusLineTellsOfTheClass) {
  EXPECT_EQ(Said("class"), QStringLiteral("MATH.TYR"));
  EXPECT_EQ(Said("students"), QStringLiteral("2 students"));
  EXPECT_EQ(Said("grades"), QStringLiteral("2 grades"));
  EXPECT_EQ(Said("method"), QStringLiteral("Points"));
  EXPECT_EQ(Said("class_average_of_all"), QStringLiteral("Class average 79.09"));
  Classes[1].description = "Mathematics 8";
  Refill();
  EXPECT_EQ(Said("class"), QStringLiteral("Mathematics 8"));
}

TEST_F(SidePanelTest, TheClassGivesWayToTheMessageWhereTheRoomIsSmall) {
  Classes[1].description = "A class with a rather long description";
  Refill();
  window->resize(kNarrow);
  Settle();
  EXPECT_EQ(Said("class_average_of_all"), QStringLiteral("Class average 79.09"));
  window->resize(420, 500);
  Settle();
  EXPECT_EQ(Said("class"), QStringLiteral("-"));
  EXPECT_NE(Said("StatusBar1"), QStringLiteral("-"));
}

TEST_F(SidePanelTest, ADotStandsWhileTheClassIsNotSaved) {
  Classes[1].Changed = kFalse;
  window->Sync();
  EXPECT_EQ(Said("not_saved"), QStringLiteral("-"));
  Classes[1].Changed = kTrue;
  window->Sync();
  EXPECT_EQ(Said("not_saved"), QStringLiteral("not saved"));
  PressMenu("mnusave");
  EXPECT_EQ(Said("not_saved"), QStringLiteral("-"));
}

TEST_F(SidePanelTest, TheStatusLineOffersHowMuchStandsOnTheScreen) {
  auto* button = view().findChild<QToolButton*>(QStringLiteral("density"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->accessibleName(), QStringLiteral("How much stands on the screen"));
  EXPECT_NE(button->focusPolicy() & Qt::TabFocus, 0);
  QTimer::singleShot(0, button, [button] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_EQ(menu, button->menu());
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_TRUE(menu->actions().at(1)->isChecked());  // Normal
    QTest::keyClick(menu, Qt::Key_C);
  });
  QTest::mouseClick(button, Qt::LeftButton);
  Settle();
  EXPECT_EQ(Appearance::Instance()->density(), Density::kCompact);
  Appearance::Instance()->SetDensity(Density::kNormal);
}

}  // namespace
}  // namespace tallyroll
