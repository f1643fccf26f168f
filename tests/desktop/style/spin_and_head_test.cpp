// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkit's own dialogs are built of and no Portal has: numbers to step through, lists
// with heads.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTreeWidget>

#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

class Numbers : public QSpinBox {
 public:
  QPoint MiddleOf(QStyle::SubControl part) const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_SpinBox, &option, part, this).center();
  }
};

TEST(SpinStyle, ANumberIsAsHighAsAFieldAndItsArrowsStep) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    Numbers numbers;
    numbers.setValue(5);
    const QLineEdit field;
    EXPECT_EQ(numbers.sizeHint().height(), field.sizeHint().height()) << look.name;
    numbers.resize(numbers.sizeHint());
    numbers.show();
    QTest::mouseClick(&numbers, Qt::LeftButton, {}, numbers.MiddleOf(QStyle::SC_SpinBoxUp));
    EXPECT_EQ(numbers.value(), 6) << look.name;
    QTest::mouseClick(&numbers, Qt::LeftButton, {}, numbers.MiddleOf(QStyle::SC_SpinBoxDown));
    QTest::mouseClick(&numbers, Qt::LeftButton, {}, numbers.MiddleOf(QStyle::SC_SpinBoxDown));
    EXPECT_EQ(numbers.value(), 4) << look.name;
  }
}

TEST(SpinStyle, TheLongestNumberIsShownWhole) {
  Numbers numbers;
  numbers.setRange(0, 99999);
  numbers.setValue(99999);
  numbers.resize(numbers.sizeHint());
  numbers.show();
  const auto* field = numbers.findChild<QLineEdit*>();
  const int words = field->fontMetrics().horizontalAdvance(QStringLiteral("99999"));
  EXPECT_GE(field->width(), words);
  EXPECT_LE(field->geometry().right(), numbers.MiddleOf(QStyle::SC_SpinBoxUp).x());
}

TEST(HeadStyle, HeadsHaveOneGroundAsHighAsALine) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    QTreeWidget list;
    list.setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    list.resize(400, 200);
    list.show();
    QApplication::processEvents();
    const QImage picture = list.header()->grab().toImage();
    const QRgb ground = TokensOf(QApplication::palette()).header.rgb();
    for (const int y : {1, picture.height() / 2, picture.height() - 3})
      EXPECT_EQ(picture.pixel(picture.width() - 3, y), ground) << look.name << ' ' << y;
    EXPECT_GE(list.header()->height(), list.fontMetrics().height() + 6) << look.name;
  }
}

}  // namespace
}  // namespace tallyroll
