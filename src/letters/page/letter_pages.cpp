// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/letter_pages.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "letters/page/letter_lines.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr double kLeastSide = 720;
constexpr double kRuleWidth = 0.05, kRuleBelow = 0.1, kStrikeAbove = 0.25;  // of the font's size
constexpr double kTwipsOfPoint = 20;

// Margins are kept as negative numbers; one never set is the usual one.
double StoredMargin(const std::string& stored) {
  constexpr double kUsual = 500;
  return stored.empty() ? kUsual : -LeadingNumber(stored);
}

class PageFiller {
 public:
  PageFiller(LetterMeasure& measure, const LetterMargins& margins)
      : measure_(measure),
        margins_(margins),
        width_(std::max(measure.Target().ScaleWidth - margins.left - margins.right, kLeastSide)),
        height_(std::max(measure.Target().ScaleHeight - margins.top - margins.bottom, kLeastSide)) {
  }

  std::vector<LetterPage> Fill(const RichText& letter) {
    for (const Paragraph& paragraph : letter.paragraphs) Add(paragraph);
    return std::move(pages_);
  }

 private:
  // No room is left free above the first paragraph of a page, but for the letter's first.
  void Add(const Paragraph& paragraph) {
    if (paragraph.style.page_break_before && begun_) NextPage();
    if (!page_empty_ || !begun_) y_ += paragraph.style.before;
    begun_ = true;
    for (LetterLine& line : LinesOfParagraph(paragraph, width_, measure_)) Place(line);
    y_ += paragraph.style.after;
  }

  void Place(LetterLine& line) {
    if (y_ + line.height > height_ && !page_empty_) NextPage();
    for (LetterPiece& piece : line.pieces) {
      piece.x += margins_.left;
      piece.base += margins_.top + y_ + line.above;
      pages_.back().pieces.push_back(std::move(piece));
    }
    y_ += line.height;
    page_empty_ = false;
  }

  void NextPage() {
    pages_.emplace_back();
    y_ = 0;
    page_empty_ = true;
  }

  LetterMeasure& measure_;
  const LetterMargins margins_;
  double width_, height_;
  std::vector<LetterPage> pages_ = std::vector<LetterPage>(1);
  double y_ = 0;
  bool page_empty_ = true;
  bool begun_ = false;
};

void DrawPiece(PrintTarget& target, const LetterPiece& piece) {
  target.ForeColor = piece.color;
  if (!piece.text.empty()) target.DrawLetters(piece.x, piece.base, piece.text, piece.font);
  const double size = piece.font.size * kTwipsOfPoint;
  const auto rule = [&](double middle) {
    const double half = size * kRuleWidth / 2;
    target.FillRectangle(piece.x, middle - half, piece.x + piece.width, middle + half, piece.color);
  };
  if (piece.underline) rule(piece.base + size * kRuleBelow);
  if (piece.strike) rule(piece.base - size * kStrikeAbove);
}

}  // namespace

LetterMargins ChosenMargins() {
  return {StoredMargin(MarginLeft), StoredMargin(MarginTop), StoredMargin(MarginRight),
          StoredMargin(MarginBottom)};
}

std::vector<LetterPage> LayOutLetter(const RichText& letter, LetterMeasure& measure,
                                     const LetterMargins& margins) {
  return PageFiller(measure, margins).Fill(letter);
}

std::vector<LetterPage> LayOutLetter(const RichText& letter, const PrintTarget& target,
                                     const LetterMargins& margins) {
  LetterMeasure measure(target);
  return LayOutLetter(letter, measure, margins);
}

void DrawLetterPage(PrintTarget& target, const LetterPage& page) {
  const PrintColor color = target.ForeColor;
  const double left = target.ScaleLeft, top = target.ScaleTop;
  target.ScaleLeft = target.ScaleTop = 0;
  for (const LetterPiece& piece : page.pieces) DrawPiece(target, piece);
  target.ForeColor = color;
  target.ScaleLeft = left;
  target.ScaleTop = top;
}

}  // namespace tallyroll
