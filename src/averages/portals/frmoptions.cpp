// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmoptions.h"

#include "averages/engine/lowest.h"
#include "averages/portals/type_grid.h"
#include "averages/rounding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/letters.h"
#include "grades/marks.h"
#include "grades/type_totals.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kMethods[] = {"Assign Weights to Individual Items",
                                         "Assign Weights by Type", "Use Points",
                                         "Use Points and Weights by Type"};

std::string_view StateText(bool selected) {
  return selected ? "Selected" : "Not Selected";
}

bool Counts(std::size_t grade) {
  const List<Currency>& use = Current().InstrumentUse;
  return grade >= use.size() || use[grade] != Currency::FromWhole(2);
}

// A type without a grade and without a weight plays no part.
std::vector<std::size_t> TypesInPlay(const TypeCounts& items) {
  std::vector<std::size_t> types;
  for (std::size_t t = 1; t <= kGradeTypes; ++t)
    if (items[t] > 0 || Current().TypePercents[t] != Currency()) types.push_back(t);
  return types;
}

}  // namespace

frmoptions::frmoptions() : Portal("frmoptions") {
  Caption = "Current Weights and Rounding Summary Portal";
  HelpContext = 550;
  Change1.Caption = "Change &Weights";
  Change2.Caption = "Change &Rounding";
  continue_.Caption = "&Continue";
  EXIT.Caption = "C&ancel";
}

void frmoptions::Declare(ControlTable& table) {
  table.Add("method", method);
  table.Add("amountgrid", amountgrid);
  table.Add("typegrid", typegrid);
  table.Add("pointframe", pointframe);
  table.Add("totals", totals);
  table.Add("extra", extra);
  table.Add("round", round);
  table.Add("grdgrade", grdgrade);
  table.Add("dropabs", dropabs);
  table.Add("dis", dis);
  table.Add("dlt", dlt);
  table.Add("dsl", dsl);
  table.Add("Change1", Change1).Click([this] { Change1_Click(); });
  table.Add("Change2", Change2).Click([this] { Change2_Click(); });
  table.Add("continue", continue_).Click([this] { continue_Click(); });
  table.Add("EXIT", EXIT).Click([this] { Unload(); });
}

void frmoptions::Load() {
  for_printer_ = OpenState == kForThePrinter;
  ShowSettings();
  SetFocus(continue_);
}

void frmoptions::ShowSettings() {
  const i16 number = Current().Method;
  const bool known = number >= 0 && number <= 3;
  method.Caption = known ? kMethods[number] : "";
  amountgrid.Visible = number == 0 || number == 2 || !known;
  typegrid.Visible = !amountgrid.Visible;
  pointframe.Visible = number == 2 || number == 3;
  ShowScale();
  lowframe();
  if (number == 2)
    showgridpoint();
  else if (amountgrid.Visible)
    showgrid();
  else
    maketypename();
  makegridpoints();
}

// A heading in two lines takes two fixed rows.
void frmoptions::ShowScale() {
  const Class& c = Current();
  round.Caption = c.RoundMode == 1 ? "Not Enabled" : "Enabled";
  grdgrade.FixedRows = 2;
  grdgrade.FixedCols = 1;
  grdgrade.SetSize(15, 3);
  HeadColumns(grdgrade, {"Letter", "#", "Value"});
  grdgrade.SetTextMatrix(0, 2, " Min.");
  for (int col = 0; col < 3; ++col) grdgrade.SetColWidth(col, 900);
  grdgrade.SetColAlignment(1, ColumnAlign::kRight);
  for (std::size_t k = 0; k < 13; ++k) {
    const int row = static_cast<int>(k) + 2;
    grdgrade.SetTextMatrix(row, 0, Trim(LetterNames[k]));
    grdgrade.SetTextMatrix(row, 1, PlainNumberText(FinalValues[k]));
    grdgrade.SetTextMatrix(
        row, 2, PlainNumberText(c.RoundTable[static_cast<std::size_t>(c.RoundScale)][k]));
  }
}

// The boxes of the weights Portals stay as they were while points are in use, but points drop
// nothing.
void frmoptions::lowframe() {
  const Class& c = Current();
  const bool weighs = c.Method != 2 && c.Method != 3;
  dropabs.Caption = StateText(weighs && c.AverageFlag1);
  dsl.Caption = StateText(weighs && c.AverageFlag2);
  dis.Caption = StateText(weighs && c.AverageFlag3);
  dlt.Caption = StateText(weighs && c.AverageFlag4);
}

void frmoptions::showgrid() {
  const Class& c = Current();
  amountgrid.FixedRows = amountgrid.Row = 1;
  amountgrid.SetSize(1 + GradeCount(c), 3);
  amountgrid.Clear();
  HeadColumns(amountgrid, {"  TITLES", "Type", "Wts."});
  ShowTitles(amountgrid);
  for (std::size_t i = 1; i < c.Weights.size() && static_cast<int>(i) < amountgrid.Rows(); ++i)
    amountgrid.SetTextMatrix(static_cast<int>(i), 2, PlainNumberText(c.Weights[i]));
}

void frmoptions::showgridpoint() {
  const Class& c = Current();
  amountgrid.FixedRows = amountgrid.Row = 2;
  amountgrid.SetSize(2 + GradeCount(c), 4);
  amountgrid.Clear();
  HeadColumns(amountgrid, {"  TITLES", "Type", "Pts.", "in Total"});
  amountgrid.SetTextMatrix(0, 2, "Max");
  amountgrid.SetTextMatrix(0, 3, "Count");
  amountgrid.SetColAlignment(3, ColumnAlign::kCenter);
  ShowTitles(amountgrid);
  for (int i = 1; i <= GradeCount(c); ++i) {
    const auto grade = static_cast<std::size_t>(i);
    amountgrid.SetTextMatrix(i + 1, 2, PlainNumberText(c.Instruments[grade].mvalue));
    amountgrid.SetTextMatrix(i + 1, 3, Counts(grade) ? "Y" : "N");
  }
}

void frmoptions::maketypename() {
  const Class& c = Current();
  const bool points = c.Method == 3;
  TypeCounts items;
  TypeSums none, maxes;
  ClassTotalsByType(items, none, maxes);
  const std::vector<std::size_t> types = TypesInPlay(items);
  typegrid.SetSize(1 + static_cast<int>(types.size()), 5);
  typegrid.Clear();
  if (points)
    HeadColumns(typegrid, {"NAME of TYPE", "Type", "Wts.", "#", "Drop"});
  else
    HeadColumns(typegrid, {"NAME of TYPE", "Type", "# of Items", "Percent", "Drop"});
  typegrid.SetColAlignment(4, ColumnAlign::kCenter);
  const TypeNames names;
  for (std::size_t i = 0; i < types.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const std::size_t t = types[i];
    const bool dropped = !points && c.AverageFlag4 && c.TypeWeights[t] == kMayDrop;
    names.Show(typegrid, row, t);
    typegrid.SetTextMatrix(row, points ? 3 : 2, PlainNumberText(items[t]));
    typegrid.SetTextMatrix(row, points ? 2 : 3, PlainNumberText(c.TypePercents[t]));
    typegrid.SetTextMatrix(row, 4, dropped ? "Y" : "N");
  }
}

void frmoptions::makegridpoints() {
  const Class& c = Current();
  Currency sum, of_extra;
  for (int i = 1; i <= GradeCount(c); ++i) {
    const auto grade = static_cast<std::size_t>(i);
    if (!Counts(grade)) continue;
    const bool extra_credit = Trim(c.Instruments[grade].typecode) == kExtraCreditCode;
    (extra_credit ? of_extra : sum) += Currency::FromWhole(c.Instruments[grade].mvalue);
  }
  totals.Caption = PlainNumberText(sum);
  extra.Caption = PlainNumberText(of_extra);
}

void frmoptions::Change1_Click() {
  constexpr std::string_view kPortals[] = {"frmweights", "frmpercents", "frmpoints", "frmpoints"};
  const i16 number = Current().Method;
  DefaultMethod = 5;
  ShowPortal(kPortals[number >= 0 && number <= 3 ? number : 0]);
  ShowSettings();
}

void frmoptions::Change2_Click() {
  DefaultMethod = 5;
  ShowPortal("frmroundoff");
  ShowSettings();
}

void frmoptions::continue_Click() {
  UnloadAndShow(for_printer_ ? "frmprintall" : "frmscrnavg");
}

}  // namespace tallyroll
