// SPDX-License-Identifier: GPL-3.0-or-later
// frmtotals: Totals for Weights Entered, a small Portal beside those that set weights and points.
#pragma once

#include "grades/type_totals.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmtotals : Portal {
  frmtotals();
  void Declare(ControlTable& table) override;
  void Load() override;

  Grid grdgrade;  // a row a type: "NAME of TYPE", "Type", "Weight", "Points"
  CommandButton exit;

  // Called by the Portal that keeps it, whenever its figures change.
  void ShowWeights(const TypeSums& weights);
  void ShowPoints(const TypeSums& points);

 private:
  void ShowColumn(int col, const TypeSums& sums);
};

}  // namespace tallyroll
