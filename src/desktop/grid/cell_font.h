// SPDX-License-Identifier: GPL-3.0-or-later
// The fonts of a grid, measured once for each character.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <string_view>

namespace tallyroll {

// A font with the width of each character of the code page, so that the usual text, which fits, is
// placed without asking the font engine. In figures every digit is as wide as the widest, so that
// they stand below one another whatever the font.
class CellFont {
 public:
  CellFont() = default;
  explicit CellFont(const QFont& font);
  const QFont& font() const { return font_; }
  int WidthOf(std::string_view text) const;
  QString Elided(std::string_view text, int width) const;
  int Ascent() const { return ascent_; }
  int Height() const { return height_; }

  // With the pen of the painter, from `at` on the line that the text stands on.
  void Draw(QPainter& painter, const QPointF& at, std::string_view text) const;

 private:
  static constexpr float kNotMeasured = -1;
  float WidthOf(unsigned char character) const;
  float DigitWidth() const;
  bool HasOwnDigits() const;
  void DrawFigures(QPainter& painter, const QPointF& at, std::string_view text) const;

  QFont font_;
  mutable std::array<float, 256> widths_{};  // measured when first asked for
  mutable float digit_width_ = kNotMeasured;
  mutable QRawFont raw_;                       // made for the first figures
  mutable std::array<quint32, 128> glyphs_{};  // of raw_
  mutable bool own_digits_ = false;            // the font's digits are of several widths
  int ascent_ = 0;
  int height_ = 0;
};

struct GridFonts {
  // From the usual font of a window, `zoom` times as large.
  explicit GridFonts(const QFont& usual, double zoom = 1);
  CellFont plain;  // cells
  CellFont bold;   // heads, failing marks, the name in work
  CellFont small;  // second lines
  CellFont chip;
  double points = 9;  // of a cell
  double unit = 1;    // what one pixel of the plan is on this screen, in this font

  int Px(double of_plan) const { return qRound(of_plan * unit); }
};

}  // namespace tallyroll
