// SPDX-License-Identifier: GPL-3.0-or-later
// The page of frmseating on which wishes are written down before a chart is filled by them.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/portal.h"
#include "seating/kept_wishes.h"

namespace tallyroll {

class WishStep {
 public:
  WishStep();
  void Declare(ControlTable& table);
  // Fills the page for a chart of that size.
  void Begin(int rows, int columns);

  const std::vector<Wish>& Wishes() const { return kept_.wishes; }
  const Classroom& Room() const { return room_; }
  // The number by which the seating can be made again; nothing when the box holds none.
  std::optional<std::uint32_t> Number() const;

  ListBox wisher, wishkind, wishother;
  CommandButton addwish, takewish;
  ListBox wishlist;
  ListBox contradictions;
  TextBox wishnumber;
  Label wishsaid;

 private:
  const WishKindRow& KindChosen() const;  // there must be a choice
  void wishkind_Change();
  void addwish_Click();
  void takewish_Click();
  void Store();
  void TellWhetherKept(const std::string& fault);
  void Show();

  Classroom room_;
  KeptWishes kept_;
  bool read_ = false;
};

}  // namespace tallyroll
