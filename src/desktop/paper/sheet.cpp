// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/sheet.h"

#include <QLocale>
#include <QSizeF>
#include <algorithm>
#include <iterator>

namespace tallyroll {
namespace {

constexpr double kTwipsPerPoint = 20;

constexpr QLocale::Territory kLetterTerritories[] = {
    QLocale::UnitedStates, QLocale::Canada,    QLocale::Mexico,    QLocale::PuertoRico,
    QLocale::Philippines,  QLocale::Guatemala, QLocale::CostaRica, QLocale::Nicaragua,
    QLocale::ElSalvador,   QLocale::Panama,    QLocale::Colombia,  QLocale::Venezuela,
    QLocale::Chile,        QLocale::Belize};

}  // namespace

Sheet WholeSheet(const QPageSize& size) {
  const QSizeF points = size.size(QPageSize::Point);
  const double width = points.width() * kTwipsPerPoint;
  const double height = points.height() * kTwipsPerPoint;
  return {width, height, width, height};
}

Sheet Turned(const Sheet& sheet) {
  return {sheet.height, sheet.width, sheet.printable_height, sheet.printable_width};
}

QPageSize PageSizeOf(const Sheet& sheet) {
  const QSizeF points(sheet.width / kTwipsPerPoint, sheet.height / kTwipsPerPoint);
  return QPageSize(points, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
}

QPageSize UsualPageSize() {
  const QLocale locale = QLocale::system();
  // A system without a country writes its dates as the United States do, and prints like them.
  const bool letter = locale.language() == QLocale::C ||
                      std::find(std::begin(kLetterTerritories), std::end(kLetterTerritories),
                                locale.territory()) != std::end(kLetterTerritories);
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace tallyroll
