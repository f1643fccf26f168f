// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/spoken_status.h"

#include <utility>

#include "desktop/grid/grid_accessibility.h"

namespace tallyroll {

void SpokenStatus::Follow(GridWidget& grid, int told, const QString& text) {
  const bool is_new = std::exchange(told_, told) != told;
  if (!is_new && (standing_.isEmpty() || text == standing_)) return;
  standing_ = is_new ? text : QString();
  TellAtCurrentCell(grid, standing_);
}

}  // namespace tallyroll
