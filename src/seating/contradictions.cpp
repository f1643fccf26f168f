// SPDX-License-Identifier: GPL-3.0-or-later
// Wishes that no seating can meet together.
#include <algorithm>
#include <cstdlib>
#include <map>

#include "base/number_text.h"
#include "seating/wishes.h"

namespace tallyroll {
namespace {

class Search {
 public:
  Search(const std::vector<Wish>& wishes, const Classroom& room) : wishes_(wishes), room_(room) {}

  std::vector<std::string> Run() {
    for (std::size_t i = 0; i < wishes_.size(); ++i) {
      LookAt(wishes_[i]);
      for (std::size_t k = i + 1; k < wishes_.size(); ++k) LookAt(wishes_[i], wishes_[k]);
    }
    CountZone(WishKind::kFront, "at the front");
    CountZone(WishKind::kBack, "at the back");
    CountNeighbours();
    return std::move(found_);
  }

 private:
  static bool IsPair(const Wish& wish) {
    return wish.kind == WishKind::kApart || wish.kind == WishKind::kBeside;
  }
  static bool SamePair(const Wish& a, const Wish& b) {
    return IsPair(a) && IsPair(b) &&
           (std::minmax(a.student, a.other) == std::minmax(b.student, b.other));
  }
  int ZoneSeats() const { return (room_.rows + 2) / 3 * room_.columns; }
  Seat Before(int student) const { return room_.before[static_cast<std::size_t>(student)]; }
  bool InRoom(Seat seat) const { return seat.row < room_.rows && seat.column < room_.columns; }
  bool Keeps(int student) const {
    return std::any_of(wishes_.begin(), wishes_.end(), [&](const Wish& wish) {
      return wish.kind == WishKind::kKeepSeat && wish.student == student &&
             Before(student).taken() && InRoom(Before(student));
    });
  }

  void LookAt(const Wish& wish) {
    if (IsPair(wish) && wish.student == wish.other) Say(WishText(wish) + ", the same student");
    if (wish.kind == WishKind::kBeside && room_.columns == 1)
      Say(WishText(wish) + ", but the room has one row");
    if (wish.kind == WishKind::kKeepSeat && Before(wish.student).taken() &&
        !InRoom(Before(wish.student))) {
      Say(WishText(wish) + ", but the new chart does not have it");
    }
    LookAtKept(wish);
  }

  // A wish about students whose seats are all kept is met by those seats or by none.
  void LookAtKept(const Wish& wish) {
    if (wish.kind == WishKind::kKeepSeat || wish.kind == WishKind::kNewNeighbours) return;
    if (!Keeps(wish.student) || (IsPair(wish) && !Keeps(wish.other))) return;
    if (!IsMet(wish, room_, room_.before)) Say(WishText(wish) + ", but the seat is to be kept");
  }

  void LookAt(const Wish& a, const Wish& b) {
    if (SamePair(a, b) && a.kind != b.kind) Say(WishText(a) + "; " + WishText(b));
    const bool front_and_back = a.student == b.student && a.kind != b.kind &&
                                std::max(a.kind, b.kind) == WishKind::kBack &&
                                std::min(a.kind, b.kind) == WishKind::kFront;
    if (front_and_back && (room_.rows + 2) / 3 * 2 <= room_.rows)
      Say(WishText(a) + "; " + WishText(b));
    LookAtOldNeighbours(a, b);
    LookAtOldNeighbours(b, a);
  }

  void LookAtOldNeighbours(const Wish& beside, const Wish& fresh) {
    if (beside.kind != WishKind::kBeside || fresh.kind != WishKind::kNewNeighbours) return;
    if (fresh.student != beside.student && fresh.student != beside.other) return;
    const Wish again{WishKind::kBeside, beside.student, beside.other};
    if (IsMet(again, room_, room_.before)) Say(WishText(beside) + "; " + WishText(fresh));
  }

  void CountZone(WishKind kind, const char* where) {
    std::map<int, int> students;
    for (const Wish& wish : wishes_)
      if (wish.kind == kind) ++students[wish.student];
    const int wanted = static_cast<int>(students.size());
    if (wanted > ZoneSeats()) {
      Say(PlainNumberText(wanted) + " students " + where + ", but there are " +
          PlainNumberText(ZoneSeats()) + " seats");
    }
  }

  // A seat has two at its sides.
  void CountNeighbours() {
    std::map<int, std::map<int, const Wish*>> beside;
    for (const Wish& wish : wishes_) {
      if (wish.kind != WishKind::kBeside || wish.student == wish.other) continue;
      beside[wish.student][wish.other] = &wish;
      beside[wish.other][wish.student] = &wish;
    }
    for (const auto& [student, others] : beside) {
      if (others.size() <= 2) continue;
      std::string line = WishText({WishKind::kBeside, student, others.begin()->first});
      for (auto other = std::next(others.begin()); other != others.end(); ++other) {
        const std::string text = WishText({WishKind::kBeside, student, other->first});
        line += " and" + text.substr(text.find(": beside") + 8);
      }
      Say(line + ", but a seat has two sides");
    }
  }

  void Say(std::string line) { found_.push_back(std::move(line)); }

  const std::vector<Wish>& wishes_;
  const Classroom& room_;
  std::vector<std::string> found_;
};

}  // namespace

std::vector<std::string> Contradictions(const std::vector<Wish>& wishes, const Classroom& room) {
  return Search(wishes, room).Run();
}

}  // namespace tallyroll
