// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/total_figure.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kWhole = 100;
constexpr int kFigurePadding = 8;

}  // namespace

void TotalFigure::Show(const QString& figure) {
  if (figure != text()) setText(figure);
  if (const QString told = Remainder(); told != accessibleDescription())
    setAccessibleDescription(told);
}

bool TotalFigure::IsReached() const {
  bool number = false;
  const double sum = QLocale::c().toDouble(text(), &number);
  return number && sum == kWhole;
}

QString TotalFigure::Remainder() const {
  bool number = false;
  const double missing = kWhole - QLocale::c().toDouble(text(), &number);
  if (!number || missing == 0) return {};
  const QString figure = QLocale::c().toString(qAbs(missing), 'g', 8);
  return missing > 0 ? tr("%1 missing").arg(figure) : tr("%1 too much").arg(figure);
}

// As wide as its longest words, so that nothing moves while a weight is typed.
QSize TotalFigure::sizeHint() const {
  const QFontMetrics figure(FontFor(QApplication::font(), TextUse::kTitle));
  const QFontMetrics words(FontFor(QApplication::font(), TextUse::kSmall));
  return {figure.horizontalAdvance(QStringLiteral("100.000")) +
              words.horizontalAdvance(QStringLiteral("100.000 too much")) + 3 * kFigurePadding,
          figure.height() + kFigurePadding};
}

void TotalFigure::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  const bool reached = IsReached();
  const QString remainder = Remainder();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(reached ? t.success_soft : t.danger_soft);
  painter.drawRoundedRect(rect(), 6, 6);
  const QFont figure = FontFor(QApplication::font(), TextUse::kTitle),
              words = FontFor(QApplication::font(), TextUse::kSmall);
  painter.setPen(reached ? t.success : t.danger);
  painter.setFont(figure);
  const QRect room = rect().adjusted(kFigurePadding, 0, -kFigurePadding, 0);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text());
  painter.setFont(words);
  painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, remainder);
}

}  // namespace tallyroll
