// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/rich_text.h"

#include <algorithm>
#include <cassert>

namespace tallyroll {
namespace {

// Where a place of the text lies.
struct TextPosition {
  std::size_t paragraph = 0;
  std::size_t offset = 0;
};

TextPosition PositionOf(const RichText& text, std::size_t at) {
  TextPosition position;
  while (position.paragraph + 1 < text.paragraphs.size()) {
    const std::size_t length = LengthOf(text.paragraphs[position.paragraph]);
    if (at <= length) break;
    at -= length + 1;
    ++position.paragraph;
  }
  position.offset = std::min(at, LengthOf(text.paragraphs[position.paragraph]));
  return position;
}

// The style in which something is put there: of the first unit replaced, otherwise of the one
// before.
TextStyle StyleAt(const Paragraph& paragraph, std::size_t offset, bool replaces) {
  if (paragraph.runs.empty()) return paragraph.mark;
  std::size_t end = 0;
  for (const TextRun& run : paragraph.runs) {
    end += run.text.size();
    if (replaces ? offset < end : offset <= end) return run.style;
  }
  return paragraph.runs.back().style;
}

// The runs of a paragraph from `from` up to `to`.
void AppendPart(Paragraph& to, const Paragraph& from, std::size_t begin, std::size_t end) {
  std::size_t start = 0;
  for (const TextRun& run : from.runs) {
    const std::size_t first = std::max(begin, start);
    const std::size_t last = std::min(end, start + run.text.size());
    if (first < last)
      AppendText(to, std::u16string_view(run.text).substr(first - start, last - first), run.style);
    start += run.text.size();
  }
}

// The end of a line at `at`, "\r\n" being one; its length is given.
std::size_t FindLineEnd(std::u16string_view text, std::size_t& length) {
  const std::size_t at = text.find_first_of(u"\r\n");
  length = at != text.npos && text.substr(at).starts_with(u"\r\n") ? 2 : 1;
  return at;
}

std::vector<std::u16string_view> LinesOfText(std::u16string_view text) {
  std::vector<std::u16string_view> lines;
  std::size_t length = 0;
  for (;;) {
    const std::size_t at = FindLineEnd(text, length);
    lines.push_back(text.substr(0, at));
    if (at == text.npos) return lines;
    text.remove_prefix(at + length);
  }
}

bool IsControl(char16_t unit) {
  return (unit < 0x20 && unit != u'\t' && unit != u'\n') || unit == 0x7F;
}

}  // namespace

std::size_t LengthOf(const Paragraph& paragraph) {
  std::size_t length = 0;
  for (const TextRun& run : paragraph.runs) length += run.text.size();
  return length;
}

std::size_t LengthOf(const RichText& text) {
  std::size_t length = text.paragraphs.size() - 1;
  for (const Paragraph& paragraph : text.paragraphs) length += LengthOf(paragraph);
  return length;
}

std::u16string PlainText(const Paragraph& paragraph) {
  std::u16string plain;
  for (const TextRun& run : paragraph.runs) plain += run.text;
  return plain;
}

std::u16string PlainText(const RichText& text) {
  std::u16string plain;
  plain.reserve(LengthOf(text));
  for (const Paragraph& paragraph : text.paragraphs) {
    if (&paragraph != &text.paragraphs.front()) plain += u'\n';
    for (const TextRun& run : paragraph.runs) plain += run.text;
  }
  return plain;
}

void AppendText(Paragraph& paragraph, std::u16string_view text, const TextStyle& style) {
  if (text.empty()) return;
  if (paragraph.runs.empty() || paragraph.runs.back().style != style)
    paragraph.runs.push_back({{}, style});
  std::u16string& run = paragraph.runs.back().text;
  const std::size_t start = run.size();
  run += text;
  std::replace_if(run.begin() + static_cast<std::ptrdiff_t>(start), run.end(), IsControl, u' ');
  paragraph.mark = style;
}

RichText RichTextOf(std::u16string_view plain, const TextStyle& style) {
  RichText text;
  text.base = style;
  text.paragraphs.clear();
  for (const std::u16string_view line : LinesOfText(plain)) {
    Paragraph& paragraph = text.paragraphs.emplace_back();
    paragraph.mark = style;
    AppendText(paragraph, line, style);
  }
  return text;
}

void ReplaceText(RichText& text, std::size_t at, std::size_t count, std::u16string_view by) {
  const TextPosition begin = PositionOf(text, at), end = PositionOf(text, at + count);
  const Paragraph first = text.paragraphs[begin.paragraph];
  const Paragraph last = text.paragraphs[end.paragraph];
  const TextStyle style = StyleAt(first, begin.offset, count > 0);
  std::vector<Paragraph> now;
  for (const std::u16string_view line : LinesOfText(by)) {
    Paragraph& paragraph = now.emplace_back();
    paragraph.style = first.style;
    paragraph.mark = style;
    if (now.size() == 1)
      AppendPart(paragraph, first, 0, begin.offset);
    else
      paragraph.style.page_break_before = false;
    AppendText(paragraph, line, style);
  }
  AppendPart(now.back(), last, end.offset, LengthOf(last));
  const auto place = text.paragraphs.begin() + static_cast<std::ptrdiff_t>(begin.paragraph);
  const auto behind = text.paragraphs.begin() + static_cast<std::ptrdiff_t>(end.paragraph) + 1;
  text.paragraphs.insert(text.paragraphs.erase(place, behind), std::make_move_iterator(now.begin()),
                         std::make_move_iterator(now.end()));
}

}  // namespace tallyroll
