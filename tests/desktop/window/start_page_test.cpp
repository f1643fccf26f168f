// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame shows while no class is open.
#include "desktop/window/start_page.h"

#include <gtest/gtest.h>

#include <QCommandLinkButton>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include "desktop/style/tokens.h"
#include "desktop/window/page_button.h"
#include "shell/data_folder.h"
#include "shell/recent_facts.h"
#include "store/settings.h"
#include "tests/desktop/style/looks.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class StartPageTest : public FrameTest {
 protected:
  StartPage* page() const { return window->findChild<StartPage*>(); }
  QCommandLinkButton* Button(const char* entry) const {
    return page()->findChild<QCommandLinkButton*>(QString::fromLatin1(entry));
  }
};

TEST_F(StartPageTest, IsThereWhileNoClassIsOpen) {
  EXPECT_TRUE(page()->isVisible());
  Form1& form = OpenClass("MATH.TYR");
  EXPECT_FALSE(page()->isVisible());
  EXPECT_TRUE(FrameForm->CloseWindow(form));
  Settle();
  EXPECT_TRUE(page()->isVisible());
}

// Laying it out takes as long as opening a class.
TEST_F(StartPageTest, IsNotMadeForAProgramThatStartsWithAClass) {
  const std::string file = WriteClass("MATH.TYR");
  window.reset();
  FrameForm = std::make_unique<MDIForm1>();
  window = std::make_unique<FrameWindow>();
  Screen = window.get();
  window->Sync();  // the event loop begins before anything is shown
  FrameForm->Load(file);
  window->Sync();
  Settle();
  EXPECT_EQ(page(), nullptr);
  ASSERT_NE(ClassWindows[1], nullptr);
  EXPECT_TRUE(FrameForm->CloseWindow(*ClassWindows[1]));
  Settle();
  ASSERT_NE(page(), nullptr);
  EXPECT_TRUE(page()->isVisible());
}

TEST_F(StartPageTest, EachWayToBeginHasALetterOfItsOwn) {
  QList<QKeySequence> letters;
  for (const char* entry : {"mnuwizard", "mnuown", "mnuOpen"})
    letters << QKeySequence::mnemonic(Button(entry)->text());
  for (const QAction* menu : window->menuBar()->actions())
    if (menu->isVisible()) letters << QKeySequence::mnemonic(menu->text());
  EXPECT_GE(letters.size(), 5);
  EXPECT_FALSE(letters.contains(QKeySequence()));
  EXPECT_EQ(QSet<QKeySequence>(letters.begin(), letters.end()).size(), letters.size());
}

TEST_F(StartPageTest, EnterPressesTheButtonWithTheFocus) {
  QSignalSpy pressed(page(), &StartPage::Pressed);
  RecordPortals();
  DataFolder = folder;
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    Button("mnuown")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Button("mnuown"), key);
    Settle();
  }
  EXPECT_EQ(portals_asked_for, (std::vector<std::string>{"frmAdd", "frmAdd"}));
}

TEST_F(StartPageTest, EachWayToBeginPressesItsMenuEntry) {
  QSignalSpy pressed(page(), &StartPage::Pressed);
  RecordPortals();
  DataFolder = folder;
  Button("mnuwizard")->click();
  Settle();
  Button("mnuown")->click();
  Settle();
  EXPECT_EQ(portals_asked_for, (std::vector<std::string>{"frmWizard", "frmAdd"}));
  screen.ExpectFileDialog(std::nullopt);
  Button("mnuOpen")->click();
  Settle();
  EXPECT_EQ(screen.file_dialogs.size(), 1U);
  EXPECT_EQ(pressed.count(), 3);
}

TEST_F(StartPageTest, ListsRecentClassesByNameAndFolder) {
  RecentFiles[0] = Path("MATH & MORE.TYR");
  FrameForm->RebuildRecentMenu();
  window->Sync();
  EXPECT_TRUE(Button("mnuFileList0")->isVisible());
  EXPECT_EQ(Button("mnuFileList0")->text(), QStringLiteral("MATH && MORE.TYR"));
  EXPECT_EQ(Button("mnuFileList0")->description().toStdString(), folder + "/");
  EXPECT_EQ(Button("mnuFileList0")->accessibleName().toStdString(), Path("MATH & MORE.TYR"));
  EXPECT_FALSE(Button("mnuFileList1")->isVisible());
}

// From the left edge of its card: where the ground of its icon begins, and its own height.
QPoint TileAndHeight(QWidget& card, QWidget& shown) {
  const QImage picture = shown.grab().toImage();
  const QColor tile = TokensOf(QApplication::palette()).accent_soft;
  int x = 0;
  while (x < picture.width() && picture.pixelColor(x, picture.height() / 2) != tile) ++x;
  return {shown.mapTo(&card, QPoint(x, 0)).x(), card.height()};
}

TEST_F(StartPageTest, ARecentClassStandsAsTheCardsDo) {
  RecentFiles[0] = WriteClass("MATH.TYR");
  FrameForm->RebuildRecentMenu();
  window->Sync();
  Settle();
  QWidget& way = *Button("mnuOpen");
  QWidget& line = *Button("mnuFileList0");
  for (const Look& look : kLooks) {
    if (look.text.isValid()) continue;  // without soft grounds
    const WornLook worn(look);
    Settle();
    EXPECT_EQ(TileAndHeight(*line.parentWidget(), line), TileAndHeight(way, way)) << look.name;
  }
}

TEST_F(StartPageTest, OpensARecentClass) {
  RecentFiles[0] = WriteClass("MATH.TYR");
  FrameForm->RebuildRecentMenu();
  window->Sync();
  Button("mnuFileList0")->click();
  Settle();
  ASSERT_NE(ClassWindows[1], nullptr);
  EXPECT_EQ(ClassWindows[1]->Caption, "MATH.TYR");
}

TEST_F(StartPageTest, CanBeWorkedByKeyboard) {
  window->activateWindow();
  Settle();
  for (const QCommandLinkButton* button : page()->findChildren<QCommandLinkButton*>()) {
    EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus) << button->objectName().toStdString();
  }
  EXPECT_EQ(window->focusWidget(), Button("mnuwizard"));
}

TEST_F(StartPageTest, TellsOfARecentClassWhatItsFileSays) {
  RecentFiles[0] = WriteClass("MATH.TYR");
  RecentFiles[1] = Path("GONE.TYR");
  FrameForm->RebuildRecentMenu();
  window->Sync();
  window->hide();
  window->show();
  Settle();
  const auto facts = [this](const char* entry) {
    return dynamic_cast<PageButton*>(Button(entry))->facts();
  };
  EXPECT_TRUE(facts("mnuFileList0").contains(QStringLiteral("2 students")));
  EXPECT_EQ(Button("mnuFileList0")->accessibleDescription(), facts("mnuFileList0"));
  EXPECT_EQ(facts("mnuFileList1"), QStringLiteral("Not found"));
}

TEST_F(StartPageTest, WhatIsToldStaysWithItsFileWhenTheListMoves) {
  RecentFiles[0] = Path("GONE.TYR");
  RecentFiles[1] = WriteClass("MATH.TYR");
  FrameForm->RebuildRecentMenu();
  window->Sync();
  Settle();
  RecentFiles[0] = RecentFiles[1];
  RecentFiles[1].clear();
  FrameForm->RebuildRecentMenu();
  window->Sync();
  Settle();
  const auto facts = dynamic_cast<PageButton*>(Button("mnuFileList0"))->facts();
  EXPECT_TRUE(facts.contains(QStringLiteral("2 students"))) << facts.toStdString();
}

TEST_F(StartPageTest, OpensTheSampleWhereThereIsOne) {
  DataFolder = folder;
  window->hide();
  window->show();
  Settle();
  EXPECT_FALSE(Button("sample")->isVisible());
  std::filesystem::rename(WriteClass("MATH.TYR"), SamplePath());
  window->hide();
  window->show();
  Settle();
  EXPECT_TRUE(Button("sample")->isVisible());
  Button("sample")->setFocus();
  QTest::keyClick(Button("sample"), Qt::Key_Return);
  Settle();
  ASSERT_NE(ClassWindows[1], nullptr);
  EXPECT_EQ(ClassWindows[1]->Caption, "SAMPLE8.TYR");
}

TEST_F(StartPageTest, ShowsWhereTheKeyboardIs) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Button("mnuOpen")->setFocus();
  const QImage with_focus = Button("mnuOpen")->grab().toImage();
  Button("mnuown")->setFocus();
  EXPECT_NE(Button("mnuOpen")->grab().toImage(), with_focus);
}

}  // namespace
}  // namespace tallyroll
