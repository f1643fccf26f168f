// SPDX-License-Identifier: GPL-3.0-or-later
// What a user has set of a grid, kept between runs: the widths of columns, and the size of it all.
#pragma once

#include <QHash>
#include <QString>
#include <optional>

#include "platform/grid.h"

namespace tallyroll {

class KeptGrid {
 public:
  // Nothing is kept of a grid without a name.
  explicit KeptGrid(const QString& name = {});

  // Twips; nothing where the column is as wide as it was made. A column is known by its head, so
  // that a width stays with its grade when the order changes.
  std::optional<int> WidthOf(const Grid& grid, int col) const;
  void SetWidth(const Grid& grid, int col, int twips);
  void ForgetWidth(const Grid& grid, int col);

  double zoom() const { return zoom_; }
  void SetZoom(double zoom);

 private:
  void Store() const;

  QString name_;
  QHash<QString, int> widths_;
  double zoom_ = 1;
};

}  // namespace tallyroll
