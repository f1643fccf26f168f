// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel/panel_pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/panel/panel_words.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kLineHeight = 62, kLineMargin = 5;
constexpr int kLowestPercent = 40, kHighestPercent = 100;
constexpr double kDot = 2.5, kSmallDot = 1.5, kCurrentDot = 4, kRoomForDots = 6, kCross = 3;
constexpr double kBarsHeight = 96, kBetweenBars = 4, kBarRadius = 2;

QString PointInWords(const GlancePoint& point) {
  if (point.missing) return QObject::tr("missing");
  const QString percent = QObject::tr("%1 %").arg(point.percent);
  return point.failing ? percent + QObject::tr(" failing") : percent;
}

}  // namespace

PercentLine::PercentLine(QWidget* parent) : QWidget(parent), SpokenAs(QAccessible::Graphic) {
  setObjectName(QStringLiteral("percents"));
  setAccessibleName(tr("Percents by grade"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PercentLine::Show(const StudentGlance& student, int grade) {
  if (student.line == line_ && grade == grade_) return;
  if (student.line != line_) {
    QStringList words;
    for (const GlancePoint& point : student.line) words << PointInWords(point);
    setAccessibleDescription(words.join(QLatin1String(", ")));
  }
  line_ = student.line;
  grade_ = grade;
  update();
}

QSize PercentLine::sizeHint() const {
  return {PanelPx(*this, 200), PanelPx(*this, kLineHeight)};
}

QPointF PercentLine::PlaceOf(std::size_t i, int percent) const {
  const double margin = PanelPx(*this, kLineMargin);
  const double across = line_.size() < 2 ? 0.5 : static_cast<double>(i) / double(line_.size() - 1);
  const double up = double(std::clamp(percent, kLowestPercent, kHighestPercent) - kLowestPercent) /
                    (kHighestPercent - kLowestPercent);
  return {margin + across * (width() - 2 * margin),
          height() - margin - up * (height() - 2 * margin)};
}

void PercentLine::PaintPassing(QPainter& painter) const {
  QPolygonF passing;
  for (std::size_t i = 0; i < line_.size(); ++i) passing << PlaceOf(i, line_[i].passing);
  if (passing.size() == 1) passing = {{0, passing[0].y()}, {double(width()), passing[0].y()}};
  painter.drawPolyline(passing);
}

void PercentLine::PaintPoints(QPainter& painter) const {
  const Tokens t = TokensOf(palette());
  const bool room = width() >= PanelPx(*this, kRoomForDots) * static_cast<int>(line_.size());
  for (std::size_t i = 0; i < line_.size(); ++i) {
    const GlancePoint& point = line_[i];
    const QColor color = point.missing || point.failing ? t.danger : t.focus;
    const QPointF place = PlaceOf(i, point.missing ? kLowestPercent : point.percent);
    if (point.missing) {
      const double arm = PanelPx(*this, room ? kCross : kSmallDot);
      painter.setPen(QPen(color, 1.5));
      painter.drawLine(place - QPointF(arm, arm), place + QPointF(arm, arm));
      painter.drawLine(place - QPointF(arm, -arm), place + QPointF(arm, -arm));
      continue;
    }
    const double radius = PanelPx(*this, 10 * (point.grade == grade_ ? kCurrentDot
                                               : room                ? kDot
                                                                     : kSmallDot)) /
                          10.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(place, radius, radius);
  }
}

void PercentLine::paintEvent(QPaintEvent*) {
  if (line_.empty()) return;
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(t.border, 1, Qt::DashLine));
  PaintPassing(painter);
  QPolygonF marks;
  for (std::size_t i = 0; i < line_.size(); ++i)
    if (!line_[i].missing) marks << PlaceOf(i, line_[i].percent);
  painter.setPen(QPen(t.focus, 1.5));
  painter.drawPolyline(marks);
  PaintPoints(painter);
}

TenBars::TenBars(QWidget* parent) : QWidget(parent), SpokenAs(QAccessible::Graphic) {
  setObjectName(QStringLiteral("bars"));
  setAccessibleName(tr("Marks by percent"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TenBars::Show(const GradeGlance& grade) {
  if (grade.tens == tens_ && grade.own == own_) return;
  tens_ = grade.tens;
  own_ = grade.own;
  QStringList words;
  for (std::size_t i = 0; i < tens_.size(); ++i)
    if (tens_[i].count > 0)
      words << tr("from %1 %: %2").arg(10 * static_cast<int>(i)).arg(tens_[i].count);
  setAccessibleDescription(words.join(QLatin1String(", ")));
  update();
}

QSize TenBars::sizeHint() const {
  return {PanelPx(*this, 200), PanelPx(*this, kBarsHeight)};
}

QRect TenBars::BarOf(std::size_t ten, const QRect& room) const {
  const int gap = PanelPx(*this, kBetweenBars);
  const auto at = [&](std::size_t i) {
    return room.left() + static_cast<int>(i) * (room.width() + gap) / static_cast<int>(kTens);
  };
  int most = 1;
  for (const MarksInTen& each : tens_) most = std::max(most, each.count);
  const int tall = tens_[ten].count * room.height() / most;
  return {at(ten), room.bottom() + 1 - tall, at(ten + 1) - gap - at(ten), tall};
}

void TenBars::PaintBar(QPainter& painter, std::size_t ten, const QRect& room) const {
  const Tokens t = TokensOf(palette());
  const MarksInTen& marks = tens_[ten];
  const QRect bar = BarOf(ten, room);
  const bool own = own_ == static_cast<int>(ten);
  const double radius = PanelPx(*this, kBarRadius);
  painter.setPen(Qt::NoPen);
  painter.setBrush(own ? t.accent : Mix(t.accent, t.window, 0.55));
  painter.drawRoundedRect(bar, radius, radius);
  const int red = bar.height() * marks.failing / std::max(marks.count, 1);
  painter.setBrush(own ? t.danger : Mix(t.danger, t.window, 0.45));
  painter.drawRoundedRect(QRect(bar.left(), bar.bottom() + 1 - red, bar.width(), red), radius,
                          radius);
  painter.setPen(own ? t.text : t.muted);
  const int line = painter.fontMetrics().height();
  painter.drawText(QRect(bar.left() - line, bar.top() - line, bar.width() + 2 * line, line),
                   Qt::AlignHCenter | Qt::AlignBottom, QString::number(marks.count));
}

void TenBars::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(FontFor(font(), TextUse::kSmall));
  const int line = painter.fontMetrics().height();
  const QRect room = rect().adjusted(0, line + 1, 0, -line - 2);
  painter.setPen(t.strong_line);
  painter.drawLine(room.left(), room.bottom() + 1, room.right(), room.bottom() + 1);
  for (std::size_t i = 0; i < kTens; ++i)
    if (tens_[i].count > 0) PaintBar(painter, i, room);
  painter.setPen(t.muted);
  const QRect scale(0, height() - line, width(), line);
  painter.drawText(scale, Qt::AlignLeft, tr("0 %"));
  painter.drawText(scale, Qt::AlignHCenter, tr("50 %"));
  painter.drawText(scale, Qt::AlignRight, tr("100 %"));
}

}  // namespace tallyroll
