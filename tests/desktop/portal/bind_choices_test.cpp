// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include "desktop/grid/grid_widget.h"
#include "tests/desktop/portal/everything_portal.h"

namespace tallyroll {
namespace {

class BindChoicesTest : public EverythingTest {
 protected:
  QComboBox& pick() { return Find<QComboBox>("pick"); }
  QComboBox& typed() { return Find<QComboBox>("typed"); }
  QListWidget& list() { return Find<QListWidget>("list"); }
  QPoint PlaceOf(int line) { return list().visualItemRect(list().item(line)).center(); }
};

TEST_F(BindChoicesTest, TypingANameGoesToItsLine) {
  Open();
  Focus("list");
  QTest::keyClicks(&list(), QStringLiteral("ca"));
  EXPECT_EQ(portal.list.ListIndex, 2);
  EXPECT_EQ(Events(), (Lines{"list change"}));
  QTest::keyClick(&list(), Qt::Key_Backspace);
  QTest::keyClicks(&list(), QStringLiteral("z"));  // nobody
  EXPECT_EQ(portal.list.ListIndex, 2);
}

TEST_F(BindChoicesTest, TypingAnIdGoesToItsLineAndAccentsDoNotMatter) {
  portal.list.List = {"Anna\tA1", "\xC9mile\tE5", "Carl\tC3"};
  Open();
  Focus("list");
  QTest::keyClicks(&list(), QStringLiteral("em"));
  EXPECT_EQ(portal.list.ListIndex, 1);
}

TEST_F(BindChoicesTest, TickingACheckBoxRaisesChangeAndClick) {
  Open();
  Focus("tick");
  QTest::keyClick(&Find<QCheckBox>("tick"), Qt::Key_Space);
  EXPECT_EQ(Events(), (Lines{"tick change", "tick click"}));
  EXPECT_TRUE(portal.tick.Value);
}

TEST_F(BindChoicesTest, OneOptionPutsOutTheOther) {
  portal.one.Value = true;
  Open();
  Focus("two");
  Find<QRadioButton>("two").click();
  EXPECT_EQ(Events(), (Lines{"two change", "two click"}));
  EXPECT_TRUE(portal.two.Value);
  EXPECT_FALSE(portal.one.Value);
}

TEST_F(BindChoicesTest, AHandlerPutsOutAllOptions) {
  portal.one.Value = true;
  portal.when = [this](const std::string& line) {
    if (line == "other click") portal.one.Value = false;
  };
  Open();
  Find<QAbstractButton>("other").click();
  EXPECT_FALSE(Find<QRadioButton>("one").isChecked());
  EXPECT_FALSE(Find<QRadioButton>("two").isChecked());
  Find<QRadioButton>("one").click();
  Find<QRadioButton>("two").click();
  EXPECT_FALSE(Find<QRadioButton>("one").isChecked());
}

TEST_F(BindChoicesTest, ACombinationBoxMayShowNothingChosen) {
  Open();
  EXPECT_EQ(pick().count(), 3);
  EXPECT_EQ(pick().currentIndex(), -1);
}

TEST_F(BindChoicesTest, ChoosingInAComboBoxRaisesChangeAndClick) {
  Open();
  Focus("pick");
  QTest::keyClick(&pick(), Qt::Key_Down);
  EXPECT_EQ(Events(), (Lines{"pick change", "pick click"}));
  EXPECT_EQ(portal.pick.ListIndex, 0);
  EXPECT_EQ(portal.pick.Text, "red");
}

TEST_F(BindChoicesTest, ANewListShowsItsIndexAfterItsLines) {
  portal.pick.ListIndex = 0;
  portal.when = [this](const std::string& line) {
    if (line != "other click") return;
    portal.pick.List = {"north", "south"};
    portal.pick.ListIndex = -1;
  };
  Open();
  EXPECT_EQ(pick().currentText(), QStringLiteral("red"));
  Find<QAbstractButton>("other").click();
  EXPECT_EQ(pick().count(), 2);
  EXPECT_EQ(pick().currentIndex(), -1);
  EXPECT_EQ(portal.pick.ListIndex, -1);
}

TEST_F(BindChoicesTest, ANewListKeepsTheIndexThatTheControlHolds) {
  portal.pick.ListIndex = 1;
  portal.when = [this](const std::string& line) {
    if (line == "other click") portal.pick.List = {"north", "south"};
  };
  Open();
  Find<QAbstractButton>("other").click();
  EXPECT_EQ(pick().currentText(), QStringLiteral("south"));
  EXPECT_EQ(portal.pick.ListIndex, 1);
}

TEST_F(BindChoicesTest, TypingInAComboBoxIsNoChoice) {
  Open();
  Focus("typed");
  QTest::keyClicks(&typed(), QStringLiteral("tw"));
  EXPECT_EQ(Events(), (Lines{"typed change", "typed change"}));
  EXPECT_EQ(portal.typed.Text, "tw");
  EXPECT_EQ(portal.typed.ListIndex, -1);
  EXPECT_EQ(typed().currentText(), QStringLiteral("tw"));
}

TEST_F(BindChoicesTest, AChoiceInATypedComboBoxTakesItsText) {
  Open();
  Focus("typed");
  QTest::keyClicks(&typed(), QStringLiteral("x"));
  Events();
  QTest::keyClick(&typed(), Qt::Key_Down);
  EXPECT_EQ(Events(), (Lines{"typed change", "typed click"}));
  EXPECT_EQ(portal.typed.Text, "ten");
  EXPECT_EQ(portal.typed.ListIndex, 0);
}

TEST_F(BindChoicesTest, AComboBoxRefusesWhatTheCodePageLacks) {
  Open();
  Focus("typed");
  QTest::sendKeyEvent(QTest::Click, &typed(), Qt::Key_unknown, QStringLiteral(u"\u0141"),
                      Qt::NoModifier);
  EXPECT_EQ(typed().currentText(), QString());
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(BindChoicesTest, ListLinesAreSplitByTabsAndReadAsASentence) {
  Open();
  EXPECT_EQ(list().item(1)->text(), QStringLiteral("Bertha\tB2"));
  EXPECT_EQ(list().item(1)->data(Qt::AccessibleTextRole).toString(), QStringLiteral("Bertha, B2"));
}

TEST_F(BindChoicesTest, ARefusedPickLeavesTheFormerLineMarked) {
  portal.list.ListIndex = 0;
  portal.when = [this](const std::string& line) {
    if (line == "list change") portal.list.ListIndex = 0;
  };
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_EQ(list().currentRow(), 0);
  EXPECT_EQ(list().selectedItems(), QList<QListWidgetItem*>{list().item(0)});
}

TEST_F(BindChoicesTest, ARefusedFirstPickLeavesNoLineMarked) {
  portal.when = [this](const std::string& line) {
    if (line == "list change") portal.list.ListIndex = -1;
  };
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(1));
  EXPECT_EQ(list().currentRow(), -1);
  EXPECT_TRUE(list().selectedItems().isEmpty());
}

TEST_F(BindChoicesTest, AListTakesItsNameFromItsLabel) {
  Open();
  EXPECT_EQ(list().accessibleName(), QStringLiteral("List"));
}

TEST_F(BindChoicesTest, TheFocusChoosesNoLine) {
  Open();
  Events();
  list().setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Events(), (Lines{"first lost", "list got"}));
  EXPECT_EQ(portal.list.ListIndex, -1);
  EXPECT_EQ(list().currentRow(), -1);
  QTest::keyClick(&list(), Qt::Key_Down);
  EXPECT_EQ(Events(), Lines{"list change"});
  EXPECT_EQ(portal.list.ListIndex, 0);
}

TEST_F(BindChoicesTest, ChoosingALineRaisesChangeAndOneClick) {
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_EQ(Events(), (Lines{"list change", "list click"}));
  EXPECT_EQ(portal.list.ListIndex, 2);
}

TEST_F(BindChoicesTest, ClickingTheChosenLineIsAClickAndNoChange) {
  portal.list.ListIndex = 2;
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_EQ(Events(), Lines{"list click"});
}

TEST_F(BindChoicesTest, KeysWalkThroughTheLinesWithoutAClick) {
  portal.list.ListIndex = 0;
  Open();
  Focus("list");
  QTest::keyClick(&list(), Qt::Key_Down);
  QTest::keyClicks(&list(), QStringLiteral("c"));
  EXPECT_EQ(Events(), (Lines{"list change", "list change"}));
  EXPECT_EQ(portal.list.ListIndex, 2);
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_EQ(Events(), Lines{"list click"});
}

TEST_F(BindChoicesTest, AnOptionThatIsOnIsNotPressedAgain) {
  portal.one.Value = true;
  Open();
  Focus("one");
  auto& one = Find<QRadioButton>("one");
  QTest::mouseClick(&one, Qt::LeftButton, {}, QPoint(8, one.height() / 2));
  QTest::keyClick(&one, Qt::Key_Space);
  EXPECT_EQ(Events(), Lines{});
  EXPECT_TRUE(portal.one.Value);
}

TEST_F(BindChoicesTest, TheLineThatIsChosenAlreadyIsNotChosenAgain) {
  portal.pick.ListIndex = 1;
  portal.pick.Text = "green";
  Open();
  Focus("pick");
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
    pick().showPopup();
    QTest::keyClick(pick().view(), key);
    QTest::keyClick(pick().view(), key == Qt::Key_Down ? Qt::Key_Up : Qt::Key_Down);
    QTest::keyClick(pick().view(), Qt::Key_Return);
  }
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(BindChoicesTest, DoubleClickOnALine) {
  portal.list.ListIndex = 1;
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(1));
  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, PlaceOf(1));
  EXPECT_EQ(Events(), (Lines{"list click", "list dblclick"}));
}

TEST_F(BindChoicesTest, AClickBelowTheLastLineKeepsTheChoice) {
  portal.list.ListIndex = 1;
  Open();
  list().setMinimumHeight(200);
  QCoreApplication::processEvents();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    QPoint(5, list().viewport()->height() - 2));
  EXPECT_EQ(Events(), Lines{});
  EXPECT_TRUE(list().item(1)->isSelected());
}

TEST_F(BindChoicesTest, AHandlerTakesTheChoiceAway) {
  portal.list.ListIndex = 1;
  portal.when = [this](const std::string& line) {
    if (line == "other click") portal.list.ListIndex = -1;
  };
  Open();
  Find<QAbstractButton>("other").click();
  EXPECT_EQ(list().currentRow(), -1);
  EXPECT_TRUE(list().selectedItems().isEmpty());
  EXPECT_EQ(portal.list.ListIndex, -1);
}

TEST_F(BindChoicesTest, APickedTabIsShownAndTold) {
  Open();
  Focus("tabs");
  QTabBar& bar = *Find<QTabWidget>("tabs").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
  EXPECT_EQ(Events(), (Lines{"tabs change", "tabs click"}));
  EXPECT_EQ(portal.tabs.Selected, 1);
}

TEST_F(BindChoicesTest, ADateIsADaySerial) {
  Open();
  auto& day = Find<QDateEdit>("day");
  EXPECT_EQ(day.date(), QDate(2026, 9, 1));
  EXPECT_TRUE(day.calendarPopup());
  Focus("day");
  day.setSelectedSection(QDateTimeEdit::DaySection);
  QTest::keyClick(&day, Qt::Key_Up);
  EXPECT_EQ(Events(), Lines{"day change"});
  EXPECT_EQ(portal.day.Value, 46267);
}

TEST_F(BindChoicesTest, TabLeavesADateAtOnce) {
  Open();
  Focus("day");
  auto& day = Find<QDateEdit>("day");
  ASSERT_TRUE(day.hasFocus());
  QTest::keyClick(&day, Qt::Key_Tab);
  EXPECT_FALSE(day.hasFocus());
}

// A day of the calendar as it is shown, clicked with the mouse.
void ClickDay(QCalendarWidget& calendar, const QDate& day) {
  auto* view = calendar.findChild<QTableView*>();
  ASSERT_NE(view, nullptr);
  for (int row = 1; row < view->model()->rowCount(); ++row)
    for (int column = 1; column < view->model()->columnCount(); ++column) {
      const QModelIndex index = view->model()->index(row, column);
      // The first row may show the last days of the month before.
      if (index.data().toInt() != day.day() || (row == 1 && day.day() > 7)) continue;
      QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
      return;
    }
  ADD_FAILURE() << "the calendar has no day " << day.day();
}

class CalendarTest : public BindChoicesTest {
 protected:
  // Opens the calendar of the field, as the key for it does.
  QCalendarWidget& OpenCalendar() {
    auto& day = Find<QDateEdit>("day");
    QStyleOptionComboBox option;
    option.initFrom(&day);
    const QRect arrow =
        day.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &day);
    QTest::mousePress(&day, Qt::LeftButton, {}, arrow.center());
    EXPECT_TRUE(day.calendarWidget()->isVisible());
    QTest::mouseRelease(&day, Qt::LeftButton, {}, arrow.center());
    return *day.calendarWidget();
  }
};

TEST_F(CalendarTest, TheDayThatIsShownAlreadyIsAPick) {
  Open();
  Focus("day");
  ClickDay(OpenCalendar(), QDate(2026, 9, 1));
  EXPECT_EQ(Events(), Lines{"day change"});
  EXPECT_EQ(portal.day.Value, 46266);
  ClickDay(OpenCalendar(), QDate(2026, 9, 1));
  EXPECT_EQ(Events(), Lines{"day change"});
}

TEST_F(CalendarTest, AnotherDayIsOnePick) {
  Open();
  Focus("day");
  ClickDay(OpenCalendar(), QDate(2026, 9, 3));
  EXPECT_EQ(Events(), Lines{"day change"});
  EXPECT_EQ(portal.day.Value, 46268);
  EXPECT_FALSE(Find<QDateEdit>("day").calendarWidget()->isVisible());
}

TEST_F(CalendarTest, EnterPicksTheDayThatIsShown) {
  Open();
  Focus("day");
  QTest::keyClick(OpenCalendar().findChild<QTableView*>(), Qt::Key_Return);
  EXPECT_EQ(Events(), Lines{"day change"});
}

TEST_F(BindChoicesTest, ADateThatNobodyPickedKeepsItsTimeOfDay) {
  portal.day.Value = 46266.75;
  Open();
  Find<QAbstractButton>("other").click();
  EXPECT_EQ(portal.day.Value, 46266.75);
}

TEST_F(BindChoicesTest, AClickInTheGridMovesTheCurrentCell) {
  Open();
  auto& grid = Find<GridWidget>("grid");
  grid.setFixedSize(500, 200);
  QTest::qWait(1);
  Focus("grid");
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.CellRect(2, 2).center());
  EXPECT_EQ(Events(), (Lines{"grid change", "grid click"}));
  EXPECT_EQ(portal.grid.Row, 2);
  EXPECT_EQ(portal.grid.MouseCol, 2);
}

TEST_F(BindChoicesTest, EnterInTheGridIsTheDoubleClickOfTheKeyboard) {
  Open();
  Focus("grid");
  QTest::keyClick(&Find<GridWidget>("grid"), Qt::Key_Return);
  EXPECT_EQ(Events(), Lines{"grid dblclick"});
  EXPECT_EQ(portal.grid.MouseRow, 1);
  EXPECT_EQ(portal.grid.MouseCol, 1);
}

}  // namespace
}  // namespace tallyroll
