// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/seats_widget.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/basics/text_conversion.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr int kGap = 3;     // pixels round a seat
constexpr int kMargin = 4;  // from the edge of a card to its text
constexpr int kRadius = 6;
constexpr int kSeatRing = 2;
constexpr int kPadding = 4;        // above and below the words of the head
constexpr double kSmallest = 0.6;  // of the font, before a text is cut

// A font in which a text is no wider than the room, as far as it can still be read.
QFont Narrower(QFont font, int width, int room) {
  const double points = font.pointSizeF();
  // Text is as wide as its font is large; steps of half a point, since each size costs a font.
  const double fitting = std::floor(points * room / width * 2) / 2;
  font.setPointSizeF(std::max(fitting, points * kSmallest));
  return font;
}

}  // namespace

// Stands over the viewport and scrolls along with it.
class SeatsWidget::Head : public QWidget {
 public:
  explicit Head(SeatsWidget& seats) : QWidget(&seats), seats_(seats) {}

  int Height() const { return 2 * (fontMetrics().height() + 2 * kPadding); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const Grid* grid = seats_.grid();
    if (!grid || grid->Rows() == 0) return;
    QPainter painter(this);
    const int half = height() / 2;
    const QRect board(0, 0, width(), half - kPadding);
    const Tokens t = TokensOf(palette());
    painter.fillRect(rect(), t.window);
    painter.fillRect(board, t.header);
    DrawRule(painter, QRect(board.left(), board.bottom(), board.width(), 1), t.strong_line);
    painter.setFont(FontFor(font(), TextUse::kHeading));
    painter.setPen(t.text);
    painter.drawText(board, Qt::AlignCenter, QStringLiteral("Front of the room"));
    painter.setFont(FontFor(font(), TextUse::kSmall));
    painter.setPen(t.muted);
    for (int col = 0; col < grid->Cols(); ++col) {
      const QRect cell = seats_.CellRect(std::max(grid->TopRow, 0), col);
      if (cell.isEmpty()) continue;
      painter.drawText(QRect(cell.left(), half, cell.width(), half), Qt::AlignCenter,
                       QStringLiteral("Row %1").arg(col + 1));
    }
  }

 private:
  SeatsWidget& seats_;
};

SeatsWidget::SeatsWidget(QWidget* parent) : GridWidget(parent), head_(new Head(*this)) {
  setViewportMargins(0, static_cast<Head*>(head_)->Height(), 0, 0);
}

void SeatsWidget::resizeEvent(QResizeEvent* event) {
  GridWidget::resizeEvent(event);
  const QRect inside = viewport()->geometry();
  const int height = static_cast<Head*>(head_)->Height();
  head_->setGeometry(inside.left(), inside.top() - height, inside.width(), height);
}

void SeatsWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), TokensOf(palette()).window);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!grid()) return;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, NoticeShown());
  for (int row = 0; row < grid()->Rows(); ++row)
    for (int col = 0; col < grid()->Cols(); ++col)
      if (CellRect(row, col).intersects(event->rect())) PaintSeat(painter, row, col);
  head_->update();
}

void SeatsWidget::PaintSeat(QPainter& painter, int row, int col) const {
  const QRect seat = CellRect(row, col).adjusted(kGap, kGap, -kGap, -kGap);
  const bool taken = !grid()->TextMatrix(row, col).empty();
  const bool lifted = grid()->Style(row, col) == CellStyle::kInWork;
  const bool current = row == grid()->Row && col == grid()->Col;
  const Tokens t = TokensOf(palette());
  const QColor ground = lifted ? t.selection : taken ? t.surface : t.window;
  if (current) {
    DrawBox(painter, seat, kRadius, ground, hasFocus() ? t.focus : t.border, kSeatRing);
  } else if (taken && !lifted) {
    DrawBox(painter, seat, kRadius, ground, t.border);
  } else {
    painter.setBrush(ground);
    painter.setPen(QPen(t.border, 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(seat).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  }
  if (taken) PaintCard(painter, seat.adjusted(kMargin, kMargin, -kMargin, -kMargin), row, col);
}

// The name breaks behind its comma; the small line follows.
void SeatsWidget::PaintCard(QPainter& painter, const QRect& card, int row, int col) const {
  const QString label = FromText(grid()->TextMatrix(row, col));
  const QString small = grid()->SmallLine ? FromText(grid()->SmallLine(row, col)) : QString();
  const auto comma = label.indexOf(QLatin1String(", "));
  const QString above = comma < 0 ? label : label.left(comma + 1);
  const QString below = comma < 0 ? QString() : label.mid(comma + 2);
  const QFont bold = FontFor(font(), TextUse::kHeading);
  const int line = card.height() / 3;
  const auto write = [&](const QFont& with, const QString& text, int place) {
    if (text.isEmpty()) return;
    painter.setFont(with);
    const int width = painter.fontMetrics().horizontalAdvance(text);
    QString shown = text;
    if (width > card.width()) {
      painter.setFont(Narrower(with, width, card.width()));
      shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, card.width());
    }
    painter.drawText(QRect(card.left(), card.top() + place * line, card.width(), line),
                     Qt::AlignCenter, shown);
  };
  const Tokens t = TokensOf(palette());
  painter.setPen(t.text);
  write(bold, above, 0);
  write(font(), below, 1);
  painter.setPen(t.muted);
  write(font(), small, 2);
}

}  // namespace tallyroll
