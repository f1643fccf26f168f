// SPDX-License-Identifier: GPL-3.0-or-later
// frmpercents: the Weights Portal for types. Each grade type has a weight; it serves the average by
// types and, after the Points Portal, that by points and types.
#pragma once

#include "averages/portals/type_grid.h"
#include "averages/portals/weights_form.h"

namespace tallyroll {

struct frmpercents : WeightsForm {
  frmpercents();
  void Declare(ControlTable& table) override;

  Grid typegrid;  // a row a type: "NAME of TYPE", "Type", "# of Items", "Old %", "New %"
  CheckBox redist;

 protected:
  void FillGrid() override;
  bool IsExtraCredit(int row) const override;
  bool TakesWeight(int row) const override;
  std::vector<int> EqualRows() const override;
  Currency EqualWeight(int rows) const override;
  void MoveMark() override;
  PrintedTable Printout() const override;
  TypeSums WeightsByType() const override;
  bool SumIsHundred() const override;
  i16& Work() const override { return Current().AverageWork2; }
  void PutInForce(const std::vector<Currency>& weights) override;
  void KeepForTheFile() override;
  DropBoxes Boxes() const override;

 private:
  TypeNames names_;
  TypeCounts items_{};
  bool extra_needs_none_ = false;  // extra credit under points
};

}  // namespace tallyroll
