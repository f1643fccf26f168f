// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_labels.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "analysis/frmsingles.h"
#include "desktop/portal/form_pictures.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class LongWords : public ClassDialogs {};

TEST_F(LongWords, OfATitleDoNotWidenTheWindow) {
  AddGrade("Short", "T");
  AddGrade(std::string(200, 'W'), "T");
  frmsingles portal;
  Open(portal);
  auto& titles = Find<QListWidget>("lstName");
  titles.setCurrentRow(0);
  const int before = dialog->width();
  titles.setCurrentRow(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(Find<QLabel>("title").text().size(), 200);
  EXPECT_EQ(dialog->width(), before);
  EXPECT_LE(dialog->minimumSizeHint().width(), before);
}

TEST(ListCount, FollowsTheList) {
  QWidget window;
  QHBoxLayout row(&window);
  QListWidget list;
  list.setObjectName(QStringLiteral("names"));
  ListCount count;
  count.setObjectName(QStringLiteral("names_count"));
  count.setText(QStringLiteral("%1 chosen"));
  row.addWidget(&count);
  row.addWidget(&list);
  window.show();
  EXPECT_EQ(count.text(), QStringLiteral("0 chosen"));
  list.addItems({QStringLiteral("a"), QStringLiteral("b")});
  EXPECT_EQ(count.text(), QStringLiteral("2 chosen"));
  delete list.takeItem(0);
  EXPECT_EQ(count.text(), QStringLiteral("1 chosen"));
  list.clear();
  EXPECT_EQ(count.text(), QStringLiteral("0 chosen"));
}

// A page of 8.5 by 11 inches, 102 pixels wide: an inch is 12.
TEST(MarginSheet, ShowsWhatTheMarginsLeave) {
  QWidget window;
  QHBoxLayout row(&window);
  MarginSheet sheet;
  QLineEdit left;
  left.setObjectName(QStringLiteral("leftmarg"));
  left.setText(QStringLiteral("1"));
  row.addWidget(&sheet);
  row.addWidget(&left);
  window.show();
  ASSERT_EQ(sheet.size(), QSize(102, 132));
  EXPECT_EQ(sheet.PrintedPart(), QRectF(12, 0, 90, 132));
  left.setText(QStringLiteral("99"));
  EXPECT_EQ(sheet.PrintedPart(), QRectF(18, 0, 84, 132));
  left.setText(QStringLiteral("x"));
  EXPECT_EQ(sheet.PrintedPart(), QRectF(0, 0, 102, 132));
}

}  // namespace
}  // namespace tallyroll
