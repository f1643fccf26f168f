// SPDX-License-Identifier: GPL-3.0-or-later
// Paragraphs as they come out of a rich text file: the letter itself, or a header, a footnote or a
// text box beside it.
#pragma once

#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace tallyroll {

class RtfStory {
 public:
  void Append(std::u16string_view text, const TextStyle& style);
  // The paragraph takes the style that is in force where it ends.
  void EndParagraph(const ParagraphStyle& style, const TextStyle& mark);
  void BreakPage(const ParagraphStyle& style, const TextStyle& mark);
  // The page that a section began with is taken back.
  void NoPageAfterAll();
  // A row of a table is a paragraph, its cells parted by tabs.
  void EndCell() { ++tabs_due_; }
  void EndRowLine(const TextStyle& mark);  // of a table in a cell
  void EndRow(const ParagraphStyle& style, const TextStyle& mark);
  bool IsInRow() const { return tabs_due_ > 0 || row_open_; }
  // Paragraphs that follow the one in work.
  void PutBehind(std::vector<Paragraph> paragraphs);
  // Ends the last paragraph; one that the last paragraph's own end has opened is none.
  std::vector<Paragraph> Finish(const ParagraphStyle& style, const TextStyle& mark);

 private:
  void Close(ParagraphStyle style, const TextStyle& mark);

  std::vector<Paragraph> done_;
  std::vector<Paragraph> behind_;
  Paragraph open_;
  bool page_due_ = false;
  int tabs_due_ = 0;  // cells that have ended, while nothing has come behind them
  bool row_open_ = false;
};

}  // namespace tallyroll
