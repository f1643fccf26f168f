// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_labels.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolTip>

#include "analysis/frmsingles.h"
#include "desktop/portal/form_pictures.h"
#include "insight/frmunusual.h"
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

// The width of every line, beside that of ninety letters of a sentence.
TEST_F(LongWords, ThatExplainWrapWhereTheEyeStillFindsTheNextLine) {
  frmunusual portal;
  Open(portal);
  auto& rule = Find<QLabel>("rule");
  ASSERT_GT(rule.text().size(), 90);
  const int ninety = rule.fontMetrics().horizontalAdvance(rule.text().left(90));
  EXPECT_LE(ReadableLine(rule.fontMetrics()), ninety);
  EXPECT_GE(ReadableLine(rule.fontMetrics()), ninety * 3 / 4);
  dialog->resize(dialog->width() * 2, dialog->height());
  QCoreApplication::processEvents();
  EXPECT_GT(rule.width(), 2 * ninety);
  EXPECT_GE(rule.height(), 2 * rule.fontMetrics().height());
  const QImage picture = rule.grab().toImage();
  const QRgb ground = picture.pixel(picture.width() - 20, picture.height() / 2);
  const int behind = rule.fontMetrics().height() + ninety;
  for (int y = 0; y < picture.height(); ++y) EXPECT_EQ(picture.pixel(behind, y), ground) << y;
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

// The share of a row, or column, of the picture in which there is ink.
double Inked(const QImage& picture, QPoint at, QPoint step) {
  int inked = 0, all = 0;
  for (; picture.rect().contains(at); at += step, ++all)
    inked += picture.pixelColor(at).lightness() < 200 ? 1 : 0;
  return static_cast<double>(inked) / all;
}

// Four pixels of ink, two of paper: the margins lie at the edges, below the line of the sheet.
TEST(MarginSheet, DrawsDashesOfOneKindOnAScreenOfFractions) {
  QWidget window;
  MarginSheet sheet(&window);
  QLineEdit left(&window), top(&window);
  left.setObjectName(QStringLiteral("leftmarg"));
  top.setObjectName(QStringLiteral("topmarg"));
  left.setText(QStringLiteral("0.5"));
  top.setText(QStringLiteral("0.5"));
  sheet.resize(sheet.sizeHint());
  constexpr double kScale = 1.5;
  constexpr int kAt = 9;  // 0.5 inches of 12 pixels
  QImage picture(sheet.size() * kScale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kScale);
  sheet.render(&picture);
  const double across = Inked(picture, {30, kAt}, {1, 0});
  EXPECT_GT(across, 0.5);
  EXPECT_LT(across, 0.8);
  EXPECT_NEAR(Inked(picture, {kAt, 30}, {0, 1}), across, 0.1);
}

TEST(ElidedLabel, TellsNoTipOfWhatIsReadWhole) {
  ElidedLabel line;
  line.setText(QStringLiteral(" 75 (C) of 80"));
  line.resize(200, 40);
  const auto tip = [&line] {
    QHelpEvent asked(QEvent::ToolTip, QPoint(5, 5), line.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&line, &asked);
    return QToolTip::text();
  };
  EXPECT_EQ(tip(), QString());
  line.setWordWrap(true);
  EXPECT_EQ(tip(), QString());
  line.setWordWrap(false);
  line.resize(30, 40);
  EXPECT_EQ(tip(), line.text().trimmed());
  QToolTip::hideText();
}

}  // namespace
}  // namespace tallyroll
