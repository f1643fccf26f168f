// SPDX-License-Identifier: GPL-3.0-or-later
// The help window and its pages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <set>

#include "desktop/basics/text_conversion.h"
#include "desktop/window/help_topics.h"
#include "desktop/window/help_window.h"
#include "shell/class_menu.h"

namespace tallyroll {
namespace {

QString PageText(const QString& name) {
  QFile file(QStringLiteral(":/help/") + name);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

std::vector<QString> LinksOf(const QString& page) {
  static const QRegularExpression kLink(QStringLiteral("href=\"([^\"]*)\""));
  std::vector<QString> links;
  for (const auto& match : kLink.globalMatch(page)) links.push_back(match.captured(1));
  return links;
}

TEST(HelpPages, EveryContextHasAPageWithATitle) {
  for (int context : HelpContexts()) {
    const QString page = PageText(HelpPage(context).fileName());
    EXPECT_TRUE(page.contains(QStringLiteral("<h1>"))) << context;
  }
}

TEST(HelpPages, OpeningAndSavingHaveTheContextsOfTheirDialogs) {
  EXPECT_TRUE(PageText(HelpPage(110).fileName()).contains(QStringLiteral("Opening a class")));
  EXPECT_TRUE(PageText(HelpPage(120).fileName()).contains(QStringLiteral("Saving a class")));
}

TEST(HelpPages, AnUnknownContextLeadsToTheContents) {
  EXPECT_EQ(HelpPage(99999), HelpPage(0));
  EXPECT_EQ(HelpPage(-1), HelpPage(0));
}

TEST(HelpPages, EveryLinkLeadsSomewhere) {
  int links = 0;
  for (int context : HelpContexts()) {
    for (const QString& link : LinksOf(PageText(HelpPage(context).fileName()))) {
      EXPECT_TRUE(QFile::exists(QStringLiteral(":/help/") + link))
          << context << ": " << link.toStdString();
      ++links;
    }
  }
  EXPECT_GT(links, 0);
}

TEST(HelpPages, EveryPageIsReachedFromTheContents) {
  const QString contents = PageText(HelpPage(0).fileName());
  for (int context : HelpContexts()) {
    if (context == 0) continue;
    EXPECT_TRUE(contents.contains(HelpPage(context).fileName())) << context;
  }
}

TEST(HelpPages, NoPageIsLeftWithoutAContext) {
  std::set<QString> known;
  for (int context : HelpContexts()) known.insert(HelpPage(context).fileName());
  const QStringList pages = QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")});
  EXPECT_EQ(std::set<QString>(pages.begin(), pages.end()), known);
}

TEST(HelpPages, TheKeysOfTheMenuStandOnTheirPage) {
  const QString keys = PageText(HelpPage(210).fileName());
  int shortcuts = 0;
  for (const ClassMenuRow& row : ClassMenuRows()) {
    if (row.shortcut.empty()) continue;
    EXPECT_TRUE(keys.contains(QStringLiteral("<b>%1</b>").arg(FromText(row.shortcut))))
        << row.shortcut;
    ++shortcuts;
  }
  EXPECT_GT(shortcuts, 0);
}

// What each page tells of a case that it once told wrongly.
TEST(HelpPages, TellWhatTheProgramDoes) {
  const std::vector<std::pair<int, const char*>> told = {
      {110, "What could be read of it is opened all the same"},
      {130, "If there is a MATH.ol6 as well, both stay as they are and no further backup is made"},
      {140, "opened or saved under a new name last"},
      {200, "or only one of them"},
      {210, "most ask first if something was entered"},
      {160, "what is longer than its column is cut"},
      {250, "If the ID is taken here, give another one"},
      {250, "most western European languages"},
      {260, "it asks first if you have changed something"},
  };
  for (const auto& [context, text] : told) {
    const QString page = PageText(HelpPage(context).fileName()).simplified();
    EXPECT_TRUE(page.contains(QString::fromLatin1(text))) << context << ": " << text;
  }
}

TEST(HelpPages, HaveNoScripts) {
  for (int context : HelpContexts()) {
    EXPECT_FALSE(PageText(HelpPage(context).fileName()).contains(QStringLiteral("<script")));
  }
}

class HelpWindowTest : public testing::Test {
 protected:
  QAction* Action(const char* text) {
    for (QAction* action : help.findChildren<QAction*>()) {
      if (action->text() == QString::fromLatin1(text)) return action;
    }
    ADD_FAILURE() << "no action " << text;
    return new QAction(&help);
  }
  QString Shown() const { return help.browser()->source().fileName(); }

  HelpWindow help{nullptr};
};

TEST_F(HelpWindowTest, ShowsThePageOfAContext) {
  help.ShowTopic(110);
  EXPECT_TRUE(help.browser()->toPlainText().startsWith(QStringLiteral("Opening a class")));
}

TEST_F(HelpWindowTest, GoesBackForwardAndToTheContents) {
  help.ShowTopic(0);
  EXPECT_FALSE(Action("Back")->isEnabled());
  help.ShowTopic(110);
  Action("Back")->trigger();
  EXPECT_EQ(Shown(), QStringLiteral("topic_0.html"));
  Action("Forward")->trigger();
  EXPECT_EQ(Shown(), QStringLiteral("topic_110.html"));
  EXPECT_FALSE(Action("Forward")->isEnabled());
  Action("Contents")->trigger();
  EXPECT_EQ(Shown(), QStringLiteral("topic_0.html"));
}

TEST_F(HelpWindowTest, FollowsALink) {
  help.ShowTopic(0);
  help.browser()->setSource(QUrl(QStringLiteral("topic_230.html")));
  EXPECT_TRUE(help.browser()->toPlainText().contains(QStringLiteral("wizard")));
}

TEST_F(HelpWindowTest, FindsWordsAndBeginsAgainAtTheTop) {
  help.ShowTopic(110);
  auto* find = help.findChild<QLineEdit*>(QStringLiteral("find"));
  find->setText(QStringLiteral("recent classes"));
  EXPECT_TRUE(help.FindNext());
  const int first = help.browser()->textCursor().position();
  EXPECT_EQ(help.browser()->textCursor().selectedText(), QStringLiteral("recent classes"));
  EXPECT_TRUE(help.FindNext());  // the page has it once
  EXPECT_EQ(help.browser()->textCursor().position(), first);
}

TEST_F(HelpWindowTest, SaysWhenWordsAreNotThere) {
  help.ShowTopic(110);
  EXPECT_TRUE(help.statusBar()->isHidden());
  help.findChild<QLineEdit*>(QStringLiteral("find"))->setText(QStringLiteral("zebra"));
  EXPECT_FALSE(help.FindNext());
  EXPECT_EQ(help.statusBar()->currentMessage(), QStringLiteral("\"zebra\" is not on this page."));
  EXPECT_FALSE(help.statusBar()->isHidden());
  help.ShowTopic(0);
  EXPECT_TRUE(help.statusBar()->isHidden());
}

TEST(HelpOnTop, KeepsOneWindowForTheFrame) {
  QWidget frame;
  ShowHelpTopic(&frame, 110);
  ShowHelpTopic(&frame, 120);
  ASSERT_EQ(frame.findChildren<HelpWindow*>().size(), 1);
  EXPECT_EQ(frame.findChild<HelpWindow*>()->browser()->source(), HelpPage(120));
}

TEST(HelpOnTop, BelongsToThePortalThatAskedForIt) {
  QWidget frame;
  QDialog portal;
  QTimer::singleShot(0, &portal, [&] {
    ShowHelpTopic(&frame, 110);
    EXPECT_NE(portal.findChild<HelpWindow*>(), nullptr);
    portal.reject();
  });
  portal.exec();
  EXPECT_EQ(frame.findChild<HelpWindow*>(), nullptr);
}

}  // namespace
}  // namespace tallyroll
