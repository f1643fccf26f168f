// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/qt_print_target.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <set>

namespace tallyroll {
namespace {

// Letter, of which half an inch on each side and a quarter above and below cannot be printed on.
constexpr Sheet kLetter{12240, 15840, 10800, 15120};

// A sheet as an image of one dot for ten twips, on which a tenth of a twip is still seen.
class Paper {
 public:
  explicit Paper(const Sheet& sheet = kLetter)
      : image_(1224, 1584, QImage::Format_RGB32), painter_(&image_) {
    image_.fill(Qt::white);
    painter_.scale(0.1, 0.1);
    target = std::make_unique<QtPrintTarget>(sheet, &painter_);
  }

  // The smallest rectangle, in twips, that holds all that is not white.
  QRect Ink() const {
    QRect ink;
    for (int y = 0; y < image_.height(); ++y)
      for (int x = 0; x < image_.width(); ++x)
        if (image_.pixelColor(x, y) != Qt::white) ink |= QRect(x, y, 1, 1);
    return {ink.topLeft() * 10, ink.size() * 10};
  }

  std::unique_ptr<QtPrintTarget> target;

 private:
  QImage image_;
  QPainter painter_;
};

TEST(QtPrintTarget, TheSheetGivesItsMeasures) {
  const QtPrintTarget target(kLetter);
  EXPECT_EQ(target.Width, 12240);
  EXPECT_EQ(target.Height, 15840);
  EXPECT_EQ(target.ScaleWidth, 10800);
  EXPECT_EQ(target.ScaleHeight, 15120);
  EXPECT_FALSE(target.IsPrinter());
}

TEST(QtPrintTarget, ALineStandsWhereItsMarginsPutIt) {
  Paper paper;
  paper.target->ScaleLeft = -500;
  paper.target->ScaleTop = -400;
  paper.target->Line(100, 200, 1100, 200);
  // 720 that cannot be printed on and 500 of margin; 360 and 400 above.
  const QRect ink = paper.Ink();
  EXPECT_NEAR(ink.left(), 720 + 500 + 100, 10);
  EXPECT_NEAR(ink.right(), 720 + 500 + 1100, 20);
  EXPECT_NEAR(ink.center().y(), 360 + 400 + 200, 15);
  EXPECT_LE(ink.height(), 20);
}

TEST(QtPrintTarget, LinesOfOneWidthAreEquallyWideWhereverTheyFallOnAScreen) {
  for (const double dots : {1.17, 1.33, 1.5, 2.67}) {
    QImage image(20, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dots / 10, dots / 10);  // a line is ten twips wide
    QtPrintTarget target(kLetter, &painter);
    target.ScaleTop = 0;
    std::set<int> widths;
    for (int i = 1; i < 12; ++i) target.Line(-700, 143 * i, 300, 143 * i);
    for (int y = 0, wide = 0; y < image.height(); ++y) {
      const bool ink = image.pixelColor(10, y) != Qt::white;
      if (!ink && wide > 0) widths.insert(wide);
      wide = ink ? wide + 1 : 0;
    }
    EXPECT_EQ(widths, std::set<int>{static_cast<int>(std::lround(dots))}) << dots;
  }
}

TEST(QtPrintTarget, TextHangsBelowThePenAndIsAsWideAsMeasured) {
  Paper paper;
  paper.target->FontName = "Arial";
  paper.target->FontSize = 20;
  paper.target->CurrentX = 1000;
  paper.target->CurrentY = 2000;
  paper.target->PrintOpen("HHHH");
  const double width = paper.target->TextWidth("HHHH");
  const double height = paper.target->TextHeight("H");
  EXPECT_EQ(paper.target->CurrentX, 1000 + width);
  const QRect ink = paper.Ink();
  // 20 points are 400 twips, and an H of Arial is 0.72 of that wide and as high.
  EXPECT_NEAR(width, 4 * 0.722 * 400, 12);
  EXPECT_NEAR(ink.height(), 0.716 * 400, 20);
  EXPECT_GE(ink.left(), 720 + 1000);
  EXPECT_LE(ink.right(), 720 + 1000 + width);
  EXPECT_GE(ink.top(), 360 + 2000);
  EXPECT_LE(ink.bottom(), 360 + 2000 + height);
}

TEST(QtPrintTarget, UpwardsTextBeginsAtItsLowerEnd) {
  Paper paper;
  paper.target->FontSize = 20;
  const double length = paper.target->TextWidth("Homework");
  const double height = paper.target->TextHeight("H");
  paper.target->PrintUpwards("Homework", 3000, 6000);
  const QRect ink = paper.Ink();
  EXPECT_GE(ink.left(), 720 + 3000);
  EXPECT_LE(ink.right(), 720 + 3000 + height + 10);
  EXPECT_LE(ink.bottom(), 360 + 6000);
  EXPECT_NEAR(ink.top(), 360 + 6000 - length, 40);
}

TEST(QtPrintTarget, TheFontFollowsItsNameSizeAndWeight) {
  QtPrintTarget target(kLetter);
  target.FontName = "Courier New";
  target.FontSize = 10;
  // A typewriter's letter is six tenths of its height wide: 120 twips at 10 points.
  EXPECT_NEAR(target.TextWidth("iiiiiiiiii"), 1200, 2);
  EXPECT_NEAR(target.AverageCharWidth(), 120, 1);
  target.FontSize = 20;
  EXPECT_NEAR(target.TextWidth("iiiiiiiiii"), 2400, 4);
  target.FontName = "Arial";
  const double plain = target.TextWidth("iiiiiiiiii");
  EXPECT_LT(plain, 1200);
  target.FontBold = true;
  EXPECT_GT(target.TextWidth("iiiiiiiiii"), plain);
}

TEST(QtPrintTarget, JustBelowTwelvePointsIsAsWideAsTwelve) {
  QtPrintTarget target(kLetter);
  target.FontSize = 12;
  const double width = target.TextWidth("Smith, John");
  target.FontSize = 11.99;
  EXPECT_EQ(target.TextWidth("Smith, John"), width);
}

TEST(QtPrintTarget, TextIsOfTheCodePage) {
  QtPrintTarget target(kLetter);
  target.FontName = "Courier New";
  // Twelve characters, each 120 twips wide; as UTF-8 they would be more.
  EXPECT_NEAR(target.TextWidth("M\xFCller \x97 50\xBD"), 1440, 2);
}

TEST(QtPrintTarget, ATargetWithoutAPainterOnlyMeasures) {
  QtPrintTarget target(kLetter);
  target.Print("first");
  target.PrintOpen("second");
  target.Line(0, 0, 100, 0);
  target.PrintUpwards("third", 0, 0);
  EXPECT_EQ(target.CurrentY, target.TextHeight("A"));
  EXPECT_EQ(target.CurrentX, target.TextWidth("second"));
  target.Cls();
  EXPECT_EQ(target.CurrentX, 0);
  EXPECT_EQ(target.CurrentY, 0);
}

TEST(QtPrintTarget, ClsWipesTheWholeSheet) {
  Paper paper;
  paper.target->ScaleLeft = -500;
  paper.target->Print("something");
  paper.target->Cls();
  EXPECT_TRUE(paper.Ink().isEmpty());
}

TEST(Sheet, LetterAndA4InTwips) {
  EXPECT_EQ(WholeSheet(QPageSize(QPageSize::Letter)), (Sheet{12240, 15840, 12240, 15840}));
  // 595 by 842 points
  EXPECT_EQ(WholeSheet(QPageSize(QPageSize::A4)), (Sheet{11900, 16840, 11900, 16840}));
}

TEST(Sheet, TurnedLiesAcross) {
  EXPECT_EQ(Turned(kLetter), (Sheet{15840, 12240, 15120, 10800}));
}

TEST(Sheet, IsFoundAgainAsItsPageSize) {
  EXPECT_EQ(PageSizeOf(kLetter).id(), QPageSize::Letter);
  EXPECT_EQ(PageSizeOf(WholeSheet(QPageSize(QPageSize::A4))).id(), QPageSize::A4);
}

}  // namespace
}  // namespace tallyroll
