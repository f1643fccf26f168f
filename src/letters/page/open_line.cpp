// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/open_line.h"

#include <algorithm>
#include <utility>

namespace tallyroll {
namespace {

constexpr double kUsualTabs = 720;

}  // namespace

OpenLine::OpenLine(const ParagraphStyle& style, double start, double right)
    : style_(style),
      start_(start),
      right_(right),
      segment_start_(start),
      segment_end_(start),
      end_(start) {}

void OpenLine::Add(const LetterWord& word) {
  if (word.part == LetterPart::kText && decimal_ < 0) NoteDecimal(word);
  words_.push_back({word, segment_end_});
  segment_end_ += word.width;
  has_text_ = has_text_ || word.part == LetterPart::kText;
  end_ = EndWith(0);
}

bool OpenLine::AddTab(const LetterWord& tab) {
  TabStop stop = StopBehind(end_);
  if (stop.at > right_ + kSlack && stop.align == TabAlign::kLeft && !IsEmpty()) return false;
  stop.at = std::min(stop.at, static_cast<int>(right_));
  CloseSegment();
  stop_ = stop;
  segment_start_ = stop.align == TabAlign::kLeft ? std::max<double>(stop.at, end_) : end_;
  words_.push_back({tab, end_});
  words_.back().word.width = segment_start_ - end_;
  segment_end_ = segment_start_;
  segment_first_ = last_tab_ = words_.size();
  decimal_ = -1;
  end_ = EndWith(0);
  return true;
}

std::vector<PlacedWord> OpenLine::Finish(bool last) {
  CloseSegment();
  std::size_t shown = words_.size();
  while (shown > 0 && words_[shown - 1].word.part == LetterPart::kBlank) --shown;
  const double end = shown == 0 ? start_ : words_[shown - 1].x + words_[shown - 1].word.width;
  const double rest = std::max(right_ - end, 0.0);
  if (style_.align == TextAlign::kCenter) Shift(0, rest / 2);
  if (style_.align == TextAlign::kRight) Shift(0, rest);
  if (style_.align == TextAlign::kJustify && !last) Stretch(shown, rest);
  return std::move(words_);
}

// How far the text behind a tab is moved so that it ends, or has its middle or point, at the stop.
double OpenLine::Offset(double width) const {
  if (segment_first_ == 0) return 0;
  const double text = segment_end_ + width - segment_start_;
  double wanted = segment_start_;
  if (stop_.align == TabAlign::kRight) wanted = stop_.at - text;
  if (stop_.align == TabAlign::kCenter) wanted = stop_.at - text / 2;
  if (stop_.align == TabAlign::kDecimal) wanted = stop_.at - (decimal_ < 0 ? text : decimal_);
  return std::max(wanted - segment_start_, 0.0);
}

// What stands before the first point or comma of a figure.
void OpenLine::NoteDecimal(const LetterWord& word) {
  const std::size_t point = word.text.find_first_of(u".,");
  if (point == word.text.npos) return;
  const double share = static_cast<double>(point) / static_cast<double>(word.text.size());
  decimal_ = segment_end_ - segment_start_ + word.width * share;
}

void OpenLine::CloseSegment() {
  const double offset = Offset(0);
  if (offset > 0) Shift(segment_first_, offset);
  segment_first_ = 0;
  segment_end_ += offset;
  end_ = segment_end_;
}

void OpenLine::Shift(std::size_t first, double by) {
  for (std::size_t i = first; i < words_.size(); ++i) words_[i].x += by;
}

// The blanks behind the last tab take what is left of the line.
void OpenLine::Stretch(std::size_t shown, double rest) {
  std::size_t blanks = 0;
  for (std::size_t i = last_tab_; i < shown; ++i)
    if (words_[i].word.part == LetterPart::kBlank) blanks += words_[i].word.text.size();
  if (blanks == 0) return;
  for (std::size_t i = last_tab_; i < shown; ++i) {
    LetterWord& word = words_[i].word;
    if (word.part != LetterPart::kBlank) continue;
    const double wider = rest * static_cast<double>(word.text.size()) / static_cast<double>(blanks);
    word.width += wider;
    Shift(i + 1, wider);
  }
}

// Behind the paragraph's own stops there is one every half inch.
TabStop OpenLine::StopBehind(double x) const {
  for (const TabStop& tab : style_.tabs)
    if (tab.at > x + kSlack) return HangingStop(x, tab);
  const int reached = static_cast<int>((x + kSlack) / kUsualTabs);
  return HangingStop(x, {static_cast<int>((reached + 1) * kUsualTabs), TabAlign::kLeft});
}

// The indent is a stop for a first line that hangs out before it.
TabStop OpenLine::HangingStop(double x, const TabStop& stop) const {
  const bool hangs = style_.first < 0 && x + kSlack < style_.left && style_.left < stop.at;
  return hangs ? TabStop{style_.left, TabAlign::kLeft} : stop;
}

}  // namespace tallyroll
