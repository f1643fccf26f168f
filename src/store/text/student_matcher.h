// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the students of the current class by the key that a line of a text file gives.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/records.h"

namespace tallyroll {

class StudentMatcher {
 public:
  // Keys are compared as the layout of the file could carry them.
  StudentMatcher(bool by_name, i16 mode);

  bool by_name() const { return by_name_; }
  // "Ng, Ada" and "Ng Ada" are one name.
  bool IsNameOf(std::string_view text, int student) const;
  // The first student with this key who was not taken yet; 0 when there is none. An ID that the
  // layout had to change or cut is known by what it became, if no other one became the same.
  int Find(std::string_view key) const;
  // The same, and takes that student: two of one name each get a line of theirs.
  int Take(std::string_view key);

 private:
  std::string NameKeyOf(int student) const;
  std::string KeyOf(std::string_view text) const;
  std::string KeyOfStudent(int student) const;
  int FindWritten(const std::string& id) const;

  bool by_name_;
  i16 mode_;
  std::size_t name_length_;
  std::unordered_map<std::string, std::vector<int>> places_;  // the next one stands last
  std::unordered_map<std::string, int> written_;              // by ID in the file; 0 is several
};

}  // namespace tallyroll
