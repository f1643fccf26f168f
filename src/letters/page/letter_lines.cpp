// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/letter_lines.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "letters/page/open_line.h"

namespace tallyroll {
namespace {

constexpr double kLeastRoom = 360;
constexpr double kWholeLine = 240;

class LineBreaker {
 public:
  LineBreaker(const Paragraph& paragraph, double room, LetterMeasure& measure)
      : paragraph_(paragraph),
        style_(paragraph.style),
        measure_(measure),
        left_(std::clamp(static_cast<double>(style_.left), 0.0, room - kLeastRoom)),
        right_(std::max(room - std::max(style_.right, 0), left_ + kLeastRoom)),
        words_(WordsOfParagraph(paragraph, measure)) {}

  std::vector<LetterLine> Lines() {
    Begin(left_ + style_.first);
    for (std::size_t at = 0; at < words_.size();) at = Take(at);
    End(true);
    return std::move(lines_);
  }

 private:
  void Begin(double start) {
    start = std::clamp(start, 0.0, right_ - kLeastRoom);
    line_.emplace_back(style_, start, right_);
  }

  void End(bool last) {
    LetterLine line;
    std::vector<PlacedWord> words = line_.back().Finish(last);
    line_.clear();
    const LetterMeasure::Face& empty = measure_.FaceOf(paragraph_.mark);
    double above = words.empty() ? EmptyFace(empty).above : 0;
    double below = words.empty() ? EmptyFace(empty).below : 0;
    for (const PlacedWord& placed : words) {
      above = std::max(above, placed.word.face->above);
      below = std::max(below, placed.word.face->below);
    }
    AddPieces(line, words);
    SetHeight(line, above, below);
    lines_.push_back(std::move(line));
    Begin(left_);
  }

  // A line of nothing is as high as the one that it was parted from.
  const LetterMeasure::Face& EmptyFace(const LetterMeasure::Face& mark) const {
    return ended_by_ ? *ended_by_ : mark;
  }

  void SetHeight(LetterLine& line, double above, double below) const {
    const double natural = above + below;
    line.above = above;
    if (style_.line_rule == LineRule::kMultiple)
      line.height = natural * style_.line / kWholeLine;
    else if (style_.line_rule == LineRule::kAtLeast)
      line.height = std::max<double>(natural, style_.line);
    else
      line.height = style_.line;
    if (style_.line_rule != LineRule::kMultiple) line.above += line.height - natural;
  }

  std::size_t Take(std::size_t at) {
    const LetterWord& word = words_[at];
    OpenLine& line = line_.back();
    if (word.part == LetterPart::kLineEnd) {
      ended_by_ = word.face;
      End(true);
      return at + 1;
    }
    if (word.part == LetterPart::kTab) {
      if (!line.AddTab(word)) {
        End(false);
        line_.back().AddTab(word);
      }
      return at + 1;
    }
    if (word.part == LetterPart::kBlank) {
      line.Add(word);
      return at + 1;
    }
    return TakeText(at);
  }

  // Words of several styles that stand together go to the next line together.
  std::size_t TakeText(std::size_t at) {
    double width = 0;
    std::size_t end = at;
    do {
      width += words_[end].width;
      ++end;
    } while (end < words_.size() && words_[end].part == LetterPart::kText &&
             !words_[end - 1].may_end);
    if (!line_.back().Holds(width) && !line_.back().IsEmpty()) {
      const bool would_fit_alone = width <= right_ - left_ + kSlack;
      if (would_fit_alone || line_.back().HasText()) End(false);
    }
    if (line_.back().Holds(width)) {
      for (std::size_t i = at; i < end; ++i) line_.back().Add(words_[i]);
    } else {
      for (std::size_t i = at; i < end; ++i) AddInParts(words_[i]);
    }
    return end;
  }

  void AddInParts(LetterWord word) {
    while (!line_.back().Holds(word.width)) {
      if (line_.back().Room() <= 0 && !line_.back().IsEmpty()) End(false);
      LetterWord part = word;
      part.text = word.text.substr(0, FittingUnits(word, line_.back().Room(), measure_));
      if (part.text.size() == word.text.size()) break;
      part.width = measure_.WidthOf(*word.face, part.text);
      if (!line_.back().Holds(part.width) && line_.back().HasText()) {
        End(false);
        continue;
      }
      line_.back().Add(part);
      End(false);
      word.text.remove_prefix(part.text.size());
      word.width = measure_.WidthOf(*word.face, word.text);
    }
    line_.back().Add(word);
  }

  // What one piece of paper text can say is one piece: neighbours of one style whose blanks are as
  // wide as they are.
  void AddPieces(LetterLine& line, const std::vector<PlacedWord>& words) {
    const LetterMeasure::Face* before = nullptr;
    for (const PlacedWord& placed : words) {
      const LetterWord& word = placed.word;
      const TextStyle& style = word.face->style;
      const bool ruled = style.underline || style.strike;
      if (word.part == LetterPart::kTab) {
        before = nullptr;
        if (!ruled) continue;
      }
      LetterPiece* open = line.pieces.empty() ? nullptr : &line.pieces.back();
      const bool joins = before == word.face && open &&
                         std::abs(open->x + open->width - placed.x) < kSlack * 10 && !IsWide(word);
      if (joins) {
        open->text += word.text;
        open->width += word.width;
        continue;
      }
      if (word.part == LetterPart::kBlank && !ruled && !joins) {
        before = nullptr;
        continue;
      }
      line.pieces.push_back(PieceOf(placed));
      before = IsWide(word) || word.part == LetterPart::kTab ? nullptr : word.face;
    }
    TrimPieces(line.pieces);
  }

  bool IsWide(const LetterWord& word) const {
    return word.part == LetterPart::kBlank &&
           std::abs(word.width - measure_.WidthOf(*word.face, word.text)) > kSlack;
  }

  static LetterPiece PieceOf(const PlacedWord& placed) {
    const TextStyle& style = placed.word.face->style;
    LetterPiece piece;
    piece.x = placed.x;
    piece.base = -placed.word.face->raised;
    piece.width = placed.word.width;
    if (placed.word.part != LetterPart::kTab) piece.text = placed.word.text;
    piece.font = placed.word.face->font;
    piece.color = style.color == kAutomaticColor ? 0 : static_cast<PrintColor>(style.color);
    piece.underline = style.underline;
    piece.strike = style.strike;
    return piece;
  }

  // Blanks at the end of a line are shown where they are ruled: to be written on.
  static void TrimPieces(std::vector<LetterPiece>& pieces) {
    if (pieces.empty() || pieces.back().underline || pieces.back().strike) return;
    std::u16string& text = pieces.back().text;
    text.erase(text.find_last_not_of(u' ') + 1);
  }

  const Paragraph& paragraph_;
  const ParagraphStyle& style_;
  LetterMeasure& measure_;
  double left_, right_;
  std::vector<LetterWord> words_;
  std::vector<OpenLine> line_;  // the one in work
  std::vector<LetterLine> lines_;
  const LetterMeasure::Face* ended_by_ = nullptr;
};

}  // namespace

std::vector<LetterLine> LinesOfParagraph(const Paragraph& paragraph, double room,
                                         LetterMeasure& measure) {
  return LineBreaker(paragraph, std::max(room, 2 * kLeastRoom), measure).Lines();
}

}  // namespace tallyroll
