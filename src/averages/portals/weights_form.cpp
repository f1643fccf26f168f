// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/weights_form.h"

#include <algorithm>

#include "averages/portals/clipboard_column.h"
#include "averages/portals/type_grid.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "platform/surroundings.h"

namespace tallyroll {

WeightsForm::WeightsForm(std::string_view name, Grid& grid, int columns,
                         std::string_view clipboard_format)
    : Portal(name), grid_(grid), columns_(columns), clipboard_format_(clipboard_format) {
  newwt.Caption = "&New";
  equal.Caption = "&Equal";
  oldwt.Caption = "&Use Old";
  clearwt.Caption = "C&lear";
  paste.Caption = "Copy &To";
  frombd.Caption = "Paste &From";
  types.Caption = "T&ypes";
  print.Caption = "&Print";
  exit.Caption = "C&ontinue";
  cancel.Caption = "&Cancel";
  dropyn.Caption = "Drop Single Lowest Grade";
  droptype.Caption = "Drop Lowest by Type";
  labs.Caption = "Drop \"ABS\"/\"EXC\" or  \"NEW\" as lowest";
}

void WeightsForm::DeclareGrid(ControlTable& table, std::string_view name) {
  table.Add(name, grid_)
      .Change([this] { grid_Moved(); })
      .Click([this] { grid_Moved(); })
      .KeyDown([this](Key key) { return grid_KeyDown(key); })
      .KeyPress([this](unsigned char character) { return grid_KeyPress(character); });
}

void WeightsForm::DeclareButtons(ControlTable& table) {
  table.Add("newwt", newwt).Click([this] { newwt_Click(); });
  table.Add("equal", equal).Click([this] { equal_Click(); });
  table.Add("oldwt", oldwt).Click([this] { oldwt_Click(); });
  table.Add("clearwt", clearwt).Click([this] { clearwt_Click(); });
  table.Add("paste", paste).Click([this] { paste_Click(); });
  table.Add("frombd", frombd).Click([this] { frombd_Click(); });
  table.Add("types", types).Click([this] { types_Click(); });
  table.Add("print", print).Click([this] { print_Click(); });
}

void WeightsForm::DeclareBoxes(ControlTable& table) {
  table.Add("totals", totals);
  table.Add("extra", extra);
  table.Add("dropyn", dropyn).Click([this] { dropyn_Click(); });
  table.Add("droptype", droptype).Click([this] { droptype_Click(); });
  table.Add("labs", labs);
}

void WeightsForm::DeclareFoot(ControlTable& table) {
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void WeightsForm::Load() {
  const Class& c = Current();
  work_before_ = Work();
  grid_.FixedCols = grid_.Col = NewColumn();
  FillGrid();
  MoveMark();
  droptype.Value = c.AverageFlag4 && AnyTypeMayBeDropped() && drop_.Open();
  dropyn.Value = c.AverageFlag2 && AnyGradeMayBeDropped() && !droptype.Value;
  labs.Visible = droptype.Value || dropyn.Value;
  labs.Value = labs.Visible && c.AverageFlag1;
  ShowSums();
  SetFocus(grid_);
}

// The next key replaces what was not typed into the cell.
void WeightsForm::SetNewWeight(int row, std::string_view text) {
  if (TakesWeight(row)) grid_.SetTextMatrix(row, NewColumn(), text);
  typing_.first_key = true;
}

// A sum that no Currency holds shows as no number, and is refused as any other that isn't 100.
void WeightsForm::ShowSums() {
  try {
    Currency sum, of_extra;
    for (int row = 1; row <= LastRow(); ++row)
      (IsExtraCredit(row) ? of_extra : sum) += LeadingCurrency(NewWeight(row));
    totals.Caption = PlainNumberText(sum);
    extra.Caption = PlainNumberText(of_extra);
    ShowTypes();
  } catch (const RunTimeError&) {
    totals.Caption = extra.Caption = "?";
  }
}

void WeightsForm::ShowTypes() {
  if (!totals_by_type_.get()) return;
  TypeCounts counts;
  TypeSums none, maxes;
  ClassTotalsByType(counts, none, maxes);
  totals_by_type_.get()->ShowWeights(WeightsByType());
  totals_by_type_.get()->ShowPoints(maxes);
}

void WeightsForm::grid_Moved() {
  typing_.first_key = true;
  MoveMark();
}

// Enter goes on to the next weight.
bool WeightsForm::grid_KeyDown(Key key) {
  if (key != Key::kEnter) return false;
  GoToNextRow(grid_);
  grid_Moved();
  return true;
}

bool WeightsForm::grid_KeyPress(unsigned char character) {
  if (grid_.Row < 1 || grid_.Row > LastRow() || !TakesWeight(grid_.Row)) return true;
  grid_.SetTextMatrix(grid_.Row, NewColumn(), typing_.Type(NewWeight(grid_.Row), character));
  SetChanged();
  ShowSums();
  return true;
}

void WeightsForm::newwt_Click() {
  grid_.Row = 1;
  grid_Moved();
  SetFocus(grid_);
}

// The last row takes what remains, so that the column sums to 100. Where there is nothing to share
// 100 out to, all stays as it is.
void WeightsForm::equal_Click() {
  const std::vector<int> rows = EqualRows();
  if (rows.empty()) return;
  const Currency each = EqualWeight(static_cast<int>(rows.size()));
  Currency rest = Currency::FromWhole(100);
  for (int row = 1; row <= LastRow(); ++row) SetNewWeight(row, "0");
  for (const int row : rows) {
    SetNewWeight(row, PlainNumberText(row == rows.back() ? rest : each));
    rest -= each;
  }
  SetChanged();
  ShowSums();
}

void WeightsForm::oldwt_Click() {
  for (int row = 1; row <= LastRow(); ++row)
    SetNewWeight(row, std::string(grid_.TextMatrix(row, OldColumn())));
  SetChanged();
  ShowSums();
}

void WeightsForm::clearwt_Click() {
  for (int row = 1; row <= LastRow(); ++row) SetNewWeight(row, "0");
  SetChanged();
  ShowSums();
}

void WeightsForm::paste_Click() {
  CopyLines(clipboard_format_, ColumnOf(grid_, NewColumn()));
}

void WeightsForm::frombd_Click() {
  std::vector<std::string> lines;
  if (!PasteLines(clipboard_format_, lines)) return;
  const int last = std::min(LastRow(), static_cast<int>(lines.size()));
  for (int row = 1; row <= last; ++row) SetNewWeight(row, lines[static_cast<std::size_t>(row) - 1]);
  SetChanged();
  ShowSums();
}

void WeightsForm::types_Click() {
  if (!totals_by_type_.get()) totals_by_type_.Open();
  ShowSums();
  totals_by_type_.Show();
}

void WeightsForm::ClearDropBoxes() {
  droptype.Value = dropyn.Value = labs.Value = labs.Visible = false;
  drop_.Hide();
}

void WeightsForm::print_Click() {
  PrintGrid(Printout());
}

void WeightsForm::droptype_Click() {
  if (!droptype.Value) return ClearDropBoxes();
  dropyn.Value = false;
  labs.Visible = true;
  // What was chosen before the box was cleared is chosen still.
  if (!drop_.get() && !drop_.Open()) return ClearDropBoxes();
  drop_.Show();
}

void WeightsForm::dropyn_Click() {
  if (!dropyn.Value) return ClearDropBoxes();
  droptype.Value = false;
  drop_.Hide();
  labs.Visible = true;
  if (AnyGradeMayBeDropped()) return;
  TellNoGradeMayBeDropped();
  ClearDropBoxes();
}

bool WeightsForm::TakeDrops(TypeSums& drops) {
  if (!droptype.Value) return true;
  drop_.Hide();
  if (drop_.get() && drop_.get()->TakeChoice(drops)) return true;
  ShowMessage(
      "You chose to drop lowest grade by type but you didn't specify any type(s). Either place a Y "
      "next to the chosen type(s) or uncheck the 'Drop Lowest by Type' box.");
  drop_.Show();
  return false;
}

bool WeightsForm::ReadWeights(std::vector<Currency>& weights) const {
  weights.assign(1, Currency());
  try {
    for (int row = 1; row <= LastRow(); ++row) weights.push_back(LeadingCurrency(NewWeight(row)));
  } catch (const RunTimeError&) {
    return false;
  }
  return true;
}

void WeightsForm::exit_Click() {
  totals_by_type_.Close();
  TypeSums drops{};
  if (!TakeDrops(drops)) return;
  std::vector<Currency> weights;
  if (!SumIsHundred() || !ReadWeights(weights)) {
    ShowMessage("The weights, excluding 'Extra Credit', must equal 100", BoxIcon::kCritical,
                "Note to the Teacher ");
    typing_.first_key = true;
    return SetFocus(grid_);
  }
  Accept(weights, drops);
  if (DefaultMethod == 5)
    Unload();  // the summary stands below
  else
    UnloadAndShow("frmroundoff");
}

DropBoxes WeightsForm::Boxes() const {
  return {labs.Value, dropyn.Value, false, droptype.Value};
}

void WeightsForm::Accept(const std::vector<Currency>& weights, const TypeSums& drops) {
  Class& c = Current();
  c.TypeWeights = drops;
  PutInForce(weights);
  if (Work() == 1 && AskToSaveSettings("Do you want to save these weights?", "SAVE WEIGHTS")) {
    KeepForTheFile();
    c.AverageSettings = AverageSettingsText(c.Method, Boxes(), drops);
    SaveChangedClass();
    Work() = 2;
  }
  c.AverageFlag1 = labs.Value ? kTrue : kFalse;
  c.AverageFlag2 = dropyn.Value ? kTrue : kFalse;
  c.AverageFlag4 = droptype.Value ? kTrue : kFalse;
  drop_.Close();
}

void WeightsForm::cancel_Click() {
  totals_by_type_.Close();
  drop_.Close();
  Work() = work_before_;
  Unload();
}

}  // namespace tallyroll
