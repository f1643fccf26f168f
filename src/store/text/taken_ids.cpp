// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/taken_ids.h"

#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr int kDraws = 100;  // after that the numbers behind those that can be drawn serve
constexpr int kBeyondDraws = 1529;

int DrawNumber() {
  const double r1 = Platform().Random();
  const double r2 = Platform().Random();
  const double r3 = Platform().Random();
  const double r4 = Platform().Random();
  return static_cast<int>(r2 * 32) + static_cast<int>(r1 * 100) + static_cast<int>(r3 * 500) +
         static_cast<int>(r4 * 900);
}

}  // namespace

TakenIds::TakenIds(const Class& c) {
  for (int i = 1; i <= c.NumStudents; ++i)
    taken_.emplace(Trim(c.Students[static_cast<std::size_t>(i)].id));
}

bool TakenIds::Take(std::string_view id) {
  return !Trim(id).empty() && taken_.emplace(Trim(id)).second;
}

void TakenIds::Reserve(std::string_view id) {
  reserved_.emplace(Trim(id));
}

std::string TakenIds::MakeUniqueId() {
  std::string id = PlainNumberText(DrawNumber());
  for (int i = 1; i < kDraws && Known(id); ++i) id = PlainNumberText(DrawNumber());
  // A full roster without ids leaves hardly a number that can be drawn.
  for (int number = kBeyondDraws + static_cast<int>(taken_.size()); Known(id); ++number)
    id = PlainNumberText(number);
  taken_.insert(id);
  return id;
}

}  // namespace tallyroll
