// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/kept_grid.h"

#include <QSettings>
#include <algorithm>

#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

constexpr int kLeastWidth = 150, kMostWidth = 20000;  // twips; a settings file may hold anything
constexpr double kLeastZoom = 0.6, kMostZoom = 2.5;

QString WidthsKey(const QString& name) {
  return QStringLiteral("GridWidths/%1").arg(name);
}
QString ZoomKey(const QString& name) {
  return QStringLiteral("GridZoom/%1").arg(name);
}

QString HeadOf(const Grid& grid, int col) {
  for (int row = grid.FixedRows - 1; row >= 0; --row) {
    const QString head = FromText(grid.TextMatrix(row, col)).trimmed();
    if (!head.isEmpty() && !grid.MergeRow(row)) return head;
    if (!head.isEmpty() && col < grid.FixedCols) return head;
  }
  return QStringLiteral("#%1").arg(col);
}

}  // namespace

KeptGrid::KeptGrid(const QString& name) : name_(name) {
  if (name.isEmpty()) return;
  const QSettings settings;
  const QVariantMap widths = settings.value(WidthsKey(name)).toMap();
  for (auto at = widths.begin(); at != widths.end(); ++at)
    widths_.insert(at.key(), std::clamp(at.value().toInt(), kLeastWidth, kMostWidth));
  zoom_ = std::clamp(settings.value(ZoomKey(name), 1.0).toDouble(), kLeastZoom, kMostZoom);
}

std::optional<int> KeptGrid::WidthOf(const Grid& grid, int col) const {
  if (widths_.isEmpty() || grid.ColWidth(col) == 0) return std::nullopt;
  const auto found = widths_.constFind(HeadOf(grid, col));
  return found == widths_.constEnd() ? std::nullopt : std::optional<int>(*found);
}

void KeptGrid::SetWidth(const Grid& grid, int col, int twips) {
  widths_.insert(HeadOf(grid, col), std::clamp(twips, kLeastWidth, kMostWidth));
  Store();
}

void KeptGrid::ForgetWidth(const Grid& grid, int col) {
  widths_.remove(HeadOf(grid, col));
  Store();
}

void KeptGrid::Store() const {
  if (name_.isEmpty()) return;
  QVariantMap widths;
  for (auto at = widths_.constBegin(); at != widths_.constEnd(); ++at)
    widths.insert(at.key(), at.value());
  QSettings().setValue(WidthsKey(name_), widths);
}

void KeptGrid::SetZoom(double zoom) {
  zoom_ = std::clamp(zoom, kLeastZoom, kMostZoom);
  if (!name_.isEmpty()) QSettings().setValue(ZoomKey(name_), zoom_);
}

}  // namespace tallyroll
