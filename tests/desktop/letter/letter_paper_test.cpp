// SPDX-License-Identifier: GPL-3.0-or-later
// A letter is white paper, and what it lies on can be told from it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include "desktop/letter/rich_text_edit.h"
#include "desktop/style/program_style.h"
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

TEST(LetterPaper, ItsDeskBeginsBehindTheFrameAtEveryScale) {
  QWidget window;
  RichTextEdit letter(&window);
  letter.resize(900, 300);
  letter.SetPaper(4 * 1440, 1);
  window.show();
  const Tokens t = TokensOf(QApplication::palette());
  for (const bool focus : {false, true}) {
    QCoreApplication::processEvents();
    focus ? letter.setFocus() : letter.clearFocus();
    ASSERT_EQ(letter.hasFocus(), focus);
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
      QImage picture((QSizeF(letter.size()) * scale).toSize(), QImage::Format_RGB32);
      picture.setDevicePixelRatio(scale);
      letter.render(&picture);
      const int y = qRound(150 * scale);
      int x = 0;
      while (picture.pixelColor(x, y) == (focus ? t.focus : t.border)) ++x;
      EXPECT_GE(x, 1) << scale;
      EXPECT_EQ(picture.pixelColor(x, y), t.desk) << scale << (focus ? ", focus" : "");
    }
  }
}

// However large the type is, and the corners with it.
TEST(LetterPaper, ItsDeskLeavesTheCornersOfItsFrame) {
  const QFont before = QApplication::font();
  QApplication::setFont(QFont(before.family(), 30));
  QApplication::setStyle(new ProgramStyle(Measures(Density::kNormal, QApplication::font())));
  QWidget window;
  RichTextEdit letter(&window);
  letter.resize(900, 300);
  window.show();
  QCoreApplication::processEvents();
  letter.clearFocus();
  const auto corner = [&letter] { return letter.grab(QRect(0, 0, 12, 12)).toImage(); };
  const QImage bare = corner();
  letter.SetPaper(4 * 1440, 1);
  QCoreApplication::processEvents();
  const QImage papered = corner();
  const Tokens t = TokensOf(QApplication::palette());
  int of_the_frame = 0;
  for (int y = 0; y < 12; ++y)
    for (int x = 0; x < 12; ++x)
      if (const QColor color = bare.pixelColor(x, y); color == t.window || color == t.border) {
        EXPECT_EQ(papered.pixelColor(x, y), color) << x << ", " << y;
        ++of_the_frame;
      }
  EXPECT_GT(of_the_frame, 10);
  QApplication::setFont(before);
  QApplication::setStyle(new ProgramStyle(Measures(Density::kNormal, before)));
}

}  // namespace
}  // namespace tallyroll
