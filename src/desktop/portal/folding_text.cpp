// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/folding_text.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSettings>
#include <algorithm>

#include "desktop/portal/form_labels.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr int kFoldPadding = 10;
constexpr int kFoldRadius = 6;
constexpr int kUsualWidth = 460;

// To a screen reader it is a button that says all of the text, folded or not.
class SpokenFoldingText : public QAccessibleWidget {
 public:
  explicit SpokenFoldingText(FoldingText& text)
      : QAccessibleWidget(&text, QAccessible::Button), text_(text) {}

  QString text(QAccessible::Text type) const override {
    if (type == QAccessible::Name) return text_.text();
    return type == QAccessible::Description ? text_.toolTip() : QAccessibleWidget::text(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = !text_.IsFolded();
    state.collapsed = text_.IsFolded();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    text_.SetFolded(!text_.IsFolded());
  }

 private:
  FoldingText& text_;
};

QAccessibleInterface* MakeSpokenFoldingText(const QString&, QObject* object) {
  auto* text = qobject_cast<FoldingText*>(object);
  return text ? new SpokenFoldingText(*text) : nullptr;
}

QString FirstSentence(const QString& text) {
  const auto end = text.indexOf(QLatin1String(". "));
  return end < 0 ? text : text.left(end + 1);
}

}  // namespace

FoldingText::FoldingText(QWidget* parent) : QLabel(parent) {
  QAccessible::installFactory(MakeSpokenFoldingText);
  setWordWrap(true);
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  setToolTip(tr("Click to show more or less of this text"));
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QString FoldingText::SettingsKey() const {
  return QStringLiteral("Read/%1.%2").arg(window()->objectName(), objectName());
}

void FoldingText::SetFolded(bool folded) {
  if (folded == folded_) return;
  folded_ = folded;
  updateGeometry();
  update();
  QAccessible::State changed;
  changed.expanded = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

QString FoldingText::ShownText() const {
  return folded_ ? FirstSentence(text()) : text();
}

QFont FoldingText::TextFont() const {
  return FontFor(QApplication::font(), TextUse::kSmall);
}

// The field goes on to the end of its row, its lines do not.
int FoldingText::WordsWidth(int width) const {
  return std::min(width - 2 * kFoldPadding, ReadableLine(QFontMetrics(TextFont())));
}

QRect FoldingText::TextRect(int width) const {
  const QFontMetrics metrics(TextFont());
  const QRect room(0, 0, WordsWidth(width), 10000);
  return metrics.boundingRect(room, Qt::TextWordWrap, ShownText());
}

// The words, and the line that says what a click does.
int FoldingText::heightForWidth(int width) const {
  return TextRect(width).height() + QFontMetrics(TextFont()).height() + 2 * kFoldPadding;
}

QSize FoldingText::sizeHint() const {
  return {kUsualWidth, heightForWidth(kUsualWidth)};
}

QSize FoldingText::minimumSizeHint() const {
  return {kUsualWidth / 2, QFontMetrics(TextFont()).height() * 2 + 2 * kFoldPadding};
}

void FoldingText::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  DrawBox(painter, rect(), kFoldRadius, t.accent_soft, hasFocus() ? t.focus : QColor(), 2);
  painter.setFont(TextFont());
  painter.setPen(t.text);
  const QRect room = rect().adjusted(kFoldPadding, kFoldPadding, -kFoldPadding, -kFoldPadding);
  const QRect words(room.topLeft(), QSize(WordsWidth(width()), room.height()));
  painter.drawText(words, Qt::TextWordWrap, ShownText());
  painter.setPen(t.focus);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom, folded_ ? tr("More...") : tr("Less"));
}

void FoldingText::FoldAsKept() {
  SetFolded(QSettings().value(SettingsKey()).toBool());
}

void FoldingText::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  if (!event->spontaneous()) FoldAsKept();
}

void FoldingText::hideEvent(QHideEvent* event) {
  QLabel::hideEvent(event);
  if (!event->spontaneous() && !text().isEmpty()) QSettings().setValue(SettingsKey(), true);
}

// Enter is left to the Portal's button: whoever opens it and presses Enter means that.
void FoldingText::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) return SetFolded(!folded_);
  QLabel::keyPressEvent(event);
}

void FoldingText::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
    SetFolded(!folded_);
}

}  // namespace tallyroll
