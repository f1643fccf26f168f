// SPDX-License-Identifier: GPL-3.0-or-later
// Which student of the class a line of another system's file is about.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "exchange/formats/foreign_table.h"
#include "store/records.h"

namespace tallyroll {

// A student who may be meant, and why: "e-mail", "name".
struct StudentGuess {
  int student = 0;
  std::string_view by;
};

class ForeignMatcher {
 public:
  // `known` is the other system's identifier of a student by the student's ID.
  ForeignMatcher(const Class& c, const std::unordered_map<std::string, std::string>& known);

  // By the identifier kept of an earlier file, the school's ID, the e-mail, the name, in this
  // order; 0 when none of them is one student's alone. The other system's own identifier settles
  // nothing by itself: it may be another student's ID by chance.
  int Find(const ForeignStudent& student) const;
  // The best three, for one who was not found.
  std::vector<StudentGuess> Guesses(const ForeignStudent& student) const;

 private:
  using Places = std::unordered_map<std::string, int>;
  static constexpr int kSeveral = -1;

  static void Note(Places& places, std::string key, int student);
  static int One(const Places& places, const std::string& key);

  const Class& class_;
  Places by_key_, by_id_, by_mail_, by_name_;
  std::unordered_map<std::string, std::vector<int>> by_last_, by_first_;
};

}  // namespace tallyroll
