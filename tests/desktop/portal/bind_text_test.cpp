// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolTip>

#include "desktop/basics/refused_character.h"
#include "tests/desktop/portal/everything_portal.h"

namespace tallyroll {
namespace {

class BindTextTest : public EverythingTest {
 protected:
  QLineEdit& first() { return Find<QLineEdit>("first"); }
  QPlainTextEdit& lines() { return Find<QPlainTextEdit>("lines"); }
  void Paste(QWidget& field, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(BindTextTest, AFieldThatDidNotChangeKeepsCursorSelectionAndUndo) {
  Open();
  QTest::keyClicks(&first(), QStringLiteral("abcd"));
  first().setSelection(1, 2);
  portal.second.Text = "other";
  dialog->ShowControls();
  EXPECT_EQ(first().selectedText(), QStringLiteral("bc"));
  EXPECT_TRUE(first().isUndoAvailable());
}

TEST_F(BindTextTest, TypingInTheMiddleStaysThere) {
  portal.first.Text = "ad";
  Open();
  first().setCursorPosition(1);
  QTest::keyClicks(&first(), QStringLiteral("bc"));
  EXPECT_EQ(portal.first.Text, "abcd");
  EXPECT_EQ(first().cursorPosition(), 3);
  EXPECT_EQ(portal.first.SelStart, 3);
}

TEST_F(BindTextTest, ATextThatAHandlerChangesKeepsTheCursor) {
  portal.first.Text = "ad";
  portal.when = [this](const std::string& line) {
    if (line == "first change") portal.first.Text = "ABD";
  };
  Open();
  first().setCursorPosition(1);
  QTest::keyClicks(&first(), QStringLiteral("b"));
  EXPECT_EQ(first().text(), QStringLiteral("ABD"));
  EXPECT_EQ(first().cursorPosition(), 2);
}

TEST_F(BindTextTest, AHandlerMaySelect) {
  portal.first.Text = "abcd";
  portal.when = [this](const std::string& line) {
    if (line == "first got") portal.first.SelLength = 4;
  };
  Open();
  Focus("second");
  first().setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(first().selectedText(), QStringLiteral("abcd"));
}

TEST_F(BindTextTest, EveryCharacterOfTheCodePageIsShownAndTyped) {
  portal.first.Text = "\x80uro \xE9";
  Open();
  EXPECT_EQ(first().text(), QStringLiteral(u"\u20ACuro \u00E9"));
  first().selectAll();
  Paste(first(), QStringLiteral(u"\u0153uvre \u2014"));
  EXPECT_EQ(portal.first.Text, "\x9Cuvre \x97");
}

TEST_F(BindTextTest, ACharacterThatTheCodePageLacksIsRefusedWhenTyped) {
  portal.first.Text = "ab";
  Open();
  Focus("first");
  first().setCursorPosition(1);
  QTest::sendKeyEvent(QTest::Click, &first(), Qt::Key_unknown, QStringLiteral(u"\u0141"),
                      Qt::NoModifier);
  EXPECT_EQ(first().text(), QStringLiteral("ab"));
  EXPECT_EQ(first().cursorPosition(), 1);
  EXPECT_EQ(portal.first.Text, "ab");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(QToolTip::text(), RefusedCharacterText(QStringLiteral(u"\u0141")).toHtmlEscaped());
}

TEST_F(BindTextTest, APasteWithACharacterThatTheCodePageLacksIsRefusedWhole) {
  portal.first.Text = "ab";
  Open();
  Focus("first");
  QToolTip::hideText();
  Paste(first(), QStringLiteral(u"Smith \u4E2D"));
  EXPECT_EQ(first().text(), QStringLiteral("ab"));
  EXPECT_EQ(Events(), Lines{});
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral(u"\u4E2D")));
}

TEST_F(BindTextTest, ARefusalLeavesUndo) {
  Open();
  Focus("first");
  QTest::keyClicks(&first(), QStringLiteral("ab"));
  Paste(first(), QStringLiteral(u"\u4E2D"));
  EXPECT_EQ(first().text(), QStringLiteral("ab"));
  first().undo();
  EXPECT_EQ(first().text(), QString());
}

TEST_F(BindTextTest, AFieldTakesNoMoreThanItsLength) {
  portal.first.MaxLength = 3;
  Open();
  QTest::keyClicks(&first(), QStringLiteral("abcd"));
  EXPECT_EQ(portal.first.Text, "abc");
  EXPECT_TRUE(first().isUndoAvailable());
  first().setCursorPosition(0);
  QTest::keyClicks(&first(), QStringLiteral("x"));
  EXPECT_EQ(portal.first.Text, "abc");
}

TEST_F(BindTextTest, OfAPasteThatIsTooLongWhatFitsIsKept) {
  portal.first.MaxLength = 5;
  portal.first.Text = "ab";
  Open();
  first().setCursorPosition(1);
  Paste(first(), QStringLiteral("12345"));
  EXPECT_EQ(portal.first.Text, "a123b");
  EXPECT_EQ(first().cursorPosition(), 4);
}

TEST_F(BindTextTest, ALengthOfMinusOneLetsNothingIn) {
  portal.first.MaxLength = -1;
  portal.first.Text = "ab";
  Open();
  QTest::keyClicks(&first(), QStringLiteral("c"));
  EXPECT_EQ(first().text(), QStringLiteral("ab"));
  QTest::keyClick(&first(), Qt::Key_End);
  QTest::keyClick(&first(), Qt::Key_Backspace);
  EXPECT_EQ(portal.first.Text, "a");
  QTest::keyClicks(&first(), QStringLiteral("b"));
  EXPECT_EQ(portal.first.Text, "a");
}

TEST_F(BindTextTest, ALengthOfNoneHasNoLimit) {
  Open();
  Paste(first(), QString(5000, u'x'));
  EXPECT_EQ(portal.first.Text.size(), 5000U);
}

TEST_F(BindTextTest, ATextLongerThanItsLengthIsShownWhole) {
  portal.first.MaxLength = 2;
  portal.first.Text = "abcdef";
  Open();
  EXPECT_EQ(first().text(), QStringLiteral("abcdef"));
  QTest::keyClick(&first(), Qt::Key_End);
  QTest::keyClick(&first(), Qt::Key_Backspace);
  EXPECT_EQ(portal.first.Text, "abcde");
}

TEST_F(BindTextTest, SettingTheLengthOfAnotherFieldKeepsItsUndo) {
  portal.when = [this](const std::string& line) {
    if (line == "second change") portal.first.MaxLength = 10;
  };
  Open();
  QTest::keyClicks(&first(), QStringLiteral("abc"));
  QTest::keyClicks(&Find<QLineEdit>("second"), QStringLiteral("x"));
  EXPECT_TRUE(first().isUndoAvailable());
}

TEST_F(BindTextTest, SeveralLinesEndWithTwoBytesInTheLogic) {
  portal.lines.Text = "one\r\ntwo";
  Open();
  EXPECT_EQ(lines().toPlainText(), QStringLiteral("one\ntwo"));
  lines().moveCursor(QTextCursor::End);
  QTest::keyClick(&lines(), Qt::Key_Return);
  QTest::keyClicks(&lines(), QStringLiteral("3"));
  EXPECT_EQ(portal.lines.Text, "one\r\ntwo\r\n3");
  EXPECT_EQ(portal.lines.SelStart, 11);
}

TEST_F(BindTextTest, LinesThatNobodyEditedKeepEveryByte) {
  portal.lines.Text = "old\nfile\rends\r\n";
  Open();
  QTest::keyClicks(&first(), QStringLiteral("x"));
  EXPECT_EQ(portal.lines.Text, "old\nfile\rends\r\n");
}

// Each line end has the length that it has in the text: 2, 1 and 1 before the last two letters.
TEST_F(BindTextTest, ASelectionBehindBareLineEndsIsThatOfTheText) {
  portal.lines.Text = "a\r\nbb\ncc\rdd";
  Open();
  lines().setFocus();
  QTest::keyClick(&lines(), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&lines(), Qt::Key_Left, Qt::ShiftModifier);
  QTest::keyClick(&lines(), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(lines().textCursor().selectedText(), QStringLiteral("dd"));
  QTest::keyClicks(&first(), QStringLiteral("x"));
  EXPECT_EQ(portal.lines.SelStart, 9);
  EXPECT_EQ(portal.lines.SelLength, 2);
  portal.lines.SelStart = 6;
  portal.lines.SelLength = 2;
  dialog->ShowControls();
  EXPECT_EQ(lines().textCursor().selectedText(), QStringLiteral("cc"));
}

TEST_F(BindTextTest, LinesRefuseWhatTheCodePageLacks) {
  portal.lines.Text = "a";
  Open();
  Focus("lines");
  QTest::sendKeyEvent(QTest::Click, &lines(), Qt::Key_unknown, QStringLiteral(u"\u0141"),
                      Qt::NoModifier);
  Paste(lines(), QStringLiteral(u"x\u0141"));
  EXPECT_EQ(lines().toPlainText(), QStringLiteral("a"));
  EXPECT_EQ(Events(), Lines{});
  EXPECT_FALSE(QToolTip::text().isEmpty());
}

TEST_F(BindTextTest, LinesTakeNoMoreThanTheirLength) {
  portal.lines.MaxLength = 6;
  Open();
  Paste(lines(), QStringLiteral("ab\ncdef"));
  EXPECT_EQ(portal.lines.Text, "ab\r\ncd");
  QTest::keyClicks(&lines(), QStringLiteral("x"));
  QTest::keyClick(&lines(), Qt::Key_Return);
  EXPECT_EQ(portal.lines.Text, "ab\r\ncd");
}

TEST_F(BindTextTest, LinesThatDidNotChangeKeepCursorAndUndo) {
  Open();
  QTest::keyClicks(&lines(), QStringLiteral("abc"));
  lines().moveCursor(QTextCursor::Left);
  dialog->ShowControls();
  EXPECT_EQ(lines().textCursor().position(), 2);
  EXPECT_TRUE(lines().document()->isUndoAvailable());
}

}  // namespace
}  // namespace tallyroll
