// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/kept_wishes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/text.h"
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

// A wish is kept by IDs, so it finds its student again by one that nobody else has.
bool HasOwnId(int student) {
  return StudentOfId(IdOf(student)) == student;
}

std::optional<Wish> WishOf(const SeatWish& row) {
  const auto* kind =
      std::ranges::find_if(kKinds, [&](const WishKindRow& r) { return r.kept == row.kind; });
  if (kind == kKinds.end()) return std::nullopt;
  const Wish wish{kind->kind, StudentOfId(row.student), StudentOfId(row.other)};
  if (wish.student == 0 || (kind->needs_other && wish.other == 0)) return std::nullopt;
  return wish;
}

}  // namespace

std::span<const WishKindRow> WishKinds() {
  return kKinds;
}

const WishKindRow& RowOfKind(WishKind kind) {
  return kKinds[static_cast<std::size_t>(kind)];
}

KeptWishes ReadWishes() {
  KeptSeatWishes read = SeatWishes(Current().FileName);
  KeptWishes kept{{}, {}, std::move(read.fault)};
  for (SeatWish& row : read.wishes) {
    const std::optional<Wish> wish = WishOf(row);
    if (wish)
      kept.wishes.push_back(*wish);
    else
      kept.others.push_back(std::move(row));
  }
  return kept;
}

std::string KeepWishes(const KeptWishes& kept) {
  std::vector<SeatWish> rows;
  bool all = true;
  for (const Wish& wish : kept.wishes) {
    if (HasOwnId(wish.student) && (wish.other == 0 || HasOwnId(wish.other)))
      rows.push_back({RowOfKind(wish.kind).kept, IdOf(wish.student), IdOf(wish.other)});
    else
      all = false;
  }
  rows.insert(rows.end(), kept.others.begin(), kept.others.end());
  const std::string fault = KeepSeatWishes(Current().FileName, rows);
  return fault.empty() && !all ? "some students have no ID of their own" : fault;
}

}  // namespace tallyroll
