// SPDX-License-Identifier: GPL-3.0-or-later
// Lists whose lines have boxes to tick.
#include <QAbstractButton>
#include <QAccessible>
#include <QListWidget>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <algorithm>

#include "tests/desktop/portal/everything_portal.h"

namespace tallyroll {
namespace {

using Ticks = std::vector<bool>;

class ListChecksTest : public EverythingTest {
 protected:
  ListChecksTest() {
    portal.list.Checks = true;
    portal.list.Checked = {false, true, false};
  }

  QListWidget& list() { return Find<QListWidget>("list"); }
  Qt::CheckState StateOf(int line) { return list().item(line)->checkState(); }
  QPoint BoxOf(int line) {
    QStyleOptionViewItem option;
    option.initFrom(&list());
    option.rect = list().visualItemRect(list().item(line));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = list().item(line)->text();
    return list()
        .style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list())
        .center();
  }
};

TEST_F(ListChecksTest, TheTicksOfTheControlAreShown) {
  Open();
  EXPECT_EQ(StateOf(0), Qt::Unchecked);
  EXPECT_EQ(StateOf(1), Qt::Checked);
  EXPECT_EQ(StateOf(2), Qt::Unchecked);
  EXPECT_TRUE(list().item(0)->data(Qt::CheckStateRole).isValid());
}

TEST_F(ListChecksTest, AScreenReaderIsToldWhichLinesAreTicked) {
  Open();
  const QAccessibleInterface* lines = QAccessible::queryAccessibleInterface(&list());
  for (int line = 0; line < 3; ++line) {
    const QAccessible::State state = lines->child(line)->state();
    EXPECT_TRUE(state.checkable) << line;
    EXPECT_EQ(static_cast<bool>(state.checked), line == 1) << line;
  }
}

TEST_F(ListChecksTest, AListWithoutBoxesShowsNone) {
  portal.list.Checks = false;
  Open();
  EXPECT_FALSE(list().item(1)->data(Qt::CheckStateRole).isValid());
}

TEST_F(ListChecksTest, TheMouseTicksABoxOfTheChosenLine) {
  portal.list.ListIndex = 2;
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, BoxOf(2));
  EXPECT_EQ(portal.list.Checked, (Ticks{false, true, true}));
  const Lines events = Events();
  EXPECT_EQ(std::count(events.begin(), events.end(), "list change"), 1);
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, BoxOf(2));
  EXPECT_EQ(portal.list.Checked, (Ticks{false, true, false}));
}

TEST_F(ListChecksTest, ABoxOfAnotherLineIsTickedAndTheChoiceStays) {
  portal.list.ListIndex = 0;
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, BoxOf(1));
  EXPECT_EQ(portal.list.Checked, (Ticks{false, false, false}));
  EXPECT_EQ(portal.list.ListIndex, 0);
  EXPECT_EQ(Events(), Lines{"list change"});
}

TEST_F(ListChecksTest, TheTextOfALineTicksNothing) {
  Open();
  Focus("list");
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    list().visualItemRect(list().item(0)).center());
  EXPECT_EQ(portal.list.Checked, (Ticks{false, true, false}));
  EXPECT_EQ(portal.list.ListIndex, 0);
}

TEST_F(ListChecksTest, TheBlankKeyTicksTheChosenLine) {
  portal.list.ListIndex = 0;
  Open();
  Focus("list");
  QTest::keyClick(&list(), Qt::Key_Space);
  EXPECT_EQ(portal.list.Checked, (Ticks{true, true, false}));
  EXPECT_EQ(Events(), Lines{"list change"});
  QTest::keyClick(&list(), Qt::Key_Space);
  EXPECT_EQ(portal.list.Checked, (Ticks{false, true, false}));
}

TEST_F(ListChecksTest, AHandlerTicksAllWithoutAnEvent) {
  portal.when = [this](const std::string& line) {
    if (line == "other click") portal.list.Checked = {true, true, true};
  };
  Open();
  Focus("other");
  Find<QAbstractButton>("other").click();
  EXPECT_EQ(StateOf(0), Qt::Checked);
  EXPECT_EQ(StateOf(2), Qt::Checked);
  EXPECT_EQ(Events(), Lines{"other click"});
}

TEST_F(ListChecksTest, ANewListBringsItsOwnTicks) {
  portal.when = [this](const std::string& line) {
    if (line != "other click") return;
    portal.list.List = {"Dora", "Emil"};
    portal.list.Checked = {false, true};
  };
  Open();
  Find<QAbstractButton>("other").click();
  ASSERT_EQ(list().count(), 2);
  EXPECT_EQ(StateOf(0), Qt::Unchecked);
  EXPECT_EQ(StateOf(1), Qt::Checked);
  EXPECT_EQ(portal.list.Checked, (Ticks{false, true}));
}

TEST_F(ListChecksTest, LinesWithoutTicksOfTheirOwnAreUnticked) {
  portal.list.Checked.clear();
  Open();
  EXPECT_EQ(StateOf(2), Qt::Unchecked);
  EXPECT_EQ(portal.list.Checked, (Ticks{false, false, false}));
}

}  // namespace
}  // namespace tallyroll
