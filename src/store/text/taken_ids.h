// SPDX-License-Identifier: GPL-3.0-or-later
// The IDs that students have already, so that each gets one of his own.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "store/records.h"

namespace tallyroll {

class TakenIds {
 public:
  TakenIds() = default;
  explicit TakenIds(const Class& c);

  // Gives an ID to a student, blanks around it apart. False: it is blank, or another one has it.
  bool Take(std::string_view id);
  // An ID that may be taken later but is never drawn.
  void Reserve(std::string_view id);
  // An ID that nobody has and nobody reserved, from four random numbers; it is taken with that.
  std::string MakeUniqueId();

 private:
  using Ids = std::unordered_set<std::string>;
  bool Known(const std::string& id) const { return taken_.contains(id) || reserved_.contains(id); }

  Ids taken_;
  Ids reserved_;
};

}  // namespace tallyroll
