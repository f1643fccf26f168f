// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmtotals.h"

#include "averages/portals/type_grid.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

constexpr int kWeightColumn = 2;
constexpr int kPointsColumn = 3;

}  // namespace

frmtotals::frmtotals() : Portal("frmtotals") {
  Caption = "Totals for Weights Entered";
  HelpContext = 500;
  exit.Caption = "&Close";
}

void frmtotals::Declare(ControlTable& table) {
  table.Add("grdgrade", grdgrade);
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmtotals::Load() {
  grdgrade.SetSize(1 + static_cast<int>(kGradeTypes), 4);
  HeadColumns(grdgrade, {"NAME of TYPE", "Type", "Weight", "Points"});
  const TypeNames types;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) types.Show(grdgrade, static_cast<int>(t), t);
}

void frmtotals::ShowWeights(const TypeSums& weights) {
  ShowColumn(kWeightColumn, weights);
}

void frmtotals::ShowPoints(const TypeSums& points) {
  ShowColumn(kPointsColumn, points);
}

void frmtotals::ShowColumn(int col, const TypeSums& sums) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t)
    grdgrade.SetTextMatrix(static_cast<int>(t), col, PlainNumberText(sums[t]));
}

}  // namespace tallyroll
