// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader hears of cards that keys move: the place of the focus says what happened.
#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QListWidget>

#include "seating/chart_records.h"
#include "seating/fill_chart.h"
#include "seating/frmseating.h"
#include "tests/desktop/class_dialogs.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"

namespace tallyroll {
namespace {

class TellingLabelTest : public ClassDialogs {
 protected:
  TellingLabelTest() {
    SeatPlan plan = EmptyPlan(2, 2);
    FillAsSorted(plan);  // "Student, B" at the back of the first row, "Student, C" before
    StoreChart(AddChart(2, 2), plan);
    Open(portal);
    grid().setFocus();
  }
  ~TellingLabelTest() override { dialog.reset(); }
  void Key(Qt::Key key) {
    QTest::keyClick(dialog->focusWidget(), key);
    QCoreApplication::processEvents();
  }
  // "name: description" of the cell, or of the list, that has the focus.
  std::string Told() {
    QAccessibleInterface* place = QAccessible::queryAccessibleInterface(dialog->focusWidget());
    if (qobject_cast<GridWidget*>(dialog->focusWidget())) place = place->focusChild();
    return place->text(QAccessible::Name).toStdString() + ": " +
           place->text(QAccessible::Description).toStdString();
  }

  frmseating portal;
};

constexpr const char* kTakenUp = " is taken up: arrows carry, the blank puts down, Escape lets go.";

TEST_F(TellingLabelTest, ACardTakenUpPutDownAndLetGoIsToldWhereTheFocusIs) {
  Key(Qt::Key_Space);
  EXPECT_EQ(Told(), std::string("Student, C: Student, C") + kTakenUp);
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  EXPECT_EQ(Told(), "Student, C: Student, C and Student, B have changed places.");
  Key(Qt::Key_Space);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Told(), "Student, C: The card is back in its place.");
}

// The list hands the card over to the chart, where the focus goes.
TEST_F(TellingLabelTest, ACardOfTheListIsToldWhereTheFocusHasGone) {
  Find<QListWidget>("students").setFocus();
  Key(Qt::Key_Home);
  Key(Qt::Key_Space);
  ASSERT_EQ(Focused(), "Grid1");
  EXPECT_EQ(Told(), std::string("Student, C: Student, F") + kTakenUp);
}

TEST_F(TellingLabelTest, ACardPutBackOnTheListIsToldThere) {
  Key(Qt::Key_Space);
  Find<QListWidget>("students").setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(Told(), "Without a seat: Student, C is back on the list.");
}

// What the eye sees by the board above, on the card (the ID is 1), and by an empty place.
TEST_F(TellingLabelTest, ASeatTellsItsPlaceAndWhetherItIsTaken) {
  QAccessibleTableInterface* seats =
      QAccessible::queryAccessibleInterface(&grid())->tableInterface();
  const auto said = [seats](int row, int col) {
    const QAccessibleInterface* seat = seats->cellAt(row, col);
    return (seat->text(QAccessible::Name) + QStringLiteral(": ") +
            seat->text(QAccessible::Description))
        .toStdString();
  };
  EXPECT_EQ(said(1, 0), "Student, B: Row 1, seat 2 from the front, 1");
  EXPECT_EQ(said(0, 1), "Student, E: Row 2, seat 1 from the front, 1");
  EXPECT_EQ(seats->columnDescription(1), QStringLiteral("Row 2"));
  EXPECT_EQ(seats->rowDescription(0), QStringLiteral("seat 1 from the front"));
  portal.Grid1.SetTextMatrix(0, 1, "");
  EXPECT_EQ(said(0, 1), ": Row 2, seat 1 from the front, empty");
}

TEST_F(TellingLabelTest, AChartWithItsSeatsHasANameForEverything) {
  const QStringList faults =
      SpokenFaults(*dialog) + FocusFaults(*dialog) + MnemonicFaults(*dialog) + TabFaults(*dialog);
  EXPECT_EQ(faults.join(u'\n').toStdString(), "");
}

TEST_F(TellingLabelTest, WhatWasToldIsTakenBackWithTheNextWords) {
  Key(Qt::Key_Space);
  ASSERT_FALSE(grid().Told().isEmpty());
  auto& list = Find<QListWidget>("students");
  list.setFocus();
  Key(Qt::Key_Space);
  EXPECT_TRUE(grid().Told().isEmpty());
}

}  // namespace
}  // namespace tallyroll
