// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of frmseating from New to a chart on the table: its size, how it is filled, and wishes.
#include <utility>

#include "base/number_text.h"
#include "platform/surroundings.h"
#include "seating/fill_chart.h"
#include "seating/frmseating.h"
#include "seating/seat_by_wishes.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kMostCharts = 32767;

constexpr const char* kNumberNames[] = {
    " 1  - One",    " 2  - Two",    " 3  - Three",    " 4  - Four",     " 5  - Five",
    " 6  - Six",    " 7  - Seven",  " 8  - Eight",    " 9  - Nine",     "10  - Ten",
    "11  - Eleven", "12  - Twelve", "13  - Thirteen", "14  - Fourteen", "15  - Fifteen"};

std::vector<std::string> NumberNames(int count) {
  return {kNumberNames, kNumberNames + count};
}

// The leading two characters of a choice as a number; 0 where nothing is chosen.
int NumberChosen(const ListBox& list) {
  return list.ListIndex + 1;
}

}  // namespace

void frmseating::FillSizes() {
  column.List = NumberNames(kMostSeatColumns);
  seatsrow.List = NumberNames(kMostSeatsInWide);
}

void frmseating::newchart_Click() {
  if (Current().NumCharts == kMostCharts) {
    ShowMessage("You may only have 32767 charts in a class.", BoxIcon::kCritical);
    return;
  }
  if (!MayLoseChanges()) return;
  LetGo("");
  column.ListIndex = seatsrow.ListIndex = -1;
  seatsrow.List = NumberNames(kMostSeatsInWide);
  alpha.Value = true;
  randord.Value = indiv.Value = bywishes.Value = false;
  step.Current = kSize;
  SetFocus(column);
}

// The widest charts have shorter rows.
void frmseating::column_Change() {
  const int columns = NumberChosen(column);
  seatsrow.List = NumberNames(columns == 0 ? kMostSeatsInWide : MostSeatsPerRow(columns));
  if (seatsrow.ListIndex >= static_cast<int>(seatsrow.List.size())) seatsrow.ListIndex = -1;
}

void frmseating::okinfo_Click() {
  if (NumberChosen(column) == 0) return SetFocus(column);
  if (NumberChosen(seatsrow) == 0) return SetFocus(seatsrow);
  step.Current = kOptions;
  SetFocus(chartok);
}

void frmseating::chartok_Click() {
  if (alpha.Value) return FillNew(FillAsSorted);
  if (randord.Value) return FillNew(FillAtRandom);
  if (indiv.Value) return FillNew(FillByHand);
  wishes.Begin(NumberChosen(seatsrow), NumberChosen(column));
  step.Current = kWishes;
  SetFocus(wishes.wisher);
}

void frmseating::FillNew(void (*fill)(SeatPlan& plan)) {
  SeatPlan plan = EmptyPlan(NumberChosen(seatsrow), NumberChosen(column));
  fill(plan);
  Begin(std::move(plan), Current().NumCharts + 1, true);
  SetFocus(Grid1);
}

void frmseating::wishok_Click() {
  const auto number = wishes.Number();
  if (!number) {
    wishes.wishsaid.Caption = "The number has digits only.";
    return SetFocusAndSelect(wishes.wishnumber);
  }
  const WishedSeating seating = SeatByWishes(wishes.Room(), wishes.Wishes(), *number);
  SeatPlan plan = PlanOf(wishes.Room(), seating);
  Begin(std::move(plan), Current().NumCharts + 1, true);
  for (const Wish& wish : seating.unmet) unmet.List.push_back("Not met: " + WishText(wish));
  unmet.Visible = unmetlabel.Visible = !unmet.List.empty();
  said.Caption =
      "Seated by wishes, number " + PlainNumberText(std::int64_t{*number}) + ": " +
      (unmet.List.empty() ? "all wishes are met."
                          : "wishes that could not be met: " +
                                PlainNumberText(static_cast<int>(unmet.List.size())) + ".");
  SetFocus(Grid1);
}

}  // namespace tallyroll
