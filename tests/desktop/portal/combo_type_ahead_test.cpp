// SPDX-License-Identifier: GPL-3.0-or-later
// Typing a name where the students drop down.
#include <QAbstractItemView>
#include <QComboBox>

#include "tests/desktop/portal/everything_portal.h"

namespace tallyroll {
namespace {

class ComboTypeAheadTest : public EverythingTest {
 protected:
  QComboBox& pick() { return Find<QComboBox>("pick"); }
};

TEST_F(ComboTypeAheadTest, TypingANameGoesToItsLineInAComboBox) {
  portal.pick.List = {"101 Ng, Ada", "A7 Orr, Bo", "207 Diaz, \xC9mile", "208 Dixon, Cy"};
  Open();
  Focus("pick");
  QTest::keyClicks(&pick(), QStringLiteral("dix"));
  EXPECT_EQ(portal.pick.ListIndex, 3);
  EXPECT_EQ(portal.pick.Text, "208 Dixon, Cy");
  EXPECT_EQ(pick().currentIndex(), 3);
  EXPECT_EQ(Events(), (Lines{"pick change", "pick click", "pick change", "pick click"}));
  QTest::keyClick(&pick(), Qt::Key_Up);  // begins a new name
  QTest::keyClicks(&pick(), QStringLiteral("a7"));
  EXPECT_EQ(portal.pick.ListIndex, 1);
  QTest::keyClick(&pick(), Qt::Key_Down);
  QTest::keyClicks(&pick(), QStringLiteral("ada"));
  EXPECT_EQ(portal.pick.ListIndex, 0);
  Events();
  QTest::keyClicks(&pick(), QStringLiteral("q"));  // nobody
  EXPECT_EQ(portal.pick.ListIndex, 0);
  EXPECT_EQ(Events(), Lines{});
}

// Dropped, the lines are walked by name; only Enter takes one.
TEST_F(ComboTypeAheadTest, TypingInTheDroppedLinesChoosesWithEnter) {
  portal.pick.List = {"101 Ng, Ada", "A7 Orr, Bo", "207 Diaz, Cy"};
  Open();
  Focus("pick");
  pick().showPopup();
  QTest::keyClicks(pick().view(), QStringLiteral("di"));
  EXPECT_EQ(pick().view()->currentIndex().row(), 2);
  EXPECT_EQ(portal.pick.ListIndex, -1);
  EXPECT_EQ(Events(), Lines{});
  QTest::keyClick(pick().view(), Qt::Key_Return);
  EXPECT_EQ(portal.pick.ListIndex, 2);
  EXPECT_EQ(Events(), (Lines{"pick change", "pick click"}));
}

// The blank and F4 drop the lines, the arrows and the page keys walk them, as ever.
TEST_F(ComboTypeAheadTest, OtherKeysOfAComboBoxStayAsTheyAre) {
  Open();
  Focus("pick");
  QTest::keyClick(&pick(), Qt::Key_Space);
  EXPECT_TRUE(pick().view()->isVisible());
  QTest::keyClick(pick().view(), Qt::Key_Escape);
  EXPECT_EQ(portal.pick.ListIndex, -1);
  QTest::keyClick(&pick(), Qt::Key_End);
  EXPECT_EQ(portal.pick.ListIndex, 2);
  QTest::keyClick(&pick(), Qt::Key_Home);
  EXPECT_EQ(portal.pick.ListIndex, 0);
}

}  // namespace
}  // namespace tallyroll
