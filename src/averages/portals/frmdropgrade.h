// SPDX-License-Identifier: GPL-3.0-or-later
// frmdropgrade: the Drop Lowest Grade Portal, a small grid beside the Portals that set weights. It
// chooses the types of which the lowest grade is dropped.
#pragma once

#include <vector>

#include "grades/type_totals.h"
#include "platform/portal.h"

namespace tallyroll {

// Whether any grade of the class may be dropped.
bool AnyGradeMayBeDropped();
// Whether one of them has a type, without which it can't be chosen by type.
bool AnyTypeMayBeDropped();
// Says that none may.
void TellNoGradeMayBeDropped();

struct frmdropgrade : Portal {
  frmdropgrade();
  void Declare(ControlTable& table) override;
  void Load() override;

  Grid grdgrade;  // a row for each type with a grade that may be dropped
  CommandButton exit;

  bool grdgrade_KeyPress();

  // Lays the drop flag on each chosen type of an empty table. False when none is chosen.
  bool TakeChoice(TypeSums& drops) const;

 private:
  std::vector<std::size_t> types_{0};  // by row
};

}  // namespace tallyroll
