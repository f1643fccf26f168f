// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/page_button.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/basics/palette_icon.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

// Pixels of the plan, which is drawn for a font of 13.
constexpr double kPlannedFont = 13;
constexpr double kCardHeight = 60;
constexpr double kTile = 40, kTileRadius = 6, kGlyph = 22;
constexpr double kMargin = 14, kCardRadius = 10, kLineRadius = 6;
constexpr double kRing = 2;
constexpr double kLeastWidth = 240;

// A button's text shows "&" only when it is doubled.
QString Shown(QString text) {
  return text.replace(QLatin1String("&&"), QLatin1String("\n"))
      .remove(QLatin1Char('&'))
      .replace(QLatin1Char('\n'), QLatin1Char('&'));
}

}  // namespace

PageButton::PageButton(Kind kind, const QString& icon, QWidget* parent)
    : QCommandLinkButton(parent), kind_(kind), icon_(icon) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
}

void PageButton::SetFacts(const QString& facts) {
  if (facts == facts_) return;
  facts_ = facts;
  setAccessibleDescription(facts);
  update();
}

int PageButton::Px(double of_plan) const {
  return qRound(of_plan * QFontInfo(font()).pixelSize() / kPlannedFont);
}

int PageButton::Corner() const {
  return Px(kind_ == Kind::kCard ? kCardRadius : kLineRadius);
}

// A card with one line is as high as a card by itself.
QSize PageButton::sizeHint() const {
  const int around = kind_ == Kind::kCard ? 0 : 2 * kPageCardMargin - 1;
  return {Px(kLeastWidth), Px(kCardHeight) - around};
}

QSize PageButton::minimumSizeHint() const {
  return sizeHint();
}

// Enter presses it, which a command link by itself does not know.
void PageButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
  QCommandLinkButton::keyPressEvent(event);
}

void PageButton::PaintGround(QPainter& painter) const {
  const Tokens t = TokensOf(palette());
  const bool card = kind_ == Kind::kCard;
  const double radius = Corner();
  const QColor usual = card ? t.raised : QColor();
  const QColor ground = isDown() ? t.pressed : underMouse() ? t.hover : usual;
  DrawBox(painter, rect(), radius, ground, card ? t.line : QColor());
  if (hasFocus()) DrawBox(painter, rect(), radius, QColor(), t.focus, kRing);
}

void PageButton::PaintIcon(QPainter& painter, const QRect& tile) const {
  DrawBox(painter, tile, Px(kTileRadius), TokensOf(palette()).accent_soft);
  QRect glyph(0, 0, Px(kGlyph), Px(kGlyph));
  glyph.moveCenter(tile.center());
  PaletteIcon(icon_, palette()).paint(&painter, glyph);
}

void PageButton::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintGround(painter);
  // The words of a line begin below those of a card: its card is wider by its own margin.
  const int margin = Px(kMargin) - (kind_ == Kind::kLine ? kPageCardMargin : 0);
  QRect tile(margin, 0, Px(kTile), Px(kTile));
  tile.moveTop((height() - tile.height()) / 2);
  PaintIcon(painter, tile);
  const QFont title = FontFor(font(), TextUse::kHeading), small = FontFor(font(), TextUse::kSmall);
  const QFontMetrics of_title(title), of_small(small);
  const int left = tile.right() + Px(kMargin), room = width() - left - margin;
  int y = (height() - of_title.height() - of_small.height()) / 2;
  painter.setFont(title);
  painter.setPen(t.text);
  const QString name = of_title.elidedText(Shown(text()), Qt::ElideRight, room);
  painter.drawText(left, y + of_title.ascent(), name);
  y += of_title.height();
  painter.setFont(small);
  painter.setPen(t.muted);
  const QString more = facts_.isEmpty() ? description() : facts_;
  painter.drawText(left, y + of_small.ascent(), of_small.elidedText(more, Qt::ElideMiddle, room));
  if (facts_.isEmpty()) return;
  // Where it lies stands at the right of the name, as far as there is room.
  const int free = room - of_title.horizontalAdvance(name) - margin;
  const QString folder = of_small.elidedText(description(), Qt::ElideLeft, free);
  painter.drawText(left + room - of_small.horizontalAdvance(folder),
                   y - of_title.height() + of_title.ascent(), folder);
}

void PageCard::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  DrawBox(painter, rect(), kCardRadius, t.raised, t.line);
}

}  // namespace tallyroll
