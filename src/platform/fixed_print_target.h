// SPDX-License-Identifier: GPL-3.0-or-later
// A surface whose every character is equally wide, and which remembers what was drawn: reports are
// laid out and looked at without a screen.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print_target.h"

namespace tallyroll {

struct PrintedText {
  double x = 0;
  double y = 0;
  std::string text;
  double size = 0;  // points
  bool bold = false;
  bool upwards = false;
  PrintColor color = 0;
  bool italic = false;
  std::string font = {};  // of letters, whose text is UTF-8

  friend bool operator==(const PrintedText&, const PrintedText&) = default;
};

struct PrintedLine {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  PrintColor color = 0;
  double width = 10;

  friend bool operator==(const PrintedLine&, const PrintedLine&) = default;
};

struct PrintedShape {
  std::vector<PrintPoint> corners;
  PrintColor color = 0;

  friend bool operator==(const PrintedShape&, const PrintedShape&) = default;
};

struct PrintedPage {
  std::vector<PrintedText> texts;
  std::vector<PrintedLine> lines;
  std::vector<PrintedShape> shapes;

  friend bool operator==(const PrintedPage&, const PrintedPage&) = default;
};

// What came out of a surface.
struct PrintedJob {
  std::string title;
  std::string path;  // of a PDF
  bool landscape = false;
  std::vector<PrintedPage> pages = std::vector<PrintedPage>(1);
  bool ended = false;
  bool killed = false;
  bool fails = false;  // it will come to nothing
};

// A character is as wide as ten times its points, and a line as high as twenty-four times: at 10
// points 100 and 240 twips. Of a line of letters three quarters stand above its base.
class FixedPrintTarget : public PrintTarget {
 public:
  enum class Kind { kBox, kPrinter };
  explicit FixedPrintTarget(Kind kind = Kind::kBox) : kind_(kind) {}

  bool IsPrinter() const override { return kind_ == Kind::kPrinter; }
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
  void NewPage() override;
  bool EndDoc() override {
    job->ended = true;
    return !job->killed && !job->fails;
  }
  void KillDoc() override { job->killed = true; }
  void Cls() override;

  // A printer has one page a sheet; a box has one page, that which was drawn since Cls.
  std::shared_ptr<PrintedJob> job = std::make_shared<PrintedJob>();

  // The texts of a page from top to bottom and left to right, a row a line, parted by single blanks
  // where they do not touch.
  static std::vector<std::string> RowsOf(const PrintedPage& page);

 protected:
  void DrawTextAt(double x, double y, std::string_view text, double size) override;

 private:
  Kind kind_;
};

}  // namespace tallyroll
