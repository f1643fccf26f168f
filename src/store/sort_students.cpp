// SPDX-License-Identifier: GPL-3.0-or-later
// The shell sort of the roster, on short keys: a Student is far too big to be swapped about.
#include "store/sort_students.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "store/program_state.h"

namespace tallyroll {
namespace {

// The name modes from here on sort by id.
constexpr i16 kFirstIdMode = 73;

// The place of a student before sorting, with the first eight bytes of the key as a number: they
// settle nearly every comparison.
struct SortEntry {
  std::uint64_t beginning = 0;
  std::uint32_t place = 0;
};

// A key in two parts that are compared as if they stood directly one behind the other.
struct SortKey {
  std::string_view first;
  std::string_view second;

  std::size_t size() const { return first.size() + second.size(); }
  unsigned char operator[](std::size_t i) const {
    return static_cast<unsigned char>(i < first.size() ? first[i] : second[i - first.size()]);
  }
};

SortKey KeyOf(const Student& s, bool by_id) {
  if (by_id) return {s.id, {}};
  return {s.lastname, s.firstname};
}

std::uint64_t BeginningOf(const SortKey& key) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof value; ++i) {
    value = value << 8 | (i < key.size() ? key[i] : 0);
  }
  return value;
}

bool IsGreater(const SortKey& a, const SortKey& b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shorter; ++i) {
    if (a[i] != b[i]) return a[i] > b[i];
  }
  return a.size() > b.size();
}

// Half of a number as a whole number, a tie going to the even one: 3 gives 2, 5 gives 2, 1 gives 0.
std::size_t RoundedHalf(std::size_t number) {
  const std::size_t half = number / 2;
  return number % 2 == 1 && half % 2 == 1 ? half + 1 : half;
}

template <typename Greater>
void ShellSort(std::vector<SortEntry>& entries, const Greater& greater) {
  for (std::size_t gap = RoundedHalf(entries.size() + 1); gap > 0; gap = RoundedHalf(gap)) {
    for (std::size_t i = gap; i < entries.size(); ++i) {
      for (std::size_t j = i; j >= gap && greater(entries[j - gap], entries[j]); j -= gap) {
        std::swap(entries[j - gap], entries[j]);
      }
    }
  }
}

// Puts student entries[i].place to place i, moving each student once along its cycle.
void Rearrange(List<Student>& students, std::vector<SortEntry>& entries) {
  for (std::size_t start = 0; start < entries.size(); ++start) {
    if (entries[start].place == start) continue;
    Student lifted = std::move(students[start + 1]);
    std::size_t hole = start;
    for (;;) {
      const std::size_t from = std::exchange(entries[hole].place, static_cast<std::uint32_t>(hole));
      if (from == start) break;
      students[hole + 1] = std::move(students[from + 1]);
      hole = from;
    }
    students[hole + 1] = std::move(lifted);
  }
}

}  // namespace

void SortStudents() {
  SortStudents(Current());
}

void SortStudents(Class& c) {
  const bool by_id = NameMode >= kFirstIdMode;
  std::vector<SortEntry> entries(static_cast<std::size_t>(std::max<i16>(c.NumStudents, 0)));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i] = {BeginningOf(KeyOf(c.Students[i + 1], by_id)), static_cast<std::uint32_t>(i)};
  }
  ShellSort(entries, [&](const SortEntry& a, const SortEntry& b) {
    if (a.beginning != b.beginning) return a.beginning > b.beginning;
    return IsGreater(KeyOf(c.Students[a.place + 1], by_id), KeyOf(c.Students[b.place + 1], by_id));
  });
  Rearrange(c.Students, entries);
}

}  // namespace tallyroll
