// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_story.h"

#include <iterator>
#include <utility>

namespace tallyroll {

void RtfStory::Append(std::u16string_view text, const TextStyle& style) {
  if (text.empty()) return;
  if (tabs_due_ > 0) {
    AppendText(open_, std::u16string(static_cast<std::size_t>(tabs_due_), u'\t'), style);
    tabs_due_ = 0;
    row_open_ = true;
  }
  AppendText(open_, text, style);
}

void RtfStory::Close(ParagraphStyle style, const TextStyle& mark) {
  style.page_break_before = style.page_break_before || page_due_;
  open_.style = std::move(style);
  if (open_.runs.empty()) open_.mark = mark;
  done_.push_back(std::exchange(open_, {}));
  done_.insert(done_.end(), std::make_move_iterator(behind_.begin()),
               std::make_move_iterator(behind_.end()));
  behind_.clear();
  page_due_ = row_open_ = false;
  tabs_due_ = 0;
}

void RtfStory::EndParagraph(const ParagraphStyle& style, const TextStyle& mark) {
  Close(style, mark);
}

void RtfStory::BreakPage(const ParagraphStyle& style, const TextStyle& mark) {
  if (!open_.runs.empty()) Close(style, mark);
  page_due_ = true;
}

void RtfStory::NoPageAfterAll() {
  if (open_.runs.empty()) page_due_ = false;
}

void RtfStory::EndRowLine(const TextStyle& mark) {
  tabs_due_ = 0;
  AppendText(open_, u"\n", mark);
}

void RtfStory::EndRow(const ParagraphStyle& style, const TextStyle& mark) {
  Close(style, mark);
}

void RtfStory::PutBehind(std::vector<Paragraph> paragraphs) {
  behind_.insert(behind_.end(), std::make_move_iterator(paragraphs.begin()),
                 std::make_move_iterator(paragraphs.end()));
}

std::vector<Paragraph> RtfStory::Finish(const ParagraphStyle& style, const TextStyle& mark) {
  const bool nothing_open = open_.runs.empty() && !page_due_ && behind_.empty();
  if (!nothing_open || done_.empty()) Close(style, mark);
  return std::move(done_);
}

}  // namespace tallyroll
