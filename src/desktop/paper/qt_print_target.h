// SPDX-License-Identifier: GPL-3.0-or-later
// A sheet of paper on anything that Qt can paint on. Text is measured and set in twips, unhinted,
// so that a line is equally wide on a printer, in a PDF and on a screen of whatever resolution.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <vector>

#include "desktop/paper/sheet.h"
#include "platform/print_target.h"

class QPaintDevice;
class QPainter;

namespace tallyroll {

// Makes a unit of the painter a twip of its device.
void ScaleToTwips(QPainter& painter, const QPaintDevice& device);

class QtPrintTarget : public PrintTarget {
 public:
  // The painter's unit is a twip and its origin the corner of the sheet. Without one the target
  // only measures.
  explicit QtPrintTarget(const Sheet& sheet, QPainter* painter = nullptr);

  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  double AverageCharWidth() const override;
  FontReach ReachOf(const LetterFont& font) const override;
  double LetterWidth(std::u16string_view text, const LetterFont& font) const override;
  void DrawLetters(double x, double base, std::u16string_view text,
                   const LetterFont& font) override;
  void Line(double x1, double y1, double x2, double y2) override;
  void FillPolygon(const std::vector<PrintPoint>& corners, PrintColor color) override;
  void PrintUpwards(std::string_view text, double x, double y) override;
  void Cls() override;

 protected:
  void DrawTextAt(double x, double y, std::string_view text, double size) override;

 private:
  bool Draws() const;
  QPointF PlaceOnSheet(double x, double y) const;
  const QFontMetricsF& Metrics() const;
  struct FontOfLetters {
    LetterFont wanted;
    QFont font;
    QFontMetricsF metrics;
  };
  const FontOfLetters& Letters(const LetterFont& font) const;

  QPainter* painter_;
  // The font that the public members name, as it was when it was last used.
  mutable std::string name_;
  mutable double size_ = 0;
  mutable bool bold_ = false;
  mutable QFont font_;
  mutable QFontMetricsF metrics_;
  mutable std::vector<FontOfLetters> letters_;
};

}  // namespace tallyroll
