// SPDX-License-Identifier: GPL-3.0-or-later
// The surface that every report is drawn on: the printer, a page of the preview, a page of a PDF,
// or the hidden one on which a report is laid out to find its page breaks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

using PrintColor = std::uint32_t;  // 0xRRGGBB

struct PrintPoint {
  double x = 0;
  double y = 0;

  friend bool operator==(const PrintPoint&, const PrintPoint&) = default;
};

// The font of a piece of a letter, which changes within a line.
struct LetterFont {
  std::string name;  // UTF-8
  double size = 12;  // points
  bool bold = false;
  bool italic = false;

  friend bool operator==(const LetterFont&, const LetterFont&) = default;
};

// How far a font reaches above and below the line it stands on.
struct FontReach {
  double above = 0;
  double below = 0;
};

// Lengths in twips, 1/1440 inch. The origin is the corner of the margins once the page is set up.
class PrintTarget {
 public:
  virtual ~PrintTarget() = default;

  // The pen: the upper left corner of what is printed next.
  double CurrentX = 0;
  double CurrentY = 0;

  std::string FontName = "Times New Roman";
  double FontSize = 10;  // points
  bool FontBold = false;
  PrintColor ForeColor = 0;  // of text and lines
  double LineWidth = 10;

  // The sheet, what of it can be printed on, and where the upper left corner of that lies.
  double Width = 12240;
  double Height = 15840;
  double ScaleWidth = 12240;
  double ScaleHeight = 15840;
  double ScaleLeft = 0;
  double ScaleTop = 0;

  // Whether sheets leave it for good, so that cancelling matters.
  virtual bool IsPrinter() const { return false; }

  // In the current font. Height is that of a line.
  virtual double TextWidth(std::string_view text) const = 0;
  virtual double TextHeight(std::string_view text) const = 0;
  virtual double AverageCharWidth() const = 0;

  // At the pen; afterwards the pen stands at the left edge of the next line, or behind the text.
  void Print(std::string_view text = {});
  void PrintOpen(std::string_view text);
  // At the pen and no wider than `room`: what is wider is set smaller, and what would be too small
  // to read is cut with an ellipsis. The pen goes behind it.
  void PrintWithin(std::string_view text, double room);
  // The text, or as much of its beginning as `room` holds with an ellipsis behind.
  std::string Shortened(std::string_view text, double room) const;
  // How many of the text's characters `room` holds.
  std::size_t Fitting(std::string_view text, double room) const;
  // The pen goes to a column of the target's average character, the first being 1. What reaches
  // that column already is neither printed over nor touched: the pen goes one blank behind it.
  void Tab(int column);

  // Letters say for each piece which font it has, and hold what no code page does.
  virtual FontReach ReachOf(const LetterFont& font) const = 0;
  virtual double LetterWidth(std::u16string_view text, const LetterFont& font) const = 0;
  // In ForeColor; `base` is the line it stands on.
  virtual void DrawLetters(double x, double base, std::u16string_view text,
                           const LetterFont& font) = 0;

  virtual void Line(double x1, double y1, double x2, double y2) = 0;
  // A surface without an outline.
  virtual void FillPolygon(const std::vector<PrintPoint>& corners, PrintColor color) = 0;
  void FillRectangle(double x1, double y1, double x2, double y2, PrintColor color);
  // Text that runs upwards, its beginning at the bottom: x is its left edge, y its lower end.
  virtual void PrintUpwards(std::string_view text, double x, double y) = 0;

  virtual void NewPage() {}  // printers: the sheet is done, another one begins
  // Printers: the last sheet is done, the job goes out. False when it came to nothing.
  virtual bool EndDoc() { return true; }
  virtual void KillDoc() {}  // printers: what was not sent yet is dropped
  virtual void Cls() {}      // other surfaces: clean, with the pen at the origin

 protected:
  // In `size` points, which are FontSize or fewer, on the base line of the current font.
  virtual void DrawTextAt(double x, double y, std::string_view text, double size) = 0;
};

}  // namespace tallyroll
