// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/chart_picture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "desktop/paper/qt_print_target.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kInchesPerMeter = 1 / 0.0254;

}  // namespace

std::string PngPicture(double width, double height, int dots_per_inch,
                       const std::function<void(PrintTarget&)>& draw) {
  const double scale = dots_per_inch / kTwipsPerInch;
  QImage image(static_cast<int>(width * scale), static_cast<int>(height * scale),
               QImage::Format_RGB32);
  if (image.isNull()) return {};
  const int dots_per_meter = static_cast<int>(dots_per_inch * kInchesPerMeter);
  image.setDotsPerMeterX(dots_per_meter);
  image.setDotsPerMeterY(dots_per_meter);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  QtPrintTarget target({width, height, width, height}, &painter);
  draw(target);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) return {};
  return bytes.toStdString();
}

}  // namespace tallyroll
