// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/wish_step.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "companion/seat_wishes.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct KindRow {
  WishKind kind;
  const char* kept;     // in the companion file, for good
  const char* caption;  // on the screen
};

constexpr std::array kKinds{
    KindRow{WishKind::kFront, "front", "at the front"},
    KindRow{WishKind::kBack, "back", "at the back"},
    KindRow{WishKind::kApart, "apart", "apart from"},
    KindRow{WishKind::kBeside, "beside", "beside"},
    KindRow{WishKind::kKeepSeat, "keep", "keeps the seat of the last chart"},
    KindRow{WishKind::kNewNeighbours, "new neighbours", "not the last neighbour again"},
};

bool NeedsOther(WishKind kind) {
  return kind == WishKind::kApart || kind == WishKind::kBeside;
}

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

// Wishes about students who have left the class are let go.
std::vector<Wish> KeptWishes() {
  std::vector<Wish> wishes;
  for (const SeatWish& kept : SeatWishes(Current().FileName)) {
    const auto* row = std::ranges::find(kKinds, kept.kind, &KindRow::kept);
    if (row == kKinds.end()) continue;
    const Wish wish{row->kind, StudentOfId(kept.student), StudentOfId(kept.other)};
    if (wish.student == 0 || (NeedsOther(wish.kind) && wish.other == 0)) continue;
    wishes.push_back(wish);
  }
  return wishes;
}

}  // namespace

WishStep::WishStep() {
  addwish.Caption = "&Add";
  takewish.Caption = "&Take Away";
  wishnumber.MaxLength = 9;
  for (const KindRow& row : kKinds) wishkind.List.emplace_back(row.caption);
}

void WishStep::Declare(ControlTable& table) {
  table.Add("wisher", wisher);
  table.Add("wishkind", wishkind).Change([this] { wishkind_Change(); });
  table.Add("wishother", wishother);
  table.Add("addwish", addwish).Click([this] { addwish_Click(); });
  table.Add("wishlist", wishlist);
  table.Add("takewish", takewish).Click([this] { takewish_Click(); });
  table.Add("contradictions", contradictions);
  table.Add("wishnumber", wishnumber);
  table.Add("wishsaid", wishsaid);
}

void WishStep::Begin(int rows, int columns) {
  room_ = RoomOfNewChart(rows, columns);
  wishes_ = KeptWishes();
  wisher.List.clear();
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i)
    wisher.List.push_back(SeatLabel(c.Students[static_cast<std::size_t>(i)]));
  wishother.List = wisher.List;
  wisher.ListIndex = wishkind.ListIndex = wishother.ListIndex = -1;
  wishother.Enabled = false;
  constexpr int kNumbers = 10000;
  if (wishnumber.Text.empty())
    wishnumber.Text = PlainNumberText(static_cast<int>(Platform().Random() * kNumbers));
  TellWhetherKept(WhyNoSeatWishes(c.FileName));
  Show();
}

std::optional<std::uint32_t> WishStep::Number() const {
  const std::string_view text = Trim(wishnumber.Text);
  if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos)
    return std::nullopt;
  std::uint32_t number = 0;
  for (const char digit : text) number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  return number;
}

void WishStep::wishkind_Change() {
  wishother.Enabled = wishkind.ListIndex >= 0 &&
                      NeedsOther(kKinds[static_cast<std::size_t>(wishkind.ListIndex)].kind);
  if (!wishother.Enabled) wishother.ListIndex = -1;
}

void WishStep::addwish_Click() {
  if (wisher.ListIndex < 0 || wishkind.ListIndex < 0) {
    wishsaid.Caption = "Choose a student and a wish first.";
    return;
  }
  const Wish wish{kKinds[static_cast<std::size_t>(wishkind.ListIndex)].kind, wisher.ListIndex + 1,
                  wishother.ListIndex + 1};
  if (NeedsOther(wish.kind) && wish.other == 0) {
    wishsaid.Caption = "Choose the other student, too.";
    return;
  }
  if (std::ranges::find(wishes_, wish) != wishes_.end()) {
    wishsaid.Caption = "This wish stands in the list already.";
    return;
  }
  wishes_.push_back(wish);
  Store();
  wishlist.ListIndex = static_cast<int>(wishes_.size()) - 1;
}

void WishStep::takewish_Click() {
  if (wishlist.ListIndex < 0) {
    wishsaid.Caption = "Choose the wish to take away.";
    return;
  }
  wishes_.erase(wishes_.begin() + wishlist.ListIndex);
  wishlist.ListIndex = -1;
  Store();
}

void WishStep::Store() {
  std::vector<SeatWish> kept;
  for (const Wish& wish : wishes_) {
    const auto* row = std::ranges::find(kKinds, wish.kind, &KindRow::kind);
    kept.push_back({row->kept, IdOf(wish.student), IdOf(wish.other)});
  }
  TellWhetherKept(KeepSeatWishes(Current().FileName, kept));
  Show();
}

void WishStep::TellWhetherKept(const std::string& fault) {
  wishsaid.Caption = fault.empty() ? "" : "Wishes are forgotten with this Portal: " + fault + ".";
}

void WishStep::Show() {
  wishlist.List.clear();
  for (const Wish& wish : wishes_) wishlist.List.push_back(WishText(wish));
  contradictions.List = Contradictions(wishes_, room_);
  contradictions.ListIndex = -1;
}

}  // namespace tallyroll
