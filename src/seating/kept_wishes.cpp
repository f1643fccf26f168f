// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/kept_wishes.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "companion/seat_wishes.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::array kKinds{
    WishKindRow{WishKind::kFront, "front", "at the front", false},
    WishKindRow{WishKind::kBack, "back", "at the back", false},
    WishKindRow{WishKind::kApart, "apart", "apart from", true},
    WishKindRow{WishKind::kBeside, "beside", "beside", true},
    WishKindRow{WishKind::kKeepSeat, "keep", "keeps the seat of the last chart", false},
    WishKindRow{WishKind::kNewNeighbours, "new neighbours", "not the last neighbour again", false},
};

std::string IdOf(int student) {
  if (student == 0) return {};
  return std::string(Trim(Current().Students[static_cast<std::size_t>(student)].id));
}

int StudentOfId(std::string_view id) {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i)
    if (!id.empty() && Trim(c.Students[static_cast<std::size_t>(i)].id) == id) return i;
  return 0;
}

}  // namespace

std::span<const WishKindRow> WishKinds() {
  return kKinds;
}

const WishKindRow& RowOfKind(WishKind kind) {
  return kKinds[static_cast<std::size_t>(kind)];
}

std::vector<Wish> KeptWishes() {
  std::vector<Wish> wishes;
  for (const SeatWish& kept : SeatWishes(Current().FileName)) {
    const auto* row =
        std::ranges::find_if(kKinds, [&](const WishKindRow& r) { return r.kept == kept.kind; });
    if (row == kKinds.end()) continue;
    const Wish wish{row->kind, StudentOfId(kept.student), StudentOfId(kept.other)};
    if (wish.student == 0 || (row->needs_other && wish.other == 0)) continue;
    wishes.push_back(wish);
  }
  return wishes;
}

std::string KeepWishes(const std::vector<Wish>& wishes) {
  std::vector<SeatWish> kept;
  for (const Wish& wish : wishes)
    kept.push_back({RowOfKind(wish.kind).kept, IdOf(wish.student), IdOf(wish.other)});
  return KeepSeatWishes(Current().FileName, kept);
}

}  // namespace tallyroll
