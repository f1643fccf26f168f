// SPDX-License-Identifier: GPL-3.0-or-later
// A word that ends a line of a list may stand as a chip; the line's text stays what it is.
#include <QImage>
#include <QListWidget>

#include "attendance/frmEatt.h"
#include "desktop/style/tokens.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class ListChipTest : public ClassDialogs {
 protected:
  ListChipTest() {
    constexpr int kTypedIn = 1, kCounted = 2;
    Class& c = Current();
    c.NumSummaries = 2;
    ReDim(c.Summaries, 2);
    c.Summaries[1] = {"First Quarter", "Q1", kTypedIn, 0, "", ""};
    c.Summaries[2] = {"Second Quarter", "Q2", kCounted, 0, "", ""};
  }
  ~ListChipTest() override { dialog.reset(); }

  // Whether something in that line has the ground of a chip.
  bool HasChip(int line) {
    auto& list = Find<QListWidget>("list1");
    const QImage picture = list.viewport()->grab(list.visualItemRect(list.item(line))).toImage();
    const QRgb ground = TokensOf(QApplication::palette()).header.rgb();
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixel(x, picture.height() / 2 - 6) == ground) return true;
    return false;
  }

  frmEatt edit;
};

TEST_F(ListChipTest, WhatIsCalculatedSaysSoInAChip) {
  Open(edit);
  const auto& list = Find<QListWidget>("list1");
  EXPECT_EQ(list.item(1)->text(), QStringLiteral("Second Quarter Calculated"));
  EXPECT_FALSE(HasChip(0));
  EXPECT_TRUE(HasChip(1));
}

}  // namespace
}  // namespace tallyroll
