// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/qt_print_target.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "base/code_page.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;

QString PaperText(std::string_view text) {
  return QString::fromStdString(Utf8FromCodePage(text));
}

QString LetterText(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QFont PaperFont(const QString& name, double points, bool bold, bool italic = false) {
  QFont font(name);
  // Twips as pixels: the resolution of the device has no say in the width of a line.
  font.setPixelSize(std::max(static_cast<int>(std::lround(points * kTwipsPerPoint)), 1));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setBold(bold);
  font.setItalic(italic);
  return font;
}

// On a screen a line of one dot and a part would be one dot wide here and two there, as it falls.
double WidthOfLine(const QPainter& painter, double width) {
  const double dots = painter.deviceTransform().m22() * width;
  const bool screen = painter.paintEngine()->type() == QPaintEngine::Raster;
  return screen && dots > 1 ? width * std::round(dots) / dots : width;
}

}  // namespace

void ScaleToTwips(QPainter& painter, const QPaintDevice& device) {
  painter.scale(device.logicalDpiX() / kTwipsPerInch, device.logicalDpiY() / kTwipsPerInch);
}

QtPrintTarget::QtPrintTarget(const Sheet& sheet, QPainter* painter)
    : painter_(painter), metrics_(font_) {
  Width = sheet.width;
  Height = sheet.height;
  ScaleWidth = sheet.printable_width;
  ScaleHeight = sheet.printable_height;
}

double QtPrintTarget::TextWidth(std::string_view text) const {
  return Metrics().horizontalAdvance(PaperText(text));
}

double QtPrintTarget::TextHeight(std::string_view /*text*/) const {
  return Metrics().height();
}

double QtPrintTarget::AverageCharWidth() const {
  return Metrics().averageCharWidth();
}

FontReach QtPrintTarget::ReachOf(const LetterFont& font) const {
  const QFontMetricsF& metrics = Letters(font).metrics;
  return {metrics.ascent(), metrics.descent()};
}

double QtPrintTarget::LetterWidth(std::u16string_view text, const LetterFont& font) const {
  return Letters(font).metrics.horizontalAdvance(LetterText(text));
}

void QtPrintTarget::DrawLetters(double x, double base, std::u16string_view text,
                                const LetterFont& font) {
  if (!Draws()) return;
  painter_->setFont(Letters(font).font);
  painter_->setPen(QColor(ForeColor));
  painter_->drawText(PlaceOnSheet(x, base), LetterText(text));
}

void QtPrintTarget::Line(double x1, double y1, double x2, double y2) {
  if (!Draws()) return;
  painter_->setPen(QPen(QColor(ForeColor), WidthOfLine(*painter_, LineWidth)));
  painter_->drawLine(PlaceOnSheet(x1, y1), PlaceOnSheet(x2, y2));
}

void QtPrintTarget::FillPolygon(const std::vector<PrintPoint>& corners, PrintColor color) {
  if (!Draws()) return;
  QPolygonF polygon;
  for (const PrintPoint& corner : corners) polygon << PlaceOnSheet(corner.x, corner.y);
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(QColor(color));
  painter_->drawPolygon(polygon);
}

void QtPrintTarget::PrintUpwards(std::string_view text, double x, double y) {
  if (!Draws()) return;
  const double ascent = Metrics().ascent();
  painter_->save();
  painter_->translate(PlaceOnSheet(x, y));
  painter_->rotate(-90);
  painter_->setFont(font_);
  painter_->setPen(QColor(ForeColor));
  painter_->drawText(QPointF(0, ascent), PaperText(text));
  painter_->restore();
}

void QtPrintTarget::Cls() {
  if (Draws()) painter_->fillRect(QRectF(0, 0, Width, Height), Qt::white);
  CurrentX = CurrentY = 0;
}

void QtPrintTarget::DrawTextAt(double x, double y, std::string_view text, double size) {
  if (!Draws()) return;
  const double ascent = Metrics().ascent();
  painter_->setFont(size == FontSize ? font_ : PaperFont(PaperText(FontName), size, FontBold));
  painter_->setPen(QColor(ForeColor));
  painter_->drawText(PlaceOnSheet(x, y + ascent), PaperText(text));
}

// The painter of a job that has ended or was dropped draws no more.
bool QtPrintTarget::Draws() const {
  return painter_ && painter_->isActive();
}

QPointF QtPrintTarget::PlaceOnSheet(double x, double y) const {
  const double left = (Width - ScaleWidth) / 2;
  const double top = (Height - ScaleHeight) / 2;
  return {left + x - ScaleLeft, top + y - ScaleTop};
}

// A letter has few fonts and goes back and forth between them.
const QtPrintTarget::FontOfLetters& QtPrintTarget::Letters(const LetterFont& font) const {
  for (const FontOfLetters& known : letters_)
    if (known.wanted == font) return known;
  const QFont made =
      PaperFont(QString::fromStdString(font.name), font.size, font.bold, font.italic);
  letters_.push_back({font, made, QFontMetricsF(made)});
  return letters_.back();
}

const QFontMetricsF& QtPrintTarget::Metrics() const {
  if (name_ != FontName || size_ != FontSize || bold_ != FontBold) {
    name_ = FontName;
    size_ = FontSize;
    bold_ = FontBold;
    font_ = PaperFont(PaperText(name_), size_, bold_);
    metrics_ = QFontMetricsF(font_);
  }
  return metrics_;
}

}  // namespace tallyroll
