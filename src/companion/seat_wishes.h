// SPDX-License-Identifier: GPL-3.0-or-later
// What a teacher wishes for the seats of a class, kept in its companion file.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

// Students by their IDs, in the class file's code page.
struct SeatWish {
  std::string kind;
  std::string student;
  std::string other;  // empty where the wish is about one student

  friend bool operator==(const SeatWish&, const SeatWish&) = default;
};

// What is kept, and why nothing can be; no fault where nothing was kept yet.
struct KeptSeatWishes {
  std::vector<SeatWish> wishes;  // in the order in which they were kept
  std::string fault;
};
KeptSeatWishes SeatWishes(const std::string& class_path);

// Keeps these and no others. Answers why it could not be done; empty when it was.
std::string KeepSeatWishes(const std::string& class_path, const std::vector<SeatWish>& wishes);

}  // namespace tallyroll
