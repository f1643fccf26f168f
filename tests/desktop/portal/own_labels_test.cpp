// SPDX-License-Identifier: GPL-3.0-or-later
// The labels that the system brings itself: a sum that must be 100, an explanation that folds.
#include <QAccessible>
#include <QPushButton>
#include <QSettings>

#include "averages/portals/frmroundoff.h"
#include "averages/portals/frmweights.h"
#include "desktop/portal/folding_text.h"
#include "desktop/portal/total_figure.h"
#include "desktop/style/tokens.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class OwnLabels : public ClassDialogs {
 protected:
  OwnLabels() {
    QSettings().clear();
    AddGrade("First", "T");
    AddGrade("Second", "Q");
  }
  ~OwnLabels() override { QSettings().clear(); }
  static bool Shows(QWidget& widget, const QColor& color) {
    const QImage picture = widget.grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixelColor(x, y).rgb() == color.rgb()) return true;
    return false;
  }
};

TEST_F(OwnLabels, TheTotalTurnsFromRedToGreenAtAHundred) {
  frmweights portal;
  Open(portal);
  auto& total = Find<TotalFigure>("totals");
  auto& grid = Find<GridWidget>("grdgrade");
  const Tokens t = TokensOf(total.palette());
  EXPECT_EQ(total.Remainder(), QStringLiteral("100 missing"));
  EXPECT_TRUE(Shows(total, t.danger_soft));
  QTest::keyClicks(&grid, QStringLiteral("60"));
  QTest::keyClick(&grid, Qt::Key_Return);
  EXPECT_EQ(total.text(), QStringLiteral("60"));
  EXPECT_EQ(total.Remainder(), QStringLiteral("40 missing"));
  QTest::keyClicks(&grid, QStringLiteral("40"));
  EXPECT_TRUE(total.IsReached());
  EXPECT_EQ(total.Remainder(), QString());
  EXPECT_TRUE(Shows(total, t.success_soft));
  QTest::keyClicks(&grid, QStringLiteral("0"));  // 400
  EXPECT_EQ(total.Remainder(), QStringLiteral("360 too much"));
  dialog.reset();
}

TEST_F(OwnLabels, WhatIsMissingToAHundredIsToldToAScreenReader) {
  frmweights portal;
  Open(portal);
  const auto told = [this] {
    return QAccessible::queryAccessibleInterface(&Find<TotalFigure>("totals"))
        ->text(QAccessible::Description)
        .toStdString();
  };
  EXPECT_EQ(told(), "100 missing");
  QTest::keyClicks(&Find<GridWidget>("grdgrade"), QStringLiteral("60"));
  EXPECT_EQ(told(), "40 missing");
  dialog.reset();
}

// A button that Tab comes to, whose words are all of the text.
TEST_F(OwnLabels, AnExplanationThatFoldsIsAButtonToAScreenReader) {
  Current().Method = 0;
  frmroundoff portal;
  Open(portal);
  auto& text = Find<FoldingText>("mesage");
  text.SetFolded(true);
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&text);
  EXPECT_EQ(spoken->role(), QAccessible::Button);
  EXPECT_EQ(spoken->text(QAccessible::Name), text.text());
  EXPECT_TRUE(spoken->state().expandable);
  EXPECT_TRUE(spoken->state().collapsed);
  spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(text.IsFolded());
  EXPECT_TRUE(spoken->state().expanded);
  dialog.reset();
}

TEST_F(OwnLabels, AButtonThatIsANumberIsCalledByItsFrameToo) {
  Current().Method = 0;
  frmroundoff portal;
  Open(portal);
  const auto name = [this](const char* button) {
    return QAccessible::queryAccessibleInterface(&Find<QPushButton>(button))
        ->text(QAccessible::Name)
        .toStdString();
  };
  EXPECT_EQ(name("usescale1"), "Use Rounding Values 1 (empty)");
  EXPECT_EQ(name("savescale3"), "Save Rounding Values as 3 (empty)");
  EXPECT_EQ(name("usescale0"), "Default");
  dialog.reset();
}

TEST_F(OwnLabels, AnExplanationFoldsOnceItWasRead) {
  Current().Method = 0;
  frmroundoff portal;
  Open(portal);
  auto* text = &Find<FoldingText>("mesage");
  EXPECT_FALSE(text->IsFolded());
  EXPECT_EQ(text->ShownText(), text->text());
  dialog->hide();
  dialog.reset();
  frmroundoff again;
  Open(again);
  text = &Find<FoldingText>("mesage");
  EXPECT_TRUE(text->IsFolded());
  EXPECT_TRUE(text->ShownText().endsWith(QStringLiteral("or letter grades.")));
  EXPECT_GT(text->text().size(), text->ShownText().size()) << "a screen reader reads it all";
  const int folded = text->heightForWidth(400);
  text->setFocus();
  QTest::keyClick(text, Qt::Key_Space);
  EXPECT_FALSE(text->IsFolded());
  EXPECT_GT(text->heightForWidth(400), folded);
  QTest::mouseClick(text, Qt::LeftButton);
  EXPECT_TRUE(text->IsFolded());
  dialog.reset();
}

}  // namespace
}  // namespace tallyroll
