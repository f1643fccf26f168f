// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of grid cells, one set for light palettes and one for dark.
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/grid.h"

namespace tallyroll {

struct CellLook {
  QColor background;
  QColor text;
  bool bold = false;
};

// Five looks, one a style, ready for the painter.
class GridColors {
 public:
  explicit GridColors(const QPalette& palette);

  const CellLook& Look(CellStyle style) const { return looks_[static_cast<std::size_t>(style)]; }
  const CellLook& Heading() const { return heading_; }
  QColor Line() const { return line_; }

 private:
  CellLook looks_[5];
  CellLook heading_;
  QColor line_;
};

// Contrast of two colours, 1 to 21.
double ContrastOf(const QColor& one, const QColor& other);

}  // namespace tallyroll
