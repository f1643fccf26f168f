// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/rich_text_edit.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <algorithm>
#include <cmath>

#include "desktop/letter/rich_document.h"
#include "desktop/letter/spelling_marks.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_writer.h"

namespace tallyroll {
namespace {

constexpr double kPaperEdge = 24;  // units of the document between the paper's edge and its text
constexpr double kTwipsAnInchOfLetter = 1440;
constexpr int kMostSuggestions = 6;
constexpr const char* kRichFormats[] = {"text/rtf", "application/rtf", "text/richtext"};

const char* RichFormatOf(const QMimeData& source) {
  for (const char* format : kRichFormats)
    if (source.hasFormat(QLatin1String(format))) return format;
  return nullptr;
}

}  // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent), device_(*viewport()) {
  setAcceptRichText(true);
  setUndoRedoEnabled(true);
  document()->setDocumentMargin(kPaperEdge);
  setTabStopDistance(TabStopEvery());
  PaintAsPaper();
  SetBase({});
  LayOut();
}

RichTextEdit::~RichTextEdit() {
  marks_.reset();
  // The device goes before the document, which would lay itself out for it.
  document()->documentLayout()->setPaintDevice(nullptr);
}

// A letter is written on paper, dark as the windows around it may be: its colours are those of the
// print.
void RichTextEdit::PaintAsPaper() {
  QPalette paper = palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    paper.setColor(group, QPalette::Base, Qt::white);
    paper.setColor(group, QPalette::Text, Qt::black);
  }
  viewport()->setPalette(paper);
  setPalette(paper);
}

void RichTextEdit::SetBase(const TextStyle& base) {
  base_ = base;
  document()->setDefaultFont(FormatOf(base).font());
}

void RichTextEdit::SetPaper(int twips, double zoom) {
  if (twips == paper_ && zoom == zoom_) return;
  paper_ = twips;
  zoom_ = zoom;
  LayOut();
}

void RichTextEdit::LayOut() {
  device_.SetZoom(zoom_);
  document()->documentLayout()->setPaintDevice(&device_);
  const double dpi = viewport()->logicalDpiX() * zoom_;
  const double width = paper_ * dpi / kTwipsAnInchOfLetter + 2 * kPaperEdge * zoom_;
  const int line = static_cast<int>(std::lround(width));
  if (paper_ > 0) {
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(line);
  } else {
    setLineWrapMode(QTextEdit::WidgetWidth);
  }
  CentreSheet();
  // What the sheet lies on shows beside it.
  setBackgroundRole(paper_ > 0 ? QPalette::Dark : QPalette::NoRole);
  // What was laid out for another size is laid out again.
  document()->setDefaultFont(document()->defaultFont());
  ensureCursorVisible();
}

// The sheet stands in the middle of what room there is.
void RichTextEdit::CentreSheet() {
  const int bar = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  const int spare = paper_ > 0 ? std::max(0, width() - bar - lineWrapColumnOrWidth()) : 0;
  if (viewportMargins().left() != spare / 2) setViewportMargins(spare / 2, 0, spare / 2, 0);
}

void RichTextEdit::SetSpelling(Spelling* spelling) {
  if (spelling == (marks_ ? &marks_->spelling() : nullptr)) return;
  marks_.reset();
  if (spelling) marks_ = std::make_unique<SpellingMarks>(*document(), *spelling);
}

// A new paragraph does not begin another page because the one before does.
// Tab is a tab of the letter. With Ctrl it leads out of it, and with Shift back, or the choices
// above could never be reached by keys.
bool RichTextEdit::focusNextPrevChild(bool next) {
  return next ? QTextEdit::focusNextPrevChild(true) : QWidget::focusNextPrevChild(false);
}

void RichTextEdit::keyPressEvent(QKeyEvent* event) {
  const bool with_ctrl = event->modifiers() & Qt::ControlModifier;
  const bool back = event->key() == Qt::Key_Backtab;
  if (with_ctrl && (back || event->key() == Qt::Key_Tab)) {
    QWidget::focusNextPrevChild(!back);
    return;
  }
  const int blocks = document()->blockCount();
  QTextEdit::keyPressEvent(event);
  if (document()->blockCount() != blocks + 1) return;
  QTextCursor cursor = textCursor();
  if (cursor.blockFormat().pageBreakPolicy() == QTextFormat::PageBreak_Auto) return;
  QTextBlockFormat format = cursor.blockFormat();
  format.clearProperty(QTextFormat::PageBreakPolicy);
  cursor.joinPreviousEditBlock();
  cursor.setBlockFormat(format);
  cursor.endEditBlock();
}

void RichTextEdit::resizeEvent(QResizeEvent* event) {
  QTextEdit::resizeEvent(event);
  if (paper_ > 0) CentreSheet();
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText() || source->hasHtml() || RichFormatOf(*source);
}

// Formatted text comes in as a letter can hold it, whatever else the other program offers.
void RichTextEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) return;
  if (const char* format = RichFormatOf(*source)) {
    const RtfReading read = ReadRtf(source->data(QLatin1String(format)).toStdString());
    if (read.error.empty()) return InsertParagraphs(textCursor(), read.text.paragraphs);
  }
  if (source->hasHtml()) {
    QTextDocument pasted;
    pasted.setDefaultFont(document()->defaultFont());
    pasted.setHtml(source->html());
    return InsertParagraphs(textCursor(), RichTextOf(pasted, base_).paragraphs);
  }
  if (source->hasText()) InsertAsStep(textCursor(), source->text());
  ensureCursorVisible();
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
  QMimeData* data = QTextEdit::createMimeDataFromSelection();
  QTextDocument part;
  QTextCursor(&part).insertFragment(textCursor().selection());
  const std::string rich = WriteRtf(RichTextOf(part, base_));
  data->setData(QLatin1String(kRichFormats[0]), QByteArray::fromStdString(rich));
  return data;
}

void RichTextEdit::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu(event->pos());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const bool mouse = event->reason() == QContextMenuEvent::Mouse;
  AddSuggestions(*menu, mouse ? cursorForPosition(event->pos()) : textCursor());
  menu->popup(event->globalPos());
}

// The word at the place, as a selection; an empty one where it is right or none at all.
QTextCursor RichTextEdit::WrongWordAt(QTextCursor place) const {
  const QTextBlock block = place.block();
  place.clearSelection();
  for (const SpelledWord& word : WordsToCheck(block.text())) {
    const qsizetype at = place.position() - block.position();
    if (at < word.start || at > word.start + word.length) continue;
    if (marks_->spelling().Knows(block.text().mid(word.start, word.length))) continue;
    place.setPosition(block.position() + static_cast<int>(word.start));
    place.setPosition(block.position() + static_cast<int>(word.start + word.length),
                      QTextCursor::KeepAnchor);
    return place;
  }
  return place;
}

void RichTextEdit::AddSuggestions(QMenu& menu, const QTextCursor& place) {
  if (!marks_ || isReadOnly()) return;
  QTextCursor word = WrongWordAt(place);
  if (!word.hasSelection()) return;
  QAction* below = menu.actions().value(0);
  for (const QString& better :
       marks_->spelling().Suggestions(word.selectedText()).mid(0, kMostSuggestions)) {
    auto* act = new QAction(better, &menu);
    connect(act, &QAction::triggered, this, [word, better] { InsertAsStep(word, better); });
    menu.insertAction(below, act);
  }
  auto* learn = new QAction(tr("Add to My Words"), &menu);
  connect(learn, &QAction::triggered, this, [this, text = word.selectedText()] {
    marks_->spelling().Learn(text);
    marks_->rehighlight();
  });
  menu.insertAction(below, learn);
  menu.insertSeparator(below);
}

}  // namespace tallyroll
