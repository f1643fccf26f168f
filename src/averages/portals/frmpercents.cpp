// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmpercents.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr i16 kByTypes = 1;
constexpr i16 kByPointsAndTypes = 3;
constexpr int kItemsColumn = 2;
// Both take the same room, so that nothing moves with the mark.
constexpr std::string_view kMarked = "\xBB ";
constexpr std::string_view kUnmarked = "   ";

i16 MethodToSet() {
  return DefaultMethod == 5 ? Current().Method : DefaultMethod;
}

// The saved weights; a number that no Currency holds is none.
TypeSums SavedPercents() {
  TypeSums percents{};
  std::string_view rest = Current().PercentsText;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const std::size_t end = rest.find('\r');
    try {
      percents[t] = LeadingCurrency(rest.substr(0, end));
    } catch (const RunTimeError&) {
      percents[t] = Currency();
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return percents;
}

}  // namespace

frmpercents::frmpercents() : WeightsForm("frmpercents", typegrid, 5, "6z") {
  Caption = "Weights Portals - Type";
  HelpContext = 510;
  redist.Caption =
      "Disallow redist. of weights across Types when student has only ABS/EXC in a Type";
  typegrid.Notes.Of = [this](int row, int) {
    const bool idle = row >= 1 && items_[static_cast<std::size_t>(row)] == 0;
    return idle ? CellNote{CellMark::kMuted, "no grade of this type"} : CellNote();
  };
}

void frmpercents::Declare(ControlTable& table) {
  DeclareGrid(table, "typegrid");
  DeclareButtons(table);
  DeclareBoxes(table);
  table.Add("redist", redist);
  DeclareFoot(table);
}

void frmpercents::FillGrid() {
  const Class& c = Current();
  names_ = TypeNames();
  TypeSums none, maxes;
  ClassTotalsByType(items_, none, maxes);
  extra_needs_none_ = MethodToSet() == kByPointsAndTypes && items_[kExtraCreditType] > 0;
  redist.Value = c.AverageFlag3;

  typegrid.SetSize(1 + static_cast<int>(kGradeTypes), 5);
  HeadColumns(typegrid, {"NAME of TYPE", "Type", "# of Items", "Old %", "New %"});
  const TypeSums old = SavedPercents();
  const bool in_force = c.Method == kByTypes || c.Method == kByPointsAndTypes;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const int row = static_cast<int>(t);
    names_.Show(typegrid, row, t);
    typegrid.SetTextMatrix(row, kItemsColumn, PlainNumberText(items_[t]));
    typegrid.SetTextMatrix(row, OldColumn(), PlainNumberText(old[t]));
    const Currency weight = in_force ? c.TypePercents[t] : Currency();
    typegrid.SetTextMatrix(row, NewColumn(), TakesWeight(row) ? PlainNumberText(weight) : "*");
  }
}

void frmpercents::MoveMark() {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const int row = static_cast<int>(t);
    typegrid.SetTextMatrix(
        row, 0,
        std::string(row == typegrid.Row ? kMarked : kUnmarked) + std::string(names_.Name(t)));
  }
}

bool frmpercents::IsExtraCredit(int row) const {
  return names_.IsExtraCredit(static_cast<std::size_t>(row));
}

bool frmpercents::TakesWeight(int row) const {
  return !extra_needs_none_ || !IsExtraCredit(row);
}

std::vector<int> frmpercents::EqualRows() const {
  std::vector<int> rows;
  for (int row = 1; row <= LastRow(); ++row)
    if (items_[static_cast<std::size_t>(row)] > 0 && !IsExtraCredit(row)) rows.push_back(row);
  return rows;
}

// A whole number.
Currency frmpercents::EqualWeight(int rows) const {
  return Currency::FromWhole(RoundToInt16(100.0 / rows));
}

// The mark of the row in work is no part of a name.
PrintedTable frmpercents::Printout() const {
  PrintedTable table{.title = " Weights Printout by Type",
                     .first_column = 1,
                     .head = {"NAME", "Types", "# of ", "OLD %", "NEW %"},
                     .second_head = {"", "", "Items"},
                     .rows = RowsToPrint(typegrid)};
  for (std::size_t t = 1; t <= kGradeTypes; ++t) table.rows[t - 1].front() = names_.Name(t);
  return table;
}

TypeSums frmpercents::WeightsByType() const {
  TypeSums sums{};
  for (std::size_t t = 1; t <= kGradeTypes; ++t)
    sums[t] = LeadingCurrency(NewWeight(static_cast<int>(t)));
  return sums;
}

bool frmpercents::SumIsHundred() const {
  return LeadingNumber(totals.Caption) == 100;
}

void frmpercents::PutInForce(const std::vector<Currency>& weights) {
  Class& c = Current();
  if (c.Method != kByTypes) c.AverageWork2 = 1;
  std::copy(weights.begin(), weights.end(), c.TypePercents.begin());
  if (c.AverageSettings.empty()) c.AverageWork2 = 1;
  if (DefaultMethod == kByTypes) c.Method = kByTypes;
  c.AverageFlag3 = redist.Value ? kTrue : kFalse;
}

void frmpercents::KeepForTheFile() {
  std::string text;
  for (int row = 1; row <= LastRow(); ++row)
    text.append(row == 1 ? "" : "\r").append(NewWeight(row));
  Current().PercentsText = text;
}

DropBoxes frmpercents::Boxes() const {
  DropBoxes boxes = WeightsForm::Boxes();
  boxes.redist = redist.Value;
  return boxes;
}

}  // namespace tallyroll
