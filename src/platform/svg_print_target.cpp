// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/svg_print_target.h"

#include <array>
#include <cmath>

#include "base/code_page.h"
#include "base/number_text.h"
#include "platform/rich_text.h"

namespace tallyroll {
namespace {

constexpr double kSvgTwipsPerPoint = 20;
constexpr double kAscent = 0.905, kLineHeight = 1.149;  // of the font's size
constexpr double kBoldFactor = 1.06;

// Of the characters from blank to "~", in thousandths of the font's size.
constexpr std::array<int, 95> kWidths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr unsigned char kThreePoints = 0x85;

int WidthOf(unsigned char character) {
  if (character >= 32 && character < 127) return kWidths[character - 32U];
  return character == kThreePoints ? 1000 : 600;
}

// Points with at most two decimals: a hundredth of a point is seen by nobody.
std::string Points(double twips) {
  const double rounded = std::round(twips / kSvgTwipsPerPoint * 100) / 100;
  return PlainNumberText(rounded == 0 ? 0.0 : rounded);
}

std::string ColorText(PrintColor color) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[color >> shift & 0xF];
  return text;
}

std::string Escaped(const std::string& utf8) {
  std::string escaped;
  for (const char c : utf8) {
    if (c == '&')
      escaped += "&amp;";
    else if (c == '<')
      escaped += "&lt;";
    else if (static_cast<unsigned char>(c) >= 32)
      escaped += c;
  }
  return escaped;
}

}  // namespace

SvgPrintTarget::SvgPrintTarget(double width, double height) {
  Width = ScaleWidth = width;
  Height = ScaleHeight = height;
}

std::string SvgPrintTarget::File(std::string_view title) const {
  const std::string width = Points(Width), height = Points(Height);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         width + "pt\" height=\"" + height + "pt\" viewBox=\"0 0 " + width + " " + height +
         "\" font-family=\"Arial, Liberation Sans, Helvetica, sans-serif\" role=\"img\">\n<title>" +
         Escaped(Utf8FromCodePage(title)) + "</title>\n" + body_ + "</svg>\n";
}

double SvgPrintTarget::TextWidth(std::string_view text) const {
  int thousandths = 0;
  for (const char c : text) thousandths += WidthOf(static_cast<unsigned char>(c));
  return thousandths * FontSize * kSvgTwipsPerPoint / 1000 * (FontBold ? kBoldFactor : 1);
}

double SvgPrintTarget::TextHeight(std::string_view /*text*/) const {
  return FontSize * kSvgTwipsPerPoint * kLineHeight;
}

double SvgPrintTarget::AverageCharWidth() const {
  return TextWidth("n");
}

FontReach SvgPrintTarget::ReachOf(const LetterFont& font) const {
  const double twips = font.size * kSvgTwipsPerPoint;
  return {twips * kAscent, twips * (kLineHeight - kAscent)};
}

double SvgPrintTarget::LetterWidth(std::u16string_view text, const LetterFont& font) const {
  int thousandths = 0;
  for (const char16_t unit : text)
    thousandths += WidthOf(unit < 256 ? static_cast<unsigned char>(unit) : 255);
  return thousandths * font.size * kSvgTwipsPerPoint / 1000 * (font.bold ? kBoldFactor : 1);
}

void SvgPrintTarget::DrawLetters(double x, double base, std::u16string_view text,
                                 const LetterFont& font) {
  body_ += "<text x=\"" + Points(x) + "\" y=\"" + Points(base) + "\" font-family=\"" +
           Escaped(font.name) + "\" font-size=\"" + Points(font.size * kSvgTwipsPerPoint) + "\"" +
           (font.bold ? " font-weight=\"bold\"" : "") +
           (font.italic ? " font-style=\"italic\"" : "") + " fill=\"" + ColorText(ForeColor) +
           "\" xml:space=\"preserve\">" + Escaped(Utf8FromUtf16(text)) + "</text>\n";
}

void SvgPrintTarget::Line(double x1, double y1, double x2, double y2) {
  body_ += "<line x1=\"" + Points(x1) + "\" y1=\"" + Points(y1) + "\" x2=\"" + Points(x2) +
           "\" y2=\"" + Points(y2) + "\" stroke=\"" + ColorText(ForeColor) + "\" stroke-width=\"" +
           Points(LineWidth) + "\"/>\n";
}

void SvgPrintTarget::FillPolygon(const std::vector<PrintPoint>& corners, PrintColor color) {
  body_ += "<polygon fill=\"" + ColorText(color) + "\" points=\"";
  for (std::size_t i = 0; i < corners.size(); ++i)
    body_ += (i == 0 ? "" : " ") + Points(corners[i].x) + "," + Points(corners[i].y);
  body_ += "\"/>\n";
}

void SvgPrintTarget::AddText(std::string_view text, double size, const std::string& place) {
  if (text.empty()) return;
  body_ += "<text " + place + " font-size=\"" + Points(size * kSvgTwipsPerPoint) + "\"" +
           (FontBold ? " font-weight=\"bold\"" : "") + " fill=\"" + ColorText(ForeColor) +
           "\" xml:space=\"preserve\">" + Escaped(Utf8FromCodePage(text)) + "</text>\n";
}

void SvgPrintTarget::DrawTextAt(double x, double y, std::string_view text, double size) {
  const double base = y + size * kSvgTwipsPerPoint * kAscent;
  AddText(text, size, "x=\"" + Points(x) + "\" y=\"" + Points(base) + "\"");
}

void SvgPrintTarget::PrintUpwards(std::string_view text, double x, double y) {
  const double base = x + FontSize * kSvgTwipsPerPoint * kAscent;
  AddText(text, FontSize,
          "transform=\"translate(" + Points(base) + "," + Points(y) + ") rotate(-90)\"");
}

void SvgPrintTarget::Cls() {
  body_.clear();
  CurrentX = CurrentY = 0;
}

}  // namespace tallyroll
