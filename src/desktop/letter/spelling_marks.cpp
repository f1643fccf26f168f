// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/spelling_marks.h"

namespace tallyroll {

void SpellingMarks::highlightBlock(const QString& text) {
  QTextCharFormat wrong;
  wrong.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
  wrong.setUnderlineColor(QColor(0xc0, 0x00, 0x00));
  for (const SpelledWord& word : WordsToCheck(text))
    if (!spelling_.Knows(text.mid(word.start, word.length)))
      setFormat(static_cast<int>(word.start), static_cast<int>(word.length), wrong);
}

}  // namespace tallyroll
