// SPDX-License-Identifier: GPL-3.0-or-later
// Repair by small steps: as long as a wish is unmet, one of its students changes places so that the
// fewest wishes are unmet, now and then at random so that no dead end holds it.
#include "seating/seat_by_wishes.h"

#include <algorithm>
#include <numeric>

#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kTries = 40;
constexpr int kStepsATry = 250;
constexpr int kMostLooks = 500000;  // at places: a large room is tried less often than a small one
constexpr std::uint32_t kSidestepOneIn = 12;

// A generator of its own: the standard library's distributions differ between libraries, and a
// number must give the same seating everywhere.
class Dice {
 public:
  explicit Dice(std::uint32_t number) : state_(number) {}

  std::uint32_t Below(std::uint32_t bound) {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return static_cast<std::uint32_t>(((mixed >> 32) * bound) >> 32);
  }

 private:
  std::uint64_t state_;
};

class Repair {
 public:
  Repair(const Classroom& room, const std::vector<Wish>& wishes, std::uint32_t number)
      : room_(room), wishes_(wishes), dice_(number), concerned_(room.before.size()) {
    for (const Wish& wish : wishes_) {
      Concern(wish.student, wish);
      if (wish.other != 0 && wish.other != wish.student) Concern(wish.other, wish);
      if (wish.kind != WishKind::kNewNeighbours) continue;
      for (const int neighbour : NeighboursBefore(room_, wish.student)) Concern(neighbour, wish);
    }
    places_ = std::max(room_.Seats(), room_.Students());
  }

  WishedSeating Run() {
    WishedSeating best;
    const int tries = std::clamp(kMostLooks / (kStepsATry * std::max(places_, 1)), 1, kTries);
    for (int attempt = 0; attempt < tries; ++attempt) {
      Deal();
      for (int step = 0; step < kStepsATry && !Unmet().empty(); ++step) Step();
      std::vector<Wish> unmet = Unmet();
      if (attempt == 0 || unmet.size() < best.unmet.size())
        best = {.seats = seats_, .unmet = std::move(unmet)};
      if (best.unmet.empty()) break;
    }
    return best;
  }

 private:
  void Concern(int student, const Wish& wish) {
    concerned_[static_cast<std::size_t>(student)].push_back(&wish);
  }

  // Places beyond the room's seats are those of the list.
  Seat SeatAt(int place) const {
    return place < room_.Seats() ? Seat{place % room_.rows, place / room_.rows} : Seat{};
  }

  void Put(int student, int place) {
    student_at_[static_cast<std::size_t>(place)] = student;
    if (student == 0) return;
    place_of_[static_cast<std::size_t>(student)] = place;
    seats_[static_cast<std::size_t>(student)] = SeatAt(place);
  }

  void Swap(int a, int b) {
    const int first = student_at_[static_cast<std::size_t>(a)];
    Put(student_at_[static_cast<std::size_t>(b)], a);
    Put(first, b);
  }

  // Kept seats are dealt first; the others fall at random, the list being filled last.
  void Deal() {
    student_at_.assign(static_cast<std::size_t>(places_), 0);
    place_of_.assign(room_.before.size(), 0);
    seats_.assign(room_.before.size(), Seat{});
    std::vector<int> students(static_cast<std::size_t>(room_.Students()));
    std::iota(students.begin(), students.end(), 1);
    Shuffle(students);
    std::vector<int> places(static_cast<std::size_t>(room_.Seats()));
    std::iota(places.begin(), places.end(), 0);
    Shuffle(places);
    for (int place = room_.Seats(); place < places_; ++place) places.push_back(place);
    for (std::size_t i = 0; i < students.size(); ++i) Put(students[i], places[i]);
    for (const Wish& wish : wishes_)
      if (wish.kind == WishKind::kKeepSeat) BringHome(wish.student);
  }

  void BringHome(int student) {
    const Seat home = room_.before[static_cast<std::size_t>(student)];
    if (!home.taken() || home.row >= room_.rows || home.column >= room_.columns) return;
    Swap(place_of_[static_cast<std::size_t>(student)], home.column * room_.rows + home.row);
  }

  void Shuffle(std::vector<int>& numbers) {
    for (std::size_t i = numbers.size(); i > 1; --i)
      std::swap(numbers[i - 1], numbers[dice_.Below(static_cast<std::uint32_t>(i))]);
  }

  std::vector<Wish> Unmet() const {
    std::vector<Wish> unmet;
    for (const Wish& wish : wishes_)
      if (!IsMet(wish, room_, seats_)) unmet.push_back(wish);
    return unmet;
  }

  int UnmetOf(int student) const {
    const auto& wishes = concerned_[static_cast<std::size_t>(student)];
    return static_cast<int>(std::count_if(wishes.begin(), wishes.end(), [&](const Wish* wish) {
      return !IsMet(*wish, room_, seats_);
    }));
  }

  // How many of the wishes that a swap can touch are unmet.
  int UnmetAround(int a, int b) const {
    return UnmetOf(student_at_[static_cast<std::size_t>(a)]) +
           UnmetOf(student_at_[static_cast<std::size_t>(b)]);
  }

  int GainOf(int a, int b) {
    const int before = UnmetAround(a, b);
    Swap(a, b);
    const int after = UnmetAround(a, b);
    Swap(a, b);
    return before - after;
  }

  void Step() {
    const std::vector<Wish> unmet = Unmet();
    const Wish& wish = unmet[dice_.Below(static_cast<std::uint32_t>(unmet.size()))];
    const int student = wish.other != 0 && dice_.Below(2) == 1 ? wish.other : wish.student;
    const int from = place_of_[static_cast<std::size_t>(student)];
    Swap(from, dice_.Below(kSidestepOneIn) == 0 ? AnyPlace() : BestPlace(from));
  }

  int AnyPlace() { return static_cast<int>(dice_.Below(static_cast<std::uint32_t>(places_))); }

  // Of equally good ones any, so that it does not go round in a circle.
  int BestPlace(int from) {
    int best = from, best_gain = -places_;
    std::uint32_t equals = 0;
    for (int place = 0; place < places_; ++place) {
      if (place == from) continue;
      const int gain = GainOf(from, place);
      if (gain > best_gain) equals = 0;
      if (gain >= best_gain && dice_.Below(++equals) == 0) best = place;
      best_gain = std::max(gain, best_gain);
    }
    return best;
  }

  const Classroom& room_;
  const std::vector<Wish>& wishes_;
  Dice dice_;
  std::vector<std::vector<const Wish*>> concerned_;  // by student; element 0 stays empty
  int places_ = 0;
  std::vector<int> student_at_;  // by place, 0 for nobody
  std::vector<int> place_of_;    // by student
  SeatsOfStudents seats_;
};

}  // namespace

WishedSeating SeatByWishes(const Classroom& room, const std::vector<Wish>& wishes,
                           std::uint32_t number) {
  return Repair(room, wishes, number).Run();
}

SeatPlan PlanOf(const Classroom& room, const WishedSeating& seating) {
  SeatPlan plan = EmptyPlan(room.rows, room.columns);
  for (int i = 1; i <= room.Students(); ++i) {
    const auto at = static_cast<std::size_t>(i);
    const std::string label = SeatLabel(Current().Students[at]);
    if (seating.seats[at].taken())
      plan.At(seating.seats[at]) = label;
    else
      plan.unseated.push_back(label);
  }
  return plan;
}

}  // namespace tallyroll
