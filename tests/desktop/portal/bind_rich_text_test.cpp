// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

#include "desktop/letter/rich_text_edit.h"
#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "platform/rich_text_box.h"
#include "platform/rich_text_style.h"

namespace tallyroll {
namespace {

struct LetterPortal : Portal {
  LetterPortal() : Portal("letter") {}
  void Declare(ControlTable& table) override {
    table.Add("text", text).Change([this] { ++changes; }).Click([this] { ++moves; });
    table.Add("act", act).Click([this] {
      if (when) when();
    });
  }
  RichTextBox text;
  CommandButton act;
  std::function<void()> when;
  int changes = 0;
  int moves = 0;
};

class BindRichText : public testing::Test {
 protected:
  BindRichText() { SetPlatform(&surroundings); }
  ~BindRichText() override {
    dialog.reset();
    SetPlatform(nullptr);
  }
  void Open(std::u16string_view text) {
    portal.text.Load(RichTextOf(text));
    dialog = std::make_unique<PortalDialog>(portal, QStringLiteral(":/test/forms/letter.ui"));
    ASSERT_EQ(dialog->Complaints().join(u'\n').toStdString(), "");
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    edit().setFocus();
  }
  RichTextEdit& edit() { return *dialog->findChild<RichTextEdit*>(); }
  void Keys(const char* text) { QTest::keyClicks(&edit(), QString::fromLatin1(text)); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&edit(), key, modifiers);
  }
  // What the logic does in a handler.
  void Act(std::function<void()> what) {
    portal.when = std::move(what);
    Key(Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QCoreApplication::processEvents();
  }
  std::string Held() { return Utf8FromUtf16(PlainText(portal.text.Document)); }
  std::string Shown() { return edit().toPlainText().toStdString(); }

  HeadlessSurroundings surroundings;
  LetterPortal portal;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(BindRichText, ShowsTheTextAndTakesWhatIsTyped) {
  Open(u"one\ntwo");
  EXPECT_EQ(Shown(), "one\ntwo");
  EXPECT_EQ(portal.changes, 0);
  Key(Qt::Key_End);
  Keys("sw");
  EXPECT_EQ(Held(), "onesw\ntwo");
  EXPECT_EQ(portal.changes, 2);
  EXPECT_EQ(portal.text.SelStart, 5);
  EXPECT_TRUE(portal.text.CanUndo);
}

TEST_F(BindRichText, ParagraphsComeAndGoWithTheKeys) {
  Open(u"one\ntwo\nthree");
  Key(Qt::Key_End);
  Key(Qt::Key_Return);
  EXPECT_EQ(Held(), "one\n\ntwo\nthree");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Held(), "onetwo\nthree");
  EXPECT_EQ(Held(), Shown());
}

TEST_F(BindRichText, UndoGoesBackThroughTypingAndWhatTheLogicDid) {
  Open(u"one\ntwo");
  Keys("x");
  Act([this] {
    Restyle(portal.text.Document, 0, 4, [](TextStyle& style) { style.bold = true; });
    ++portal.text.Revision;
  });
  EXPECT_TRUE(portal.text.Document.paragraphs[0].runs[0].style.bold);
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "xone\ntwo");
  EXPECT_FALSE(portal.text.Document.paragraphs[0].runs[0].style.bold);
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "one\ntwo");
  EXPECT_FALSE(portal.text.CanUndo);
  EXPECT_TRUE(portal.text.CanRedo);
  Act([this] { portal.text.Acts = {EditAct::kRedo, EditAct::kRedo}; });
  EXPECT_TRUE(portal.text.Document.paragraphs[0].runs[0].style.bold);
}

TEST_F(BindRichText, WhatIsTypedBesideACodeIsAStepOfItsOwn) {
  Open(u"");
  Keys("Dear ");
  Act([this] { portal.text.ReplaceSelection(u"<First Name>"); });
  Keys(", hello");
  EXPECT_EQ(Held(), "Dear <First Name>, hello");
  for (const char* left : {"Dear <First Name>", "Dear ", ""}) {
    Act([this] { portal.text.Acts = {EditAct::kUndo}; });
    EXPECT_EQ(Held(), left);
    EXPECT_EQ(Shown(), left);
  }
  EXPECT_FALSE(portal.text.CanUndo);
  for (const char* back : {"Dear ", "Dear <First Name>", "Dear <First Name>, hello"}) {
    Act([this] { portal.text.Acts = {EditAct::kRedo}; });
    EXPECT_EQ(Held(), back);
  }
  EXPECT_FALSE(portal.text.CanRedo);
}

TEST_F(BindRichText, TwoCodesInARowAreTwoSteps) {
  Open(u"one");
  Key(Qt::Key_End);
  Act([this] { portal.text.ReplaceSelection(u"<A>"); });
  Act([this] { portal.text.ReplaceSelection(u"<B>"); });
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "one<A>");
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "one");
}

TEST_F(BindRichText, TheCaretComesBackToWhereTheStepWas) {
  Open(u"one two three");
  Act([this] {
    portal.text.Select(4, 3);
    portal.text.ReplaceSelection(u"<Second>");
  });
  EXPECT_EQ(Held(), "one <Second> three");
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "one two three");
  EXPECT_GE(portal.text.SelStart, 4);
  EXPECT_LE(portal.text.SelStart, 7);
  Act([this] { portal.text.Acts = {EditAct::kRedo}; });
  EXPECT_EQ(portal.text.SelStart, 12);
  Keys("!");
  EXPECT_EQ(Held(), "one <Second>! three");
}

TEST_F(BindRichText, APasteIsAStepOfItsOwn) {
  Open(u"");
  for (const bool rich : {false, true}) {
    auto* data = new QMimeData;
    if (rich)
      data->setHtml(QStringLiteral("<b>two</b>"));
    else
      data->setText(QStringLiteral("two"));
    QGuiApplication::clipboard()->setMimeData(data);
    Keys("one");
    Act([this] { portal.text.Acts = {EditAct::kPaste}; });
    Keys("three");
    EXPECT_EQ(Held(), "onetwothree");
    for (const char* left : {"onetwo", "one", ""}) {
      Act([this] { portal.text.Acts = {EditAct::kUndo}; });
      EXPECT_EQ(Held(), left) << rich;
    }
  }
}

// Half of a pair that is one character is not written by itself.
TEST_F(BindRichText, PairsOfUnitsStayTogether) {
  Open(u"a\U0001F600\U0001F600b");
  Act([this] {
    portal.text.Select(1, 2);
    portal.text.ReplaceSelection(u"\U0001F601");
  });
  EXPECT_EQ(Shown(), "a\U0001F601\U0001F600b");
  EXPECT_EQ(Held(), Shown());
  Act([this] { portal.text.Acts = {EditAct::kUndo}; });
  EXPECT_EQ(Held(), "a\U0001F600\U0001F600b");
}

TEST_F(BindRichText, TheSelectionGoesBothWays) {
  Open(u"one two");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(portal.text.SelStart, 0);
  EXPECT_EQ(portal.text.SelLength, 2);
  Act([this] { portal.text.Select(4, 3); });
  EXPECT_EQ(edit().textCursor().selectedText().toStdString(), "two");
}

TEST_F(BindRichText, WhatIsSelectedByTheLogicKeepsItsLook) {
  Open(u"");
  RichText text = RichTextOf(u"one two");
  Restyle(text, 0, 3, [](TextStyle& style) { style.bold = true; });
  Act([&] { portal.text.Load(text); });
  EXPECT_TRUE(portal.text.SelStyle.bold);
  Act([this] { portal.text.Select(4, 3); });
  EXPECT_EQ(portal.text.Document, text);
  EXPECT_FALSE(portal.text.SelStyle.bold);
  EXPECT_FALSE(edit().document()->isUndoAvailable());
}

TEST_F(BindRichText, WhatTheLogicPutsInLeavesTheCaretBehindIt) {
  Open(u"one\ntwo");
  Act([this] {
    portal.text.Select(3, 0);
    portal.text.ReplaceSelection(u"<A>");
  });
  EXPECT_EQ(Shown(), "one<A>\ntwo");
  Keys("!");
  EXPECT_EQ(Held(), "one<A>!\ntwo");
}

TEST_F(BindRichText, ALookChosenWithoutASelectionIsOfWhatIsTypedNext) {
  Open(u"one");
  Key(Qt::Key_End);
  Act([this] { portal.text.SelStyle.bold = true; });
  Keys("x");
  const auto& runs = portal.text.Document.paragraphs[0].runs;
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[1].text, u"x");
  EXPECT_TRUE(runs[1].style.bold);
}

TEST_F(BindRichText, AnotherTextCannotBeUndone) {
  Open(u"one");
  Keys("x");
  Act([this] { portal.text.Load(RichTextOf(u"new")); });
  EXPECT_EQ(Shown(), "new");
  EXPECT_FALSE(edit().document()->isUndoAvailable());
}

TEST_F(BindRichText, EveryLookComesBackAsItWas) {
  RichText text;
  text.paragraphs.clear();
  TextStyle style{.font = "Arial",
                  .half_points = 21,
                  .bold = true,
                  .italic = true,
                  .underline = true,
                  .strike = true,
                  .color = 0x123456,
                  .place = TextPlace::kSuper};
  Paragraph first;
  first.style = {.align = TextAlign::kJustify,
                 .left = 721,
                 .right = 359,
                 .first = -180,
                 .before = 121,
                 .after = 59,
                 .line_rule = LineRule::kExactly,
                 .line = 311,
                 .page_break_before = true,
                 .tabs = {{1441, TabAlign::kRight}, {2000, TabAlign::kDecimal}}};
  AppendText(first, u"a\tb\nc", style);
  style.place = TextPlace::kSub;
  style.bold = false;
  AppendText(first, u"\u0391\U0001F600", style);
  first.mark = style;
  Paragraph empty;
  empty.mark = {.font = "Courier New", .half_points = 40};
  empty.style.align = TextAlign::kRight;
  text.paragraphs = {first, empty, first};
  portal.text.Load(text);
  Open(u"");
  Act([&] { portal.text.Load(text); });
  // A character comes and goes in each line, so that each paragraph is read back.
  for (int line = 0; line < 5; ++line) {
    Keys("x");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Down);
    Key(Qt::Key_Home);
  }
  EXPECT_EQ(Held(), Utf8FromUtf16(PlainText(text)));
  EXPECT_EQ(portal.text.Document.paragraphs[0], text.paragraphs[0]);
  EXPECT_EQ(portal.text.Document.paragraphs[1], text.paragraphs[1]);
  EXPECT_EQ(portal.text.Document.paragraphs[2], text.paragraphs[2]);
}

TEST_F(BindRichText, ANewParagraphBeginsNoPageOfItsOwn) {
  Open(u"");
  Act([this] {
    RichText text = RichTextOf(u"one");
    text.paragraphs[0].style.page_break_before = true;
    portal.text.Load(text);
  });
  Key(Qt::Key_End);
  Key(Qt::Key_Return);
  Keys("two");
  EXPECT_TRUE(portal.text.Document.paragraphs.at(0).style.page_break_before);
  EXPECT_FALSE(portal.text.Document.paragraphs.at(1).style.page_break_before);
}

TEST_F(BindRichText, PastedTablesAndPicturesLeaveTheirTextAlone) {
  Open(u"");
  auto* data = new QMimeData;
  data->setHtml(
      QStringLiteral("<table><tr><td>one</td><td><b>two</b></td></tr></table>"
                     "<p>three<img src='x.png'></p>"));
  QGuiApplication::clipboard()->setMimeData(data);
  Act([this] { portal.text.Acts = {EditAct::kPaste}; });
  const std::string held = Held();
  for (const char* word : {"one", "two", "three"})
    EXPECT_NE(held.find(word), std::string::npos) << held;
  EXPECT_EQ(Held(), Shown());
  EXPECT_GT(portal.changes, 0);
}

TEST_F(BindRichText, ALockedTextTakesNoKeys) {
  Open(u"one");
  Act([this] { portal.text.Locked = true; });
  Keys("x");
  EXPECT_EQ(Shown(), "one");
}

TEST_F(BindRichText, ZoomEnlargesTheWholeAndChangesNoLook) {
  Open(u"one two three");
  Act([this] { portal.text.PaperWidth = 9000; });
  const QSizeF before = edit().document()->size();
  const int caret = edit().cursorRect().height();
  Act([this] { portal.text.Zoom = 2; });
  EXPECT_NEAR(edit().document()->size().width(), before.width() * 2, 3);
  EXPECT_GT(edit().cursorRect().height(), caret * 3 / 2);
  EXPECT_EQ(portal.text.Document, RichTextOf(u"one two three"));
  EXPECT_EQ(portal.changes, 0);
}

}  // namespace
}  // namespace tallyroll
