// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/total_figure.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>
#include <algorithm>

#include "desktop/style/program_style.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kWhole = 100;
constexpr int kFigurePadding = 8;

int FigurePadding() {
  return ScreenMeasures().Px(kFigurePadding);
}

QFontMetrics FigureMetrics() {
  return QFontMetrics(FontFor(QApplication::font(), TextUse::kDisplay));
}

QFontMetrics BesideMetrics() {
  return QFontMetrics(FontFor(QApplication::font(), TextUse::kSmall));
}

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
  return {FigureMetrics().horizontalAdvance(QStringLiteral("100.00")) +
              BesideMetrics().horizontalAdvance(tr("%1 too much").arg(QStringLiteral("100.00"))) +
              3 * FigurePadding(),
          std::max(FigureMetrics().height(), 2 * BesideMetrics().height()) + FigurePadding() / 2};
}

void TotalFigure::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  const bool reached = IsReached();
  const QString beside = tr("of 100"), remainder = Remainder();
  const int words = std::max(BesideMetrics().horizontalAdvance(beside),
                             BesideMetrics().horizontalAdvance(remainder));
  QPainter painter(this);
  DrawBox(painter, rect(), 6, reached ? t.success_soft : t.danger_soft);
  painter.setPen(reached ? t.success : t.danger);
  const QRect room = rect().adjusted(FigurePadding(), 0, -FigurePadding(), 0);
  const QRect figure = room.adjusted(0, 0, -words - FigurePadding(), 0);
  // A sum of many figures is as large as there is room for it.
  const bool fits = FigureMetrics().horizontalAdvance(text()) <= figure.width();
  painter.setFont(FontFor(QApplication::font(), fits ? TextUse::kDisplay : TextUse::kTitle));
  painter.drawText(figure, Qt::AlignLeft | Qt::AlignVCenter, text());
  painter.setFont(FontFor(QApplication::font(), TextUse::kSmall));
  painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter,
                   remainder.isEmpty() ? beside : beside + QLatin1Char('\n') + remainder);
}

}  // namespace tallyroll
