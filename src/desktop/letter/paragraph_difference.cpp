// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/paragraph_difference.h"

#include <algorithm>

#include "desktop/letter/rich_document.h"

namespace tallyroll {
namespace {

// A paragraph's text, and the style of each unit of it.
struct StyledUnits {
  explicit StyledUnits(const Paragraph& paragraph) : text(PlainText(paragraph)) {
    for (const TextRun& run : paragraph.runs)
      styles.insert(styles.end(), run.text.size(), &run.style);
  }
  // Whether the place is amid two units that are one character.
  bool Parts(std::size_t at) const {
    return at > 0 && at < text.size() && QChar::isHighSurrogate(text[at - 1]) &&
           QChar::isLowSurrogate(text[at]);
  }
  std::u16string text;
  std::vector<const TextStyle*> styles;
};

bool IsSame(const StyledUnits& a, std::size_t at, const StyledUnits& b, std::size_t b_at) {
  return a.text[at] == b.text[b_at] && *a.styles[at] == *b.styles[b_at];
}

std::size_t SameAtStart(const StyledUnits& a, const StyledUnits& b) {
  const std::size_t most = std::min(a.text.size(), b.text.size());
  std::size_t count = 0;
  while (count < most && IsSame(a, count, b, count)) ++count;
  return a.Parts(count) || b.Parts(count) ? count - 1 : count;
}

std::size_t SameAtEnd(const StyledUnits& a, const StyledUnits& b, std::size_t most) {
  const std::size_t a_end = a.text.size(), b_end = b.text.size();
  std::size_t count = 0;
  while (count < most && IsSame(a, a_end - 1 - count, b, b_end - 1 - count)) ++count;
  return a.Parts(a_end - count) || b.Parts(b_end - count) ? count - 1 : count;
}

std::vector<TextRun> RunsOf(const StyledUnits& units, std::size_t first, std::size_t end) {
  Paragraph part;
  for (; first < end; ++first) AppendText(part, {&units.text[first], 1}, *units.styles[first]);
  return part.runs;
}

}  // namespace

void ReplaceWithin(QTextDocument& document, int block, const Paragraph& was, const Paragraph& now) {
  const StyledUnits before(was), after(now);
  const std::size_t head = SameAtStart(before, after);
  const std::size_t least = std::min(before.text.size(), after.text.size());
  const std::size_t tail = SameAtEnd(before, after, least - head);
  const int start = document.findBlockByNumber(block).position();
  QTextCursor cursor(&document);
  cursor.setPosition(start + static_cast<int>(head));
  cursor.beginEditBlock();
  cursor.setPosition(start + static_cast<int>(before.text.size() - tail), QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  InsertRuns(cursor, RunsOf(after, head, after.text.size() - tail));
  CloseStep(cursor);
}

}  // namespace tallyroll
