// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_pictures.h"

#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <algorithm>

#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kPageWidth = 8.5, kPageHeight = 11;  // inches
constexpr int kPixelsAnInch = 12;
constexpr double kWidestMargin = 1.5;

// Smooth, and with flat ends: else a screen of fractions draws the four sides of unlike widths, and
// the gaps close.
void DrawDashes(QPainter& painter, const QRectF& rect, const QColor& color) {
  const SmoothEdges smooth(painter);
  painter.setPen(QPen(color, 1, Qt::DashLine, Qt::FlatCap, Qt::MiterJoin));
  painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

MarginSheet::MarginSheet(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MarginSheet::sizeHint() const {
  return QSizeF(kPageWidth * kPixelsAnInch, kPageHeight * kPixelsAnInch).toSize();
}

// What is no number, or a margin that no page has, is drawn as the nearest one.
double MarginSheet::Inches(const char* field) const {
  const auto* edit = window()->findChild<QLineEdit*>(QString::fromLatin1(field));
  return edit ? std::clamp(QLocale::c().toDouble(edit->text()), 0.0, kWidestMargin) : 0;
}

QRectF MarginSheet::PrintedPart() const {
  const double inch = width() / kPageWidth;
  return QRectF(rect()).adjusted(Inches("leftmarg") * inch, Inches("topmarg") * inch,
                                 -Inches("rightmarg") * inch, -Inches("bottommarg") * inch);
}

void MarginSheet::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  for (const auto* edit : window()->findChildren<QLineEdit*>())
    connect(edit, &QLineEdit::textChanged, this, qOverload<>(&QWidget::update),
            Qt::UniqueConnection);
}

void MarginSheet::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kLines = 9;
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  const Tokens& paper = LightTokens();
  DrawBox(painter, rect(), 0, Qt::white, t.border);
  const QRectF printed = PrintedPart();
  DrawDashes(painter, printed, paper.focus);
  const double step = printed.height() / (kLines + 1);
  for (int i = 1; i <= kLines; ++i)
    painter.fillRect(QRectF(printed.left() + 4, printed.top() + i * step,
                            (printed.width() - 8) * (i % 3 == 0 ? 0.6 : 1), 2),
                     paper.line);
}

void SideStrip::paintEvent(QPaintEvent* /*event*/) {
  constexpr double kStripRadius = 10;
  QPainter painter(this);
  DrawBox(painter, rect(), kStripRadius, TokensOf(palette()).accent_soft);
}

}  // namespace tallyroll
