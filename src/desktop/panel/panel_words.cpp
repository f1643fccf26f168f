// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel/panel_words.h"

#include <QFontInfo>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/grid/grid_colors.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kPlannedPanelFont = 13;
constexpr double kDisc = 38;
constexpr double kLargeChip = 28, kLargeChipSides = 20, kSmallChipSides = 12;
constexpr double kPanelChipRadius = 4;

}  // namespace

int PanelPx(const QWidget& widget, double length) {
  return qRound(length * QFontInfo(widget.font()).pixelSize() / kPlannedPanelFont);
}

PanelWords::PanelWords(const char* use, QWidget* parent) : QLabel(parent) {
  setProperty("textUse", QByteArray(use));
  setTextFormat(Qt::PlainText);
}

QSize PanelWords::minimumSizeHint() const {
  return {1, QLabel::minimumSizeHint().height()};
}

void PanelWords::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        shown, foregroundRole());
}

PanelFigure::PanelFigure(const QString& name, const QString& heading, QLabel* value)
    : heading_(heading), value_(value) {
  auto* words = new PanelWords("small");
  words->setText(heading);
  value_->setObjectName(name);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  rows->addWidget(words);
  rows->addWidget(value_, 1);
}

void PanelFigure::Show(const QString& value) {
  value_->setText(value);
  value_->setAccessibleName(heading_ + QLatin1Char(' ') + value);
}

void PanelChip::Show(const QString& text, CellMark mark, bool large) {
  if (text == this->text() && mark == mark_ && large == large_) return;
  mark_ = mark;
  large_ = large;
  setText(text);
  updateGeometry();
  update();
}

QFont PanelChip::ChipFont() const {
  return FontFor(font(), large_ ? TextUse::kHeading : TextUse::kChip);
}

QSize PanelChip::sizeHint() const {
  const QFontMetrics metrics(ChipFont());
  const double sides = large_ ? kLargeChipSides : kSmallChipSides;
  return {metrics.horizontalAdvance(text()) + PanelPx(*this, sides),
          large_ ? PanelPx(*this, kLargeChip) : metrics.height() + 2};
}

void PanelChip::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  const GridColors colors(palette());
  const Tokens t = TokensOf(palette());
  ChipLook look = colors.ChipOf(mark_);
  if (!look.ground.isValid()) look = {t.text, t.selection};
  const QRect chip({0, (height() - sizeHint().height()) / 2}, sizeHint());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.ground);
  painter.drawRoundedRect(chip, PanelPx(*this, kPanelChipRadius), PanelPx(*this, kPanelChipRadius));
  painter.setPen(look.text);
  painter.setFont(ChipFont());
  painter.drawText(chip, Qt::AlignCenter, text());
}

QSize PanelDisc::sizeHint() const {
  return {PanelPx(*this, kDisc), PanelPx(*this, kDisc)};
}

void PanelDisc::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(t.selection);
  painter.drawEllipse(rect());
  painter.setPen(t.text);
  painter.setFont(FontFor(font(), TextUse::kHeading));
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace tallyroll
