// SPDX-License-Identifier: GPL-3.0-or-later
// The frame as a screen reader and the keyboard meet it: start page, class window with its panel,
// tour, help, and the box that tells of the program.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "desktop/grid/grid_widget.h"
#include "desktop/panel/side_panel.h"
#include "desktop/window/about_box.h"
#include "desktop/window/class_window_view.h"
#include "desktop/window/help_window.h"
#include "desktop/window/tour.h"
#include "shell/data_folder.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

std::string Lines(const QStringList& faults) {
  return faults.join(u'\n').toStdString();
}

class SpokenFrame : public FrameTest {
 protected:
  SpokenFrame() {
    QSettings().remove(QStringLiteral("Panel"));
    window->resize(1500, 800);
  }
  ~SpokenFrame() override { QSettings().remove(QStringLiteral("Panel")); }
  GridWidget& grid() const { return *window->Current()->findChild<GridWidget*>(); }
  QAccessibleInterface* Cell(int row, int col) const {
    return QAccessible::queryAccessibleInterface(&grid())->tableInterface()->cellAt(row, col);
  }
  // "CUT: cut, counts as 0"
  std::string Said(int row, int col) const {
    const QAccessibleInterface* cell = Cell(row, col);
    return cell->text(QAccessible::Name).toStdString() + ": " +
           cell->text(QAccessible::Description).toStdString();
  }
};

TEST_F(SpokenFrame, TheStartPageIsToldAndReachedByTab) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(Lines(SpokenFaults(*window)), "");
  EXPECT_EQ(Lines(MnemonicFaults(*window)), "");
  EXPECT_EQ(Lines(FocusFaults(*window)), "");
  EXPECT_EQ(Lines(TabFaults(*window)), "");
}

TEST_F(SpokenFrame, TheClassWindowWithItsPanelIsToldAndReachedByTab) {
  OpenClass("MATH.TYR");
  QTest::qWait(80);  // the panel follows when the keys rest
  ASSERT_TRUE(window->findChild<SidePanel*>()->isVisible());
  EXPECT_EQ(Lines(SpokenFaults(*window)), "");
  EXPECT_EQ(Lines(MnemonicFaults(*window)), "");
  EXPECT_EQ(Lines(FocusFaults(*window)), "");
  EXPECT_EQ(Lines(TabFaults(*window)), "");
}

// What the eye learns of red, of chips and of a line below, in the painter's own words.
TEST_F(SpokenFrame, EachStateOfAMarkIsTold) {
  OpenClass("MATH.TYR");
  struct State {
    const char *mark, *said;
  };
  const State states[] = {{"CUT", "CUT: cut, counts as 0"}, {"NON", "NON: not done, counts as 0"},
                          {"ABS", "ABS: absent"},           {"EXC", "EXC: excused"},
                          {"NEW", "NEW: no grade yet"},     {"6", "6: failing"},
                          {"11", "11: above the maximum"},  {"7", "7: "}};
  for (const State& state : states) {
    Classes[1].Students[1].Marks[1] = state.mark;  // of 10, and 6.5 passes
    ClassWindows[1]->showform3();
    window->Sync();
    EXPECT_EQ(Said(2, 2), state.said);
  }
}

TEST_F(SpokenFrame, TheCellInWorkIsSelectedAndHasTheFocus) {
  OpenClass("MATH.TYR");
  grid().setFocus();
  grid().MoveTo(3, 2);
  EXPECT_TRUE(Cell(3, 2)->state().selected);
  EXPECT_TRUE(Cell(3, 2)->state().focused);
  EXPECT_FALSE(Cell(2, 2)->state().selected);
  EXPECT_EQ(Cell(3, 2)->tableCellInterface()->rowHeaderCells().front()->text(QAccessible::Name),
            QStringLiteral("2 Brown, Bea"));
  EXPECT_EQ(Cell(3, 2)->tableCellInterface()->columnHeaderCells().front()->text(QAccessible::Name),
            QStringLiteral("Q1"));
}

// Nobody's focus ever comes to the status bar.
TEST_F(SpokenFrame, WhatWasDoneIsToldAtTheCellInWorkUntilItMovesOn) {
  OpenClass("MATH.TYR");
  grid().setFocus();
  grid().MoveTo(2, 2);
  Classes[1].Changed = kTrue;
  PressMenu("mnusave");
  const std::string saved = ClassWindows[1]->StatusText;
  EXPECT_NE(saved, "");
  EXPECT_EQ(Said(2, 2), "7: " + saved);
  EXPECT_EQ(Said(3, 2), "7: ");
  QTest::keyClick(&grid(), Qt::Key_Down);
  EXPECT_EQ(Said(3, 2), "7: ");
  QTest::keyClick(&grid(), Qt::Key_Up);
  EXPECT_EQ(Said(2, 2), "7: ");
}

TEST_F(SpokenFrame, EachStepOfTheTourIsToldWithItsButton) {
  DataFolder = folder;
  std::filesystem::copy_file(WriteClass("MATH.TYR"), SamplePath());
  window->OfferTour();
  Settle();
  auto* tour = window->findChild<Tour*>();
  ASSERT_NE(tour, nullptr);
  for (int step = 0; step <= Tour::kSteps; ++step) {
    ASSERT_NE(window->findChild<Tour*>(), nullptr) << step;
    EXPECT_EQ(Lines(FocusFaults(*window)), "") << step;
    EXPECT_EQ(Lines(SpokenFaults(*window)), "") << step;
    const QAccessibleInterface* button =
        QAccessible::queryAccessibleInterface(window->focusWidget());
    const QString told = button->text(QAccessible::Description);
    for (const auto* label : tour->findChildren<QLabel*>())
      EXPECT_TRUE(told.contains(label->text())) << step << label->text().toStdString();
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    Settle();
  }
}

TEST(SpokenHelp, TheHelpWindowIsToldAndReachedByTab) {
  QWidget owner;
  ShowHelpTopic(&owner, 0);
  auto* help = owner.findChild<HelpWindow*>();
  ASSERT_NE(help, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(help));
  EXPECT_EQ(Lines(SpokenFaults(*help)), "");
  EXPECT_EQ(Lines(FocusFaults(*help)), "");
  EXPECT_EQ(Lines(MnemonicFaults(*help)), "");
}

TEST(SpokenAbout, TheBoxThatTellsOfTheProgramIsTold) {
  QStringList faults;
  QTimer::singleShot(50, qApp, [&faults] {
    QWidget* box = QApplication::activeModalWidget();
    faults = SpokenFaults(*box) + FocusFaults(*box);
    box->close();
  });
  ShowAboutBox(nullptr);
  EXPECT_EQ(Lines(faults), "");
}

}  // namespace
}  // namespace tallyroll
