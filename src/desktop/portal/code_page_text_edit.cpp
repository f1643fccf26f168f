// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/code_page_text_edit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <algorithm>
#include <limits>

#include "desktop/basics/refused_character.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

int LengthInLogic(const QString& text) {
  return static_cast<int>(text.size() + text.count(QLatin1Char('\n')));
}

bool IsInsertion(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return true;
  return !event.text().isEmpty() && event.text().at(0).isPrint() &&
         !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

}  // namespace

CodePageTextEdit::CodePageTextEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  const int own = frameWidth() + qRound(document()->documentMargin());
  // Its words begin where those of a field of one line do.
  const int beside = std::max(0, ScreenMeasures().BesideWords() - own);
  setViewportMargins(beside, 0, beside, 0);
}

void CodePageTextEdit::keyPressEvent(QKeyEvent* event) {
  const bool line_end = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString text = line_end ? QStringLiteral("\n") : event->text();
  if (!isReadOnly() && IsInsertion(*event) && (!Admits(text) || Room() < LengthInLogic(text))) {
    event->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void CodePageTextEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QString text = event->commitString();
  if (!Admits(text) || Room() < LengthInLogic(text)) event->setCommitString({});
  QPlainTextEdit::inputMethodEvent(event);
}

void CodePageTextEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly() || !source->hasText()) return;
  QString text = source->text();
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  if (!Admits(text)) return;
  while (LengthInLogic(text) > std::max(Room(), 0)) text.chop(1);
  if (!text.isEmpty()) textCursor().insertText(text);
}

bool CodePageTextEdit::Admits(const QString& text) {
  const QString lacking = LackingCharacter(text);
  if (lacking.isEmpty()) return true;
  ShowRefusedCharacter(*this, lacking);
  return false;
}

int CodePageTextEdit::Room() const {
  if (max_length_ == 0) return std::numeric_limits<int>::max();
  QString selected = textCursor().selectedText();
  selected.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return std::max(max_length_, 0) - LengthInLogic(toPlainText()) + LengthInLogic(selected);
}

}  // namespace tallyroll
