// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/chosen_cell.h"

namespace tallyroll {

CellChoice ChosenCell;

void ResetInsight() {
  ChosenCell = {};
}

}  // namespace tallyroll
