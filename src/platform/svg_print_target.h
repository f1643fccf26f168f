// SPDX-License-Identifier: GPL-3.0-or-later
// A page as a vector drawing (SVG). Text is measured by the widths of the usual sans-serif face, so
// the same drawing has the same bytes everywhere.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print_target.h"

namespace tallyroll {

class SvgPrintTarget : public PrintTarget {
 public:
  // In twips.
  SvgPrintTarget(double width, double height);

  // The whole file, in UTF-8. `title` is what a reader without eyes is told.
  std::string File(std::string_view title) const;

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
  void AddText(std::string_view text, double size, const std::string& place);

  std::string body_;
};

}  // namespace tallyroll
