// SPDX-License-Identifier: GPL-3.0-or-later
// The wishes of the class in work, as its companion file keeps them from chart to chart.
#pragma once

#include <span>
#include <string>
#include <vector>

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

// Wishes about students who have left the class are let go.
std::vector<Wish> KeptWishes();
// Keeps these and no others. Answers why it could not be done; empty when it was.
std::string KeepWishes(const std::vector<Wish>& wishes);

}  // namespace tallyroll
