// SPDX-License-Identifier: GPL-3.0-or-later
// The menu over a word that the dictionary does not know, by the mouse and by keys.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWindow>

#include "desktop/letter/rich_text_edit.h"
#include "desktop/letter/spelling.h"

namespace tallyroll {
namespace {

class SpellingMenu : public testing::Test {
 protected:
  void SetUp() override {
    Put("en_US.aff", "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz\n");
    Put("en_US.dic", "3\nhello\nworld\nhelp\n");
    spelling = Make();
    if (!spelling) GTEST_SKIP() << "no spelling library here";
    edit.SetSpelling(spelling.get());
    edit.resize(500, 200);
    edit.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&edit));
    edit.setFocus();
  }
  void TearDown() override { edit.SetSpelling(nullptr); }

  void Put(const char* name, const char* text) {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  QString OwnWords() const { return folder.filePath(QStringLiteral("words.txt")); }
  std::unique_ptr<Spelling> Make() {
    return OpenSpelling(folder.filePath(QStringLiteral("en_US")), OwnWords());
  }
  void Type(const char* text) { QTest::keyClicks(&edit, QLatin1String(text)); }
  // The menu that comes up where the right button is pressed in the text.
  QMenu* MenuAt(int place) {
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(place);
    const QPoint at = edit.viewport()->mapTo(&edit, edit.cursorRect(cursor).center());
    QTest::mouseClick(edit.windowHandle(), Qt::RightButton, {}, at);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
  static QStringList Entries(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) texts << action->text();
    return texts;
  }
  // Walks to the entry by keys, as far as the list goes, and chooses it.
  static void Choose(QMenu& menu, const QString& text) {
    for (int i = 0; i < menu.actions().size(); ++i) {
      QTest::keyClick(&menu, Qt::Key_Down);
      if (menu.activeAction() && menu.activeAction()->text() == text) break;
    }
    ASSERT_TRUE(menu.activeAction());
    ASSERT_EQ(menu.activeAction()->text(), text);
    QTest::keyClick(&menu, Qt::Key_Return);
  }
  bool IsMarked(int place) {
    const QTextBlock block = edit.document()->findBlock(place);
    for (const auto& range : block.layout()->formats())
      if (range.start <= place - block.position() &&
          place - block.position() < range.start + range.length &&
          range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline)
        return true;
    return false;
  }

  QTemporaryDir folder;
  std::unique_ptr<Spelling> spelling;
  RichTextEdit edit;
};

TEST_F(SpellingMenu, AWordIsPutRightByTheMouseAndTheKeys) {
  Type("helo world");
  QMenu* menu = MenuAt(2);
  ASSERT_TRUE(menu);
  EXPECT_TRUE(Entries(*menu).contains(QStringLiteral("hello")));
  Choose(*menu, QStringLiteral("hello"));
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("hello world"));
  EXPECT_FALSE(IsMarked(1));
  Type("!");  // what is typed is a step of its own
  EXPECT_EQ(edit.toPlainText().count(QLatin1Char('!')), 1);
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("hello world"));
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("helo world"));
}

TEST_F(SpellingMenu, ARightWordHasNoSuggestions) {
  Type("helo world");
  QMenu* menu = MenuAt(8);
  ASSERT_TRUE(menu);
  EXPECT_FALSE(Entries(*menu).contains(QStringLiteral("Add to My Words")));
  menu->close();
}

TEST_F(SpellingMenu, ANewWordIsMarkedUntilItIsOnTheOwnList) {
  Type("zorp zorp helo");
  EXPECT_TRUE(IsMarked(0));
  EXPECT_TRUE(IsMarked(6));
  QMenu* menu = MenuAt(7);
  ASSERT_TRUE(menu);
  Choose(*menu, QStringLiteral("Add to My Words"));
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("zorp zorp helo"));
  EXPECT_FALSE(IsMarked(0));
  EXPECT_FALSE(IsMarked(6));
  EXPECT_TRUE(IsMarked(11));
  EXPECT_TRUE(Make()->Knows(QStringLiteral("zorp")));
  QFile own(OwnWords());
  ASSERT_TRUE(own.open(QIODevice::ReadOnly));
  EXPECT_EQ(own.readAll(), QByteArray("zorp\n"));
}

TEST_F(SpellingMenu, TheMenuKeyAsksForTheWordAtTheCaret) {
  Type("helo");
  QContextMenuEvent key(QContextMenuEvent::Keyboard, edit.cursorRect().center(),
                        edit.mapToGlobal(edit.cursorRect().center()));
  QApplication::sendEvent(&edit, &key);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  EXPECT_TRUE(Entries(*menu).contains(QStringLiteral("hello")));
  menu->close();
}

TEST_F(SpellingMenu, ALockedLetterOffersNoOtherWords) {
  Type("helo");
  edit.setReadOnly(true);
  QMenu* menu = MenuAt(2);
  ASSERT_TRUE(menu);
  EXPECT_FALSE(Entries(*menu).contains(QStringLiteral("hello")));
  menu->close();
}

}  // namespace
}  // namespace tallyroll
