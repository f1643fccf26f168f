// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/student_matcher.h"

#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// Without commas, with single blanks between the words, and with one kind of apostrophe: where that
// parts the fields of a file, a name in it is written with the other one.
std::string NameKey(std::string_view name) {
  constexpr char kRightQuote = '\x92';
  std::string key;
  for (const char c : name) {
    const bool blank = c == ' ' || c == ',';
    if (!blank)
      key += c == kRightQuote ? '\'' : c;
    else if (!key.empty() && key.back() != ' ')
      key += ' ';
  }
  return std::string(TrimRight(key));
}

std::string NameKeyOf(const Student& student) {
  return NameKey(student.lastname + " " + student.firstname);
}

}  // namespace

bool IsNameOf(std::string_view text, int student) {
  return NameKey(text) == NameKeyOf(Current().Students[static_cast<std::size_t>(student)]);
}

StudentMatcher::StudentMatcher(bool by_name) : by_name_(by_name) {
  const Class& c = Current();
  for (int i = c.NumStudents; i >= 1; --i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    places_[by_name ? NameKeyOf(student) : KeyOf(student.id)].push_back(i);
  }
}

std::string StudentMatcher::KeyOf(std::string_view text) const {
  return by_name_ ? NameKey(text) : std::string(Trim(text));
}

int StudentMatcher::Find(std::string_view key) const {
  const auto found = places_.find(KeyOf(key));
  return found == places_.end() || found->second.empty() ? 0 : found->second.back();
}

int StudentMatcher::Take(std::string_view key) {
  const int student = Find(key);
  if (student > 0) places_[KeyOf(key)].pop_back();
  return student;
}

}  // namespace tallyroll
