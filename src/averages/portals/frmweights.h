// SPDX-License-Identifier: GPL-3.0-or-later
// frmweights: the Weights Portal for individual items. Each grade has a weight of its own.
#pragma once

#include "averages/portals/weights_form.h"

namespace tallyroll {

struct frmweights : WeightsForm {
  frmweights();
  void Declare(ControlTable& table) override;

  Grid grdgrade;  // a row a grade: "  TITLES", "Type", "Old Wts.", "New Wts."

 protected:
  void FillGrid() override;
  bool IsExtraCredit(int row) const override;
  std::vector<int> EqualRows() const override;
  Currency EqualWeight(int rows) const override;
  PrintedTable Printout() const override;
  TypeSums WeightsByType() const override;
  bool SumIsHundred() const override;
  i16& Work() const override { return Current().AverageWork1; }
  void PutInForce(const std::vector<Currency>& weights) override;
  void KeepForTheFile() override;
};

}  // namespace tallyroll
