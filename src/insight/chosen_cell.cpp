// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/chosen_cell.h"

#include "insight/chosen_snapshot.h"

namespace tallyroll {

CellChoice ChosenCell;

void ResetInsight() {
  ChosenCell = {};
  ChosenSnapshot = {};
}

}  // namespace tallyroll
