// SPDX-License-Identifier: GPL-3.0-or-later
// One line of a letter as it fills up from the left: tabs, and how the line lies in the end.
#pragma once

#include <vector>

#include "letters/page/letter_words.h"

namespace tallyroll {

inline constexpr double kSlack = 0.01;  // of sums of widths, which are no whole numbers

struct PlacedWord {
  LetterWord word;
  double x = 0;
};

class OpenLine {
 public:
  OpenLine(const ParagraphStyle& style, double start, double right);

  bool IsEmpty() const { return words_.empty(); }
  bool HasText() const { return has_text_; }
  // Whether a word that wide ends before the right edge.
  bool Holds(double width) const { return EndWith(width) <= right_ + kSlack; }
  double Room() const { return right_ - end_; }

  void Add(const LetterWord& word);
  // False when no stop is left: the tab then goes to the next line.
  bool AddTab(const LetterWord& tab);
  // The words at their places. `last`: the line is not stretched to the right edge.
  std::vector<PlacedWord> Finish(bool last);

 private:
  double Offset(double width) const;
  double EndWith(double width) const { return segment_end_ + width + Offset(width); }
  void NoteDecimal(const LetterWord& word);
  void CloseSegment();
  void Shift(std::size_t first, double by);
  void Stretch(std::size_t shown, double rest);
  TabStop StopBehind(double x) const;
  TabStop HangingStop(double x, const TabStop& stop) const;

  const ParagraphStyle& style_;
  double start_, right_;
  std::vector<PlacedWord> words_;
  bool has_text_ = false;
  std::size_t last_tab_ = 0;
  // Behind a tab whose text is not set from its left, that text is placed when it is whole.
  std::size_t segment_first_ = 0;  // 0: it is set from the left
  TabStop stop_;
  double segment_start_, segment_end_;
  double decimal_ = -1;  // width before the point, once there is one
  double end_;
};

}  // namespace tallyroll
