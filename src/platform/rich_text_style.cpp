// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/rich_text_style.h"

#include <algorithm>

#include "platform/rich_text_box.h"

namespace tallyroll {
namespace {

// A paragraph with the part of the range that lies in it; its end counts as one unit.
struct TouchedParagraph {
  std::size_t index;
  std::size_t from, to;
};

std::vector<TouchedParagraph> Touched(const RichText& text, std::size_t at, std::size_t count) {
  std::vector<TouchedParagraph> touched;
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.paragraphs.size(); ++i) {
    const std::size_t length = LengthOf(text.paragraphs[i]);
    const std::size_t end = start + length;
    if (at <= end && (at + count > start || (count == 0 && at >= start)))
      touched.push_back({i, at > start ? at - start : 0, std::min(at + count - start, length)});
    start = end + 1;
  }
  return touched;
}

void RestyleRuns(Paragraph& paragraph, std::size_t from, std::size_t to,
                 const std::function<void(TextStyle&)>& change) {
  std::vector<TextRun> before = std::move(paragraph.runs);
  paragraph.runs.clear();
  std::size_t start = 0;
  for (const TextRun& run : before) {
    const std::size_t end = start + run.text.size();
    const std::size_t first = std::clamp(from, start, end) - start;
    const std::size_t last = std::clamp(to, start, end) - start;
    TextStyle changed = run.style;
    change(changed);
    const std::u16string_view view = run.text;
    AppendText(paragraph, view.substr(0, first), run.style);
    AppendText(paragraph, view.substr(first, last - first), changed);
    AppendText(paragraph, view.substr(last), run.style);
    start = end;
  }
}

}  // namespace

std::vector<TextStyle> StylesIn(const RichText& text, std::size_t at, std::size_t count) {
  std::vector<TextStyle> styles;
  for (const TouchedParagraph& part : Touched(text, at, count)) {
    std::size_t start = 0;
    for (const TextRun& run : text.paragraphs[part.index].runs) {
      const std::size_t end = start + run.text.size();
      if (start < part.to && end > part.from) styles.push_back(run.style);
      start = end;
    }
  }
  if (styles.empty()) styles.push_back(StyleAt(text, at));
  return styles;
}

TextStyle StyleAt(const RichText& text, std::size_t at) {
  const auto touched = Touched(text, at, 0);
  if (touched.empty()) return text.base;
  const Paragraph& paragraph = text.paragraphs[touched.front().index];
  if (paragraph.runs.empty()) return paragraph.mark;
  std::size_t end = 0;
  for (const TextRun& run : paragraph.runs) {
    end += run.text.size();
    if (end >= touched.front().from) return run.style;
  }
  return paragraph.runs.back().style;
}

TextAlign AlignAt(const RichText& text, std::size_t at) {
  const auto touched = Touched(text, at, 0);
  return touched.empty() ? TextAlign::kLeft : text.paragraphs[touched.front().index].style.align;
}

void Restyle(RichText& text, std::size_t at, std::size_t count,
             const std::function<void(TextStyle&)>& change) {
  for (const TouchedParagraph& part : Touched(text, at, count)) {
    Paragraph& paragraph = text.paragraphs[part.index];
    if (paragraph.runs.empty()) {
      change(paragraph.mark);
      continue;
    }
    RestyleRuns(paragraph, part.from, part.to, change);
    paragraph.mark = paragraph.runs.back().style;
  }
}

void RestyleParagraphs(RichText& text, std::size_t at, std::size_t count,
                       const std::function<void(ParagraphStyle&)>& change) {
  for (const TouchedParagraph& part : Touched(text, at, count))
    change(text.paragraphs[part.index].style);
}

void RichTextBox::ReplaceSelection(std::u16string_view by) {
  const auto at = static_cast<std::size_t>(SelStart);
  ReplaceText(Document, at, static_cast<std::size_t>(SelLength), by);
  SelStart += static_cast<int>(by.size());
  SelLength = 0;
  ++Revision;
}

}  // namespace tallyroll
