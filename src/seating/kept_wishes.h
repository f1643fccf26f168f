// SPDX-License-Identifier: GPL-3.0-or-later
// The wishes of the class in work, as its companion file keeps them from chart to chart.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "companion/seat_wishes.h"
#include "seating/wishes.h"

namespace tallyroll {

struct WishKindRow {
  WishKind kind;
  const char* kept;     // in the companion file, for good
  const char* caption;  // on the screen
  bool needs_other;     // it is about two students
};

std::span<const WishKindRow> WishKinds();
const WishKindRow& RowOfKind(WishKind kind);

struct KeptWishes {
  std::vector<Wish> wishes;
  // About students who are not in the class, or of kinds of a newer program: kept as they are.
  std::vector<SeatWish> others;
  std::string fault;  // why they could not be read
};
KeptWishes ReadWishes();

// Keeps these and no others. Answers why they, or some of them, could not be kept.
std::string KeepWishes(const KeptWishes& kept);

}  // namespace tallyroll
