// SPDX-License-Identifier: GPL-3.0-or-later
// The wheel and the fields it passes over.
#include <QComboBox>
#include <QCursor>
#include <QDateEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include "desktop/grid/grid_widget.h"
#include "tests/desktop/portal/everything_portal.h"
#include "tests/desktop/turn_wheel.h"

namespace tallyroll {
namespace {

class WheelGuardTest : public EverythingTest {
 protected:
  WheelGuardTest() {
    portal.pick.ListIndex = 1;
    portal.pick.Text = "green";
  }
  std::vector<QWidget*> Fields() {
    return {&Find<QComboBox>("pick"), &Find<QDateEdit>("day"), Find<QTabWidget>("tabs").tabBar()};
  }
  void ExpectNothingChanged(const QWidget& field) {
    EXPECT_EQ(Events(), Lines{}) << field.objectName().toStdString();
    EXPECT_EQ(portal.pick.ListIndex, 1);
    EXPECT_EQ(portal.day.Value, 46266);
    EXPECT_EQ(portal.tabs.Selected, 0);
  }
};

TEST_F(WheelGuardTest, AFieldWithoutTheFocusKeepsItsValue) {
  Open();
  Focus("first");
  for (QWidget* field : Fields()) {
    TurnWheel(*field, -1);
    TurnWheel(*field, 1);
    ExpectNothingChanged(*field);
  }
}

TEST_F(WheelGuardTest, AFieldWithTheFocusTakesTheWheel) {
  QCursor::setPos(0,
                  0);  // the pointer of a test before this one may rest where the grid will stand
  Open();
  Focus("pick");
  TurnWheel(Find<QComboBox>("pick"), -1);
  EXPECT_EQ(portal.pick.ListIndex, 2);
  EXPECT_EQ(Events(), (Lines{"pick change", "pick click"}));
}

TEST_F(WheelGuardTest, AFieldThatThePointerReachesFromAGridKeepsItsValue) {
  Open();
  for (QWidget* field : Fields()) {
    field->setFocus(Qt::TabFocusReason);
    Events();
    TurnWheel(*Find<GridWidget>("grid").viewport(), -1);
    TurnWheel(*field, -1);
    ExpectNothingChanged(*field);
  }
}

TEST_F(WheelGuardTest, APressElsewhereEndsWhatTheGridBegan) {
  Open();
  Focus("pick");
  TurnWheel(*Find<GridWidget>("grid").viewport(), -1);
  QTest::mouseClick(&Find<QWidget>("first"), Qt::LeftButton);
  Focus("pick");
  TurnWheel(Find<QComboBox>("pick"), 1);
  EXPECT_EQ(portal.pick.ListIndex, 0);
}

}  // namespace
}  // namespace tallyroll
