// SPDX-License-Identifier: GPL-3.0-or-later
// A shell menu drawn as Qt menus.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QWidget>

#include "desktop/window/menu_view.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

Menu FileMenu() {
  Menu menu;
  menu.Add({.name = "mnuFile", .caption = "&File"});
  menu.Add({.name = "mnuNew", .caption = "&New", .level = 1});
  menu.Add({.name = "mnuown", .caption = "Use the &Program", .level = 2, .shortcut = "Ctrl+N"});
  menu.Add({.name = "mnuwizard", .caption = "Use the &Wizard", .level = 2});
  menu.Add({.level = 1});
  menu.Add({.name = "mnuclose", .caption = "&Close ", .level = 1, .status = "Close \xE9"});
  menu.Add({.name = "mnuHelp", .caption = "&Help"});
  menu.Add({.name = "mnuAbout", .caption = "&About", .level = 1});
  return menu;
}

class MenuTest : public testing::Test {
 protected:
  QAction* Action(const char* name) { return view.Action(QString::fromLatin1(name)); }

  Menu menu = FileMenu();
  QWidget parent;
  MenuView view{menu, &parent};
};

// An entry that is off says why as a tip; what can be pressed needs none.
TEST_F(MenuTest, AnEntryThatIsOffTellsWhy) {
  Menu of_class;
  of_class.Add({.name = "mnuFile", .caption = "&File"});
  of_class.Add({.name = "mnupasschange", .caption = "&Change", .level = 1, .enabled = false});
  MenuView shown(of_class, &parent);
  QAction* change = shown.Action(QStringLiteral("mnupasschange"));
  EXPECT_EQ(change->toolTip(), QStringLiteral("The class has no password."));
  EXPECT_TRUE(shown.Action(QStringLiteral("mnuFile"))->menu()->toolTipsVisible());
  of_class.Enable("mnupasschange", true);
  shown.Sync();
  EXPECT_NE(change->toolTip(), QStringLiteral("The class has no password."));
}

TEST_F(MenuTest, PutsHeadingsIntoTheBarAndEntriesIntoTheirMenus) {
  QMenuBar bar;
  view.ShowIn(&bar);
  EXPECT_EQ(bar.actions(), (QList<QAction*>{Action("mnuFile"), Action("mnuHelp")}));
  const QList<QAction*> file = Action("mnuFile")->menu()->actions();
  ASSERT_EQ(file.size(), 3);
  EXPECT_EQ(file[0], Action("mnuNew"));
  EXPECT_TRUE(file[1]->isSeparator());
  EXPECT_EQ(file[2], Action("mnuclose"));
  EXPECT_EQ(Action("mnuNew")->menu()->actions(),
            (QList<QAction*>{Action("mnuown"), Action("mnuwizard")}));
  EXPECT_EQ(Action("mnuHelp")->menu()->actions(), QList<QAction*>{Action("mnuAbout")});
}

TEST_F(MenuTest, TakesThePlaceOfWhatStoodInTheBar) {
  Menu other;
  other.Add({.name = "mnuEdit", .caption = "&Edit"});
  other.Add({.name = "mnuUndo", .caption = "&Undo", .level = 1});
  MenuView second(other, &parent);
  QMenuBar bar;
  view.ShowIn(&bar);
  second.ShowIn(&bar);
  EXPECT_EQ(bar.actions(), QList<QAction*>{second.Action(QStringLiteral("mnuEdit"))});
  view.ShowIn(&bar);
  EXPECT_EQ(bar.actions().size(), 2);
}

TEST_F(MenuTest, ShowsCaptionShortcutAndStatus) {
  EXPECT_EQ(Action("mnuclose")->text(), QStringLiteral("&Close "));
  EXPECT_EQ(Action("mnuclose")->statusTip(), QStringLiteral("Close \u00e9"));
  EXPECT_EQ(Action("mnuown")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
  EXPECT_TRUE(Action("mnuwizard")->shortcut().isEmpty());
}

TEST_F(MenuTest, FollowsTheModel) {
  menu.Enable("mnuclose", false);
  menu.Check("mnuown", true);
  menu["mnuwizard"].visible = false;
  menu["mnuAbout"].caption = "About &It";
  EXPECT_TRUE(Action("mnuclose")->isEnabled());
  view.Sync();
  EXPECT_FALSE(Action("mnuclose")->isEnabled());
  EXPECT_TRUE(Action("mnuown")->isChecked());
  EXPECT_FALSE(Action("mnuwizard")->isVisible());
  EXPECT_EQ(Action("mnuAbout")->text(), QStringLiteral("About &It"));
  menu.Enable("mnuclose", true);
  menu.Check("mnuown", false);
  view.Sync();
  EXPECT_TRUE(Action("mnuclose")->isEnabled());
  EXPECT_FALSE(Action("mnuown")->isChecked());
}

TEST_F(MenuTest, GreysTheHeadingOfAMenu) {
  menu.Enable("mnuNew", false);
  view.Sync();
  EXPECT_FALSE(Action("mnuNew")->isEnabled());
}

TEST_F(MenuTest, KeepsACheckAsTheModelSaysAfterAPress) {
  menu.Check("mnuown", true);
  view.Sync();
  Press(view, "mnuown");  // Qt takes the check away
  view.Sync();
  EXPECT_TRUE(Action("mnuown")->isChecked());
}

TEST_F(MenuTest, TellsOfAPressOnlyAfterThePressHasAnswered) {
  QSignalSpy pressed(&view, &MenuView::Pressed);
  Action("mnuown")->trigger();
  EXPECT_EQ(pressed.count(), 0);
  Settle();
  ASSERT_EQ(pressed.count(), 1);
  EXPECT_EQ(pressed[0][0].toString(), QStringLiteral("mnuown"));
}

TEST_F(MenuTest, ShowsNothingOnceTheDataWentAway) {
  auto gone = std::make_unique<Menu>(FileMenu());
  MenuView orphan(*gone, &parent);
  orphan.LetGo();
  gone.reset();
  orphan.Sync();
  QMenuBar bar;
  orphan.ShowIn(&bar);
  EXPECT_TRUE(bar.actions().isEmpty());
}

}  // namespace
}  // namespace tallyroll
