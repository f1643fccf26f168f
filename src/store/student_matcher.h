// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the students of the current class by the key that a line of a text file gives.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyroll {

class StudentMatcher {
 public:
  // Names are compared as far as `name_length`, where a file has no more room for them.
  explicit StudentMatcher(bool by_name, std::size_t name_length = std::string::npos);

  bool by_name() const { return by_name_; }
  // "Ng, Ada" and "Ng Ada" are one name.
  bool IsNameOf(std::string_view text, int student) const;
  // The first student with this key who was not taken yet; 0 when there is none.
  int Find(std::string_view key) const;
  // The same, and takes that student: two of one name each get a line of theirs.
  int Take(std::string_view key);

 private:
  std::string NameKeyOf(int student) const;
  std::string KeyOf(std::string_view text) const;

  bool by_name_;
  std::size_t name_length_;
  std::unordered_map<std::string, std::vector<int>> places_;  // the next one stands last
};

}  // namespace tallyroll
