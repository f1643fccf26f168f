// SPDX-License-Identifier: GPL-3.0-or-later
// A rich text to the toolkit's document and back, paragraph by paragraph.
#pragma once

#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>

#include "platform/rich_text.h"

namespace tallyroll {

QTextCharFormat FormatOf(const TextStyle& style);
// What the format does not say is as in `base`.
TextStyle StyleOf(const QTextCharFormat& format, const TextStyle& base);

QTextBlockFormat FormatOf(const ParagraphStyle& style);
ParagraphStyle StyleOf(const QTextBlockFormat& format);
TextAlign AlignOf(const QTextBlockFormat& format);

// Pictures and what else is no text are left out.
Paragraph ParagraphOf(const QTextBlock& block, const TextStyle& base);
RichText RichTextOf(const QTextDocument& document, const TextStyle& base);

// Ends an edit block, so that what is typed next to it is a step of its own to be undone.
void CloseStep(QTextCursor& cursor);
void InsertRuns(QTextCursor& cursor, const std::vector<TextRun>& runs);

// Puts paragraphs in the place of the cursor's selection. The last of them runs on into what stands
// behind it, and the first stays what it was where text stands before the cursor.
void InsertParagraphs(QTextCursor cursor, const std::vector<Paragraph>& paragraphs);
// Puts paragraphs in the place of whole blocks, from the `first` to before the `end`; neither is
// nothing.
void ReplaceBlocks(QTextDocument& document, int first, int end, const Paragraph* begin_new,
                   const Paragraph* end_new);
// Puts a text in the place of the cursor's selection.
void InsertAsStep(QTextCursor cursor, const QString& text);

}  // namespace tallyroll
