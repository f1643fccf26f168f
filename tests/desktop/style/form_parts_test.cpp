// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of forms that the system brings itself, as a form lays them out.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <cstdlib>

#include "attendance/frmAtsum.h"
#include "attendance/frmAtt.h"
#include "averages/portals/frmoptions.h"
#include "averages/portals/frmpercents.h"
#include "averages/portals/frmpoints.h"
#include "averages/portals/frmroundoff.h"
#include "desktop/portal/code_key.h"
#include "desktop/portal/form_labels.h"
#include "desktop/portal/total_figure.h"
#include "desktop/style/program_style.h"
#include "desktop/style/tokens.h"
#include "printing/frmprintall.h"
#include "roster/frmAdd.h"
#include "seating/frmseating.h"
#include "shell/frmWizard.h"
#include "tests/desktop/class_dialogs.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

class FormParts : public ClassDialogs {
 protected:
  FormParts() {
    QSettings().clear();
    AddGrade("First", "T");
    AddGrade("Second", "Q");
  }
  ~FormParts() override {
    dialog.reset();
    QSettings().clear();
  }
  int LeftOf(const QWidget& widget) const { return widget.mapTo(dialog.get(), QPoint()).x(); }
  int RightOf(const QWidget& widget) const { return LeftOf(widget) + widget.width(); }
  static int Px(double length) {
    return qobject_cast<const ProgramStyle*>(QApplication::style())->measures().Px(length);
  }
  // From the left edge of the window: where the last ink of a figure ends, and the room that its
  // font keeps behind a nought.
  int InkEnd(QWidget& figure) const {
    const QImage picture = figure.grab().toImage();
    const int middle = picture.height() / 2;
    const QRgb ground = picture.pixel(picture.width() / 2, middle);
    int x = picture.width() - 1;
    while (x > 0 && picture.pixel(x, middle) == ground) --x;
    return LeftOf(figure) + x + qRound(QFontMetricsF(figure.font()).rightBearing(u'0'));
  }
};

TEST_F(FormParts, AWindowOpensAsLowAsItsFoldedExplanationLetsIt) {
  Current().Method = 0;
  const auto height = [] {
    frmroundoff portal;
    portal.Load();
    PortalDialog window(portal);
    const int opened = window.height();
    window.show();
    window.hide();
    return opened;
  };
  const int unfolded = height();
  EXPECT_LT(height(), unfolded);
}

TEST_F(FormParts, AStepOfANewChartGoesOnWithEnter) {
  frmseating portal;
  Open(portal);
  EXPECT_TRUE(Find<QPushButton>("newchart").isDefault());
  Find<QPushButton>("newchart").click();
  EXPECT_TRUE(Find<QPushButton>("okinfo").isDefault());
  Find<QListWidget>("column").setCurrentRow(7);
  Find<QListWidget>("seatsrow").setCurrentRow(7);
  Find<QPushButton>("okinfo").click();
  EXPECT_TRUE(Find<QPushButton>("chartok").isDefault());
  Find<QPushButton>("optionsback").click();
  EXPECT_TRUE(Find<QPushButton>("okinfo").isDefault());
}

TEST_F(FormParts, TheChartStandsStillWhileACardIsCarried) {
  frmseating portal;
  Open(portal);
  dialog->resize(1000, 620);
  QCoreApplication::processEvents();
  const int before = Find<QWidget>("Grid1").height();
  Find<QLabel>("said").setText(QStringLiteral(
      "Washington, Josephine is taken up: arrows carry, the blank puts down, Escape lets go."));
  QCoreApplication::processEvents();
  EXPECT_EQ(Find<QWidget>("Grid1").height(), before);
}

TEST_F(FormParts, WhatActsOnListsEndsLevelWithThem) {
  frmseating portal;
  Open(portal);
  Find<QStackedWidget>("step").setCurrentIndex(3);
  QCoreApplication::processEvents();
  const auto foot = [](const QWidget& widget) { return widget.geometry().bottom(); };
  EXPECT_EQ(foot(Find<QPushButton>("addwish")), foot(Find<QListWidget>("wishother")));
  EXPECT_EQ(foot(Find<QPushButton>("takewish")), foot(Find<QListWidget>("wishlist")));
}

TEST_F(FormParts, FieldsKeepTheirGapsInATallerWindow) {
  frmAdd portal;
  Open(portal);
  const auto step = [&] {
    return Find<QLineEdit>("firstname").y() - Find<QLineEdit>("lastname").y();
  };
  const int before = step();
  dialog->resize(dialog->width(), dialog->height() + 200);
  QCoreApplication::processEvents();
  EXPECT_EQ(step(), before);
}

TEST_F(FormParts, NothingMovesWhileATotalIsTyped) {
  TotalFigure total;
  total.setText(QStringLiteral("5"));
  const QSize before = total.sizeHint();
  total.setText(QStringLiteral("133.333"));
  EXPECT_EQ(total.sizeHint(), before);
}

TEST_F(FormParts, ASentenceToTickWrapsAndIsTickedOnEachOfItsLines) {
  frmpercents portal;
  Open(portal);
  dialog->resize(dialog->width(), 600);
  QCoreApplication::processEvents();
  auto& tick = Find<WrappingTick>("redist");
  const int line = tick.fontMetrics().height();
  EXPECT_GE(tick.height(), Find<QCheckBox>("dropyn").height() + line);
  EXPECT_EQ(tick.height(), tick.heightForWidth(tick.width()));
  QTest::mouseClick(&tick, Qt::LeftButton, {}, QPoint(60, tick.height() - line / 2));
  EXPECT_TRUE(portal.redist.Value);
  QTest::mouseClick(&tick, Qt::LeftButton, {}, QPoint(8, line / 2));
  EXPECT_FALSE(portal.redist.Value);
}

TEST_F(FormParts, ASentenceToTickThatFitsStandsOnOneLine) {
  WrappingTick tick;
  tick.setText(QStringLiteral("Drop Lowest by Type"));
  EXPECT_EQ(tick.heightForWidth(600), tick.QCheckBox::sizeHint().height());
  EXPECT_GT(tick.heightForWidth(90), tick.heightForWidth(600));
}

TEST_F(FormParts, AHintStandsOnOneLineBelowItsField) {
  frmWizard portal;
  Open(portal);
  auto& pages = *dialog->findChild<QStackedWidget*>();
  for (const char* name : {"descriptionhint", "idhint"}) {
    auto& hint = Find<QLabel>(name);
    for (int i = 0; i < pages.count(); ++i)
      if (pages.widget(i)->isAncestorOf(&hint)) pages.setCurrentIndex(i);
    QCoreApplication::processEvents();
    EXPECT_LE(hint.height(), hint.fontMetrics().lineSpacing() + 1) << name;
  }
}

TEST_F(FormParts, AStateStandsOutWhereItIsOn) {
  Current().Method = 0;
  Current().AverageFlag2 = kTrue;
  frmoptions portal;
  Open(portal);
  EXPECT_TRUE(Find<StateWord>("dsl").IsOn());
  EXPECT_FALSE(Find<StateWord>("dlt").IsOn());
}

// The two columns of reports and those of their options below.
TEST_F(FormParts, OptionsStandBelowTheColumnsOfTheirReports) {
  OpenState = 2;
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    frmprintall portal;
    Open(portal);
    EXPECT_EQ(LeftOf(Find<QRadioButton>("missing1")), LeftOf(Find<QRadioButton>("sort1")))
        << look.name;
    EXPECT_EQ(LeftOf(Find<QRadioButton>("allgrades1")), LeftOf(Find<QCheckBox>("attendance1")))
        << look.name;
    dialog.reset();
  }
}

TEST_F(FormParts, ReportsStandOneBelowTheOtherThoughOneStandsAlone) {
  OpenState = 2;
  frmprintall portal;
  Open(portal);
  const auto top = [this](const char* name) { return Find<QRadioButton>(name).y(); };
  EXPECT_EQ(top("sumatt") - top("gradesummary"), top("gradesummary") - top("allgrades1"));
}

TEST_F(FormParts, TheScaleOfTheRoundingHasNoGapAtItsSide) {
  Current().Method = 0;
  frmroundoff portal;
  Open(portal);
  EXPECT_EQ(LeftOf(Find<QGroupBox>("modegroup")) - RightOf(Find<GridWidget>("grdgrade")), Px(20));
}

// 30 days in September, 31 in October, which are wider: the window shows both.
TEST_F(FormParts, TheKeyToTheCodesEndsWithTheMonth) {
  frmAtt portal;
  Open(portal);
  dialog->resize(1200, 500);
  for (int month = 0; month < 2; ++month) {
    QCoreApplication::processEvents();
    EXPECT_LT(RightOf(grid()), dialog->width() - 20);
    EXPECT_EQ(RightOf(Find<CodeKey>("codekey")), RightOf(grid())) << month;
    EXPECT_EQ(LeftOf(Find<QPushButton>("Command1")), LeftOf(grid())) << month;
    EXPECT_EQ(LeftOf(Find<QPushButton>("Command2")) - RightOf(Find<QPushButton>("Command1")),
              Px(8));
    EXPECT_EQ(LeftOf(Find<QLabel>("monthlabel")) - RightOf(Find<QPushButton>("Command2")), Px(12));
    Find<QPushButton>("Command2").click();
  }
}

TEST_F(FormParts, TheRingOfAnOptionGoesRoundItsWords) {
  frmAtsum portal;
  Open(portal);
  auto& option = Find<QRadioButton>("Summary");
  QTest::keyClick(dialog.get(), Qt::Key_Tab);
  option.setFocus(Qt::TabFocusReason);
  QCoreApplication::processEvents();
  ASSERT_GT(option.width(), option.sizeHint().width() + 20);
  const QImage picture = option.grab().toImage();
  const QColor ring = TokensOf(QApplication::palette()).focus;
  int end = picture.width() - 1;
  while (end > 0 && picture.pixelColor(end, picture.height() / 2) != ring) --end;
  EXPECT_NEAR(end, option.sizeHint().width() - 1, 2);
}

TEST_F(FormParts, FiguresThatAreOnlyShownEndBelowEachOther) {
  frmpoints portal;
  Open(portal);
  portal.totals.Caption = "100";
  portal.extra.Caption = "100";
  dialog->ShowControls();
  EXPECT_LE(std::abs(InkEnd(Find<QLabel>("totals")) - InkEnd(Find<QLabel>("extra"))), 1);
}

// Figures come with a place for their sign.
TEST_F(FormParts, ALineBeginsAtItsEdgeThoughABlankStandsInFront) {
  const auto picture = [](const char* text) {
    ElidedLabel line;
    line.setText(QLatin1String(text));
    line.resize(200, 30);
    return line.grab().toImage();
  };
  EXPECT_EQ(picture(" 75 (C)"), picture("75 (C)"));
}

TEST_F(FormParts, ALineOfAClasssWordsTakesNoMoreThanItsWordsAndShrinks) {
  ElidedLabel line;
  line.setText(QStringLiteral("Al"));
  const int words = line.fontMetrics().horizontalAdvance(QStringLiteral("Al"));
  EXPECT_GT(line.sizeHint().width(), words);
  EXPECT_LE(line.sizeHint().width(), words + 2);
  EXPECT_LE(line.minimumSizeHint().width(), line.sizeHint().width());
  line.setText(QString(300, QLatin1Char('m')));
  EXPECT_LT(line.minimumSizeHint().width(), 200);
}

}  // namespace
}  // namespace tallyroll
