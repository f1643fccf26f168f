// SPDX-License-Identifier: GPL-3.0-or-later
// A letter is white paper, and what it lies on can be told from it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include "desktop/letter/rich_text_edit.h"
#include "desktop/style/tokens.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

TEST(LetterPaper, LiesOnADeskInEveryLook) {
  constexpr int kFourInches = 4 * 1440;
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    QWidget window;
    RichTextEdit letter(&window);
    letter.SetPaper(kFourInches, 1);
    letter.resize(900, 300);
    window.show();
    QCoreApplication::processEvents();
    const QImage picture = letter.grab().toImage();
    const QRgb desk = TokensOf(QApplication::palette()).desk.rgb();
    EXPECT_EQ(picture.pixel(20, 150), desk) << look.name;
    EXPECT_EQ(picture.pixel(860, 150), desk) << look.name;
    EXPECT_EQ(picture.pixel(450, 250), qRgb(255, 255, 255)) << look.name;
    EXPECT_NE(desk, qRgb(255, 255, 255)) << look.name;
    letter.clearFocus();
    // The frame has one line then, and the desk begins behind it.
    EXPECT_EQ(letter.grab().toImage().pixel(1, 150), desk) << look.name;
  }
}

}  // namespace
}  // namespace tallyroll
