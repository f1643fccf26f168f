// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_labels.h"

#include <QApplication>
#include <QHelpEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr int kLeastLettersShown = 12;
// In average characters, so that a sentence takes a few lines.
constexpr int kUsualTickLine = 34, kLeastTickLine = 18;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  // It keeps the distances of a label.
  setSizePolicy({QSizePolicy::Ignored, QSizePolicy::Preferred, QSizePolicy::Label});
  setTextFormat(Qt::PlainText);
}

// A figure comes with a blank for its sign, which would set a line off from those above it.
QString ElidedLabel::Words() const {
  return text().trimmed();
}

// A part of a pixel too few would cost the last letters.
QSize ElidedLabel::sizeHint() const {
  if (wordWrap()) return QLabel::sizeHint();
  return {fontMetrics().horizontalAdvance(Words()) + 2, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
  if (wordWrap()) return QLabel::minimumSizeHint();
  const QSize least(fontMetrics().averageCharWidth() * kLeastLettersShown, fontMetrics().height());
  return least.boundedTo(sizeHint());
}

QString ElidedLabel::Shown() const {
  if (wordWrap()) return Words();
  return fontMetrics().elidedText(Words(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const auto& asked = static_cast<const QHelpEvent&>(*event);
  QToolTip::showText(asked.globalPos(), Shown() == Words() ? QString() : Words(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (wordWrap()) return QLabel::paintEvent(event);
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), Shown(), foregroundRole());
}

int ReadableLine(const QFontMetrics& metrics) {
  constexpr double kAlphabetsALine = 3.1;
  const int alphabet = metrics.horizontalAdvance(QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
  return static_cast<int>(alphabet * kAlphabetsALine);
}

HelpText::HelpText(QWidget* parent) : QLabel(parent) {
  setIndent(0);
  setWordWrap(true);
}

int HelpText::BesideWords() const {
  return contentsMargins().left() + contentsMargins().right() + 2 * margin();
}

int HelpText::heightForWidth(int width) const {
  return QLabel::heightForWidth(std::min(width, BesideWords() + ReadableLine(fontMetrics())));
}

void HelpText::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawFrame(&painter);
  QRect words = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
  words.setWidth(std::min(words.width(), ReadableLine(fontMetrics())));
  style()->drawItemText(&painter, words, static_cast<int>(alignment()) | Qt::TextWordWrap,
                        palette(), isEnabled(), text(), foregroundRole());
}

bool StateWord::IsOn() const {
  return !text().startsWith(QLatin1String("Not "));
}

QSize StateWord::sizeHint() const {
  const QFontMetrics strong(FontFor(QApplication::font(), TextUse::kHeading));
  return {strong.horizontalAdvance(text()), strong.height()};
}

void StateWord::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (IsOn()) painter.setFont(FontFor(QApplication::font(), TextUse::kHeading));
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), text(),
                        IsOn() ? QPalette::WindowText : QPalette::PlaceholderText);
}

// The list may come after it in the form.
void ListCount::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  if (!words_.isEmpty()) return;
  words_ = text();
  const auto* list =
      window()->findChild<QListWidget*>(objectName().section(QLatin1Char('_'), 0, 0));
  if (!list) return;
  const auto count = [this, list] { setText(words_.arg(list->count())); };
  for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(list->model(), changed, this, count);
  connect(list->model(), &QAbstractItemModel::modelReset, this, count);
  count();
}

WrappingTick::WrappingTick(QWidget* parent) : QCheckBox(parent) {
  // The style wraps the words of a box whose height follows its width.
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::CheckBox);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

// What the style keeps free of words.
int WrappingTick::BesideWords() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect words = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
  return option.rect.width() - words.width();
}

int WrappingTick::heightForWidth(int width) const {
  const QRect room(0, 0, std::max(1, width - BesideWords()), 10000);
  const QRect words = fontMetrics().boundingRect(room, Qt::TextWordWrap, text());
  const int one_line = QCheckBox::sizeHint().height();
  return std::max(one_line, one_line + words.height() - fontMetrics().height());
}

QSize WrappingTick::SizeAt(int width) const {
  const int whole = std::min(width, QCheckBox::sizeHint().width());
  return {whole, heightForWidth(whole)};
}

QSize WrappingTick::sizeHint() const {
  return SizeAt(BesideWords() + fontMetrics().averageCharWidth() * kUsualTickLine);
}

QSize WrappingTick::minimumSizeHint() const {
  const int width = BesideWords() + fontMetrics().averageCharWidth() * kLeastTickLine;
  return {std::min(width, QCheckBox::sizeHint().width()), QCheckBox::sizeHint().height()};
}

}  // namespace tallyroll
