// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmweights.h"

#include <cmath>

#include "averages/portals/type_grid.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

constexpr i16 kByItems = 0;

Instrument& GradeAt(int row) {
  return Current().Instruments[static_cast<std::size_t>(row)];
}

}  // namespace

frmweights::frmweights() : WeightsForm("frmweights", grdgrade, 4, "5z") {
  Caption = "Weights Portal - Individual Items";
  HelpContext = 500;
}

void frmweights::Declare(ControlTable& table) {
  DeclareGrid(table, "grdgrade");
  DeclareButtons(table);
  DeclareBoxes(table);
  DeclareFoot(table);
}

// The weights in force are offered again; another method has none.
void frmweights::FillGrid() {
  const Class& c = Current();
  grdgrade.SetSize(1 + GradeCount(c), 4);
  HeadColumns(grdgrade, {"  TITLES", "Type", "Old Wts.", "New Wts."});
  ShowTitles(grdgrade);
  for (int row = 1; row <= LastRow(); ++row) {
    const auto i = static_cast<std::size_t>(row);
    const bool in_force = c.Method == kByItems && i < c.Weights.size();
    grdgrade.SetTextMatrix(row, OldColumn(), PlainNumberText(GradeAt(row).weight));
    SetNewWeight(row, PlainNumberText(in_force ? c.Weights[i] : Currency()));
  }
}

bool frmweights::IsExtraCredit(int row) const {
  return Trim(GradeAt(row).typecode) == kExtraCreditCode;
}

std::vector<int> frmweights::EqualRows() const {
  std::vector<int> rows;
  for (int row = 1; row <= LastRow(); ++row)
    if (!IsExtraCredit(row)) rows.push_back(row);
  return rows;
}

// To three decimals.
Currency frmweights::EqualWeight(int rows) const {
  const double thousandths = 100.0 / rows * 1000;
  return Currency::FromDouble(std::nearbyint(thousandths) / 1000);
}

PrintedTable frmweights::Printout() const {
  return {.title = " Weights Printout",
          .head = {"NAME", "Types", "OLD WTS.", "NEW WTS."},
          .second_head = {},
          .rows = RowsToPrint(grdgrade)};
}

TypeSums frmweights::WeightsByType() const {
  TypeCodes codes;
  MakeTypeCodes(codes);
  const TypesByCode by_code(codes);
  TypeSums sums{};
  for (int row = 1; row <= LastRow(); ++row)
    for (const std::size_t t : by_code.Of(GradeAt(row).typecode))
      sums[t] += LeadingCurrency(NewWeight(row));
  return sums;
}

bool frmweights::SumIsHundred() const {
  return LeadingCurrency(totals.Caption) == Currency::FromWhole(100);
}

void frmweights::PutInForce(const std::vector<Currency>& weights) {
  Class& c = Current();
  if (c.Method != kByItems) c.AverageWork1 = 1;
  c.Weights = weights;
  if (c.AverageSettings.empty()) c.AverageWork2 = 1;
  c.Method = kByItems;
}

void frmweights::KeepForTheFile() {
  for (int row = 1; row <= LastRow(); ++row)
    GradeAt(row).weight = Current().Weights[static_cast<std::size_t>(row)];
}

}  // namespace tallyroll
