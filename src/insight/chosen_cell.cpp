// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/chosen_cell.h"

#include "insight/chosen_snapshot.h"
#include "insight/kept_work.h"

namespace tallyroll {

CellChoice ChosenCell;

void ResetInsight() {
  ChosenCell = {};
  ChosenSnapshot = {};
  WorkFound = {};
}

}  // namespace tallyroll
