// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/fixed_print_target.h"

#include <algorithm>

#include "platform/rich_text.h"

namespace tallyroll {
namespace {

constexpr double kWidthOfPoint = 10;
constexpr double kHeightOfPoint = 24;
constexpr double kAboveBase = 18;  // of those

}  // namespace

double FixedPrintTarget::TextWidth(std::string_view text) const {
  return static_cast<double>(text.size()) * AverageCharWidth();
}

double FixedPrintTarget::TextHeight(std::string_view /*text*/) const {
  return FontSize * kHeightOfPoint;
}

double FixedPrintTarget::AverageCharWidth() const {
  return FontSize * kWidthOfPoint;
}

FontReach FixedPrintTarget::ReachOf(const LetterFont& font) const {
  return {font.size * kAboveBase, font.size * (kHeightOfPoint - kAboveBase)};
}

double FixedPrintTarget::LetterWidth(std::u16string_view text, const LetterFont& font) const {
  return static_cast<double>(text.size()) * font.size * kWidthOfPoint;
}

void FixedPrintTarget::DrawLetters(double x, double base, std::u16string_view text,
                                   const LetterFont& font) {
  job->pages.back().texts.push_back({x, base - font.size * kAboveBase, Utf8FromUtf16(text),
                                     font.size, font.bold, false, ForeColor, font.italic,
                                     font.name});
}

void FixedPrintTarget::Line(double x1, double y1, double x2, double y2) {
  job->pages.back().lines.push_back({x1, y1, x2, y2, ForeColor, LineWidth});
}

void FixedPrintTarget::FillPolygon(const std::vector<PrintPoint>& corners, PrintColor color) {
  job->pages.back().shapes.push_back({corners, color});
}

void FixedPrintTarget::PrintUpwards(std::string_view text, double x, double y) {
  job->pages.back().texts.push_back({x, y, std::string(text), FontSize, FontBold, true, ForeColor});
}

void FixedPrintTarget::NewPage() {
  job->pages.emplace_back();
  CurrentX = CurrentY = 0;
}

void FixedPrintTarget::Cls() {
  job->pages.back() = {};
  CurrentX = CurrentY = 0;
}

void FixedPrintTarget::DrawTextAt(double x, double y, std::string_view text, double size) {
  job->pages.back().texts.push_back({x, y, std::string(text), size, FontBold, false, ForeColor});
}

std::vector<std::string> FixedPrintTarget::RowsOf(const PrintedPage& page) {
  std::vector<PrintedText> texts;
  for (const PrintedText& each : page.texts)
    if (!each.upwards) texts.push_back(each);
  std::stable_sort(texts.begin(), texts.end(), [](const PrintedText& a, const PrintedText& b) {
    return a.y != b.y ? a.y < b.y : a.x < b.x;
  });
  std::vector<std::string> rows;
  const PrintedText* before = nullptr;
  for (const PrintedText& each : texts) {
    if (!before || before->y != each.y) {
      rows.push_back(each.text);
    } else {
      const double end =
          before->x + static_cast<double>(before->text.size()) * before->size * kWidthOfPoint;
      rows.back() += (each.x > end ? " " : "") + each.text;
    }
    before = &each;
  }
  return rows;
}

}  // namespace tallyroll
