// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/wish_step.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "seating/kept_wishes.h"
#include "store/program_state.h"

namespace tallyroll {
WishStep::WishStep() {
  addwish.Caption = "&Add";
  takewish.Caption = "&Take Away";
  wishnumber.MaxLength = 9;
  for (const WishKindRow& row : WishKinds()) wishkind.List.emplace_back(row.caption);
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
  // Once: what could not be kept stays as long as the Portal does.
  if (!read_) kept_ = ReadWishes();
  read_ = true;
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
  TellWhetherKept(kept_.fault);
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

const WishKindRow& WishStep::KindChosen() const {
  return WishKinds()[static_cast<std::size_t>(wishkind.ListIndex)];
}

void WishStep::wishkind_Change() {
  wishother.Enabled = wishkind.ListIndex >= 0 && KindChosen().needs_other;
  if (!wishother.Enabled) wishother.ListIndex = -1;
}

void WishStep::addwish_Click() {
  if (wisher.ListIndex < 0 || wishkind.ListIndex < 0) {
    wishsaid.Caption = "Choose a student and a wish first.";
    return;
  }
  const Wish wish{KindChosen().kind, wisher.ListIndex + 1, wishother.ListIndex + 1};
  if (KindChosen().needs_other && wish.other == 0) {
    wishsaid.Caption = "Choose the other student, too.";
    return;
  }
  if (std::ranges::find(kept_.wishes, wish) != kept_.wishes.end()) {
    wishsaid.Caption = "This wish stands in the list already.";
    return;
  }
  kept_.wishes.push_back(wish);
  Store();
  wishlist.ListIndex = static_cast<int>(kept_.wishes.size()) - 1;
}

void WishStep::takewish_Click() {
  if (wishlist.ListIndex < 0) {
    wishsaid.Caption = "Choose the wish to take away.";
    return;
  }
  kept_.wishes.erase(kept_.wishes.begin() + wishlist.ListIndex);
  wishlist.ListIndex = -1;
  Store();
}

void WishStep::Store() {
  // What could not be read must not be written over.
  TellWhetherKept(kept_.fault.empty() ? KeepWishes(kept_) : kept_.fault);
  Show();
}

void WishStep::TellWhetherKept(const std::string& fault) {
  wishsaid.Caption = fault.empty() ? "" : "Wishes are forgotten with this Portal: " + fault + ".";
}

void WishStep::Show() {
  wishlist.List.clear();
  for (const Wish& wish : kept_.wishes) wishlist.List.push_back(WishText(wish));
  contradictions.List = Contradictions(kept_.wishes, room_);
  contradictions.ListIndex = -1;
}

}  // namespace tallyroll
