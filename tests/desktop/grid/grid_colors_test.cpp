// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_colors.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

QPalette PaletteOf(QRgb base, QRgb text, QRgb button) {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(base));
  palette.setColor(QPalette::Text, QColor(text));
  palette.setColor(QPalette::Button, QColor(button));
  palette.setColor(QPalette::ButtonText, QColor(text));
  return palette;
}

const QPalette kPalettes[] = {PaletteOf(0xFFFFFFFF, 0xFF000000, 0xFFEFEFEF),
                              PaletteOf(0xFF1E1E1E, 0xFFFFFFFF, 0xFF353535),
                              PaletteOf(0xFF353535, 0xFFEEEEEE, 0xFF454545),
                              PaletteOf(0xFFFDF6E3, 0xFF657B83, 0xFFEEE8D5)};  // a faint one

TEST(GridColors, BlackOnWhiteHasTheHighestContrast) {
  EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21.0, 0.001);
  EXPECT_NEAR(ContrastOf(Qt::white, Qt::white), 1.0, 0.001);
  // 0x777777 has a luminance of 0.1845, so 1.05 / 0.2345.
  EXPECT_NEAR(ContrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.005);
}

TEST(GridColors, EveryTextCanBeReadLightAndDark) {
  for (const QPalette& palette : kPalettes) {
    const GridColors colors(palette);
    EXPECT_GE(ContrastOf(colors.Heading().text, colors.Heading().background), 4.5);
    for (const CellStyle style : {CellStyle::kPlain, CellStyle::kFailing, CellStyle::kInWork,
                                  CellStyle::kTotal, CellStyle::kShaded}) {
      const CellLook& look = colors.Look(style);
      EXPECT_GE(ContrastOf(look.text, look.background), 4.5)
          << static_cast<int>(style) << " on " << look.background.name().toStdString();
    }
  }
}

TEST(GridColors, OnlyAFailingMarkIsBold) {
  const GridColors colors(kPalettes[0]);
  EXPECT_TRUE(colors.Look(CellStyle::kFailing).bold);
  EXPECT_FALSE(colors.Look(CellStyle::kPlain).bold);
  EXPECT_FALSE(colors.Look(CellStyle::kTotal).bold);
}

TEST(GridColors, FailingIsRedAndTheCellInWorkBlue) {
  for (int i = 0; i < 2; ++i) {
    const GridColors colors(kPalettes[i]);
    const QColor failing = colors.Look(CellStyle::kFailing).text;
    const QColor in_work = colors.Look(CellStyle::kInWork).text;
    EXPECT_GT(failing.red(), failing.blue());
    EXPECT_GT(failing.red(), failing.green());
    EXPECT_GT(in_work.blue(), in_work.red());
  }
}

}  // namespace
}  // namespace tallyroll
