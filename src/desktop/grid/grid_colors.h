// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of grid cells, from the table of the palette they stand on.
#pragma once

#include <QColor>
#include <QPalette>

#include "desktop/style/tokens.h"
#include "platform/grid.h"

namespace tallyroll {

struct CellLook {
  QColor background;
  QColor text;
  bool bold = false;
};

// The word and the ground of a chip; the ground is no colour where a mark has no chip.
struct ChipLook {
  QColor text;
  QColor ground;
};

// Ready for the painter.
class GridColors {
 public:
  explicit GridColors(const QPalette& palette);

  const Tokens& tokens() const { return tokens_; }
  const CellLook& Look(CellStyle style) const { return looks_[static_cast<std::size_t>(style)]; }
  const CellLook& Heading() const { return heading_; }
  ChipLook ChipOf(CellMark mark) const;

 private:
  Tokens tokens_;
  CellLook looks_[5];
  CellLook heading_;
};

// Contrast of two colours, 1 to 21.
inline double ContrastOf(const QColor& one, const QColor& other) {
  return Contrast(one, other);
}

}  // namespace tallyroll
