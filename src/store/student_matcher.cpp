// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/student_matcher.h"

#include "base/text.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kNoFirstName = " -";

// What parts words stands for one blank: a comma, and whatever a layout writes a blank for.
bool PartsWords(char c) {
  return c == ',' || (c >= '\0' && c <= ' ');
}

// One kind of quote: where that parts the fields of a file, a name in it is written with another.
char WithOneQuote(char c) {
  constexpr char kRightQuote = '\x92';
  return c == kRightQuote || c == '"' ? '\'' : c;
}

// Single blanks between the words, and no hyphen in the place of a first name.
std::string NameKey(std::string_view name) {
  std::string key;
  for (const char c : name) {
    if (!PartsWords(c))
      key += WithOneQuote(c);
    else if (!key.empty() && key.back() != ' ')
      key += ' ';
  }
  key.resize(TrimRight(key).size());
  if (key.ends_with(kNoFirstName)) key.resize(key.size() - kNoFirstName.size());
  return key;
}

}  // namespace

StudentMatcher::StudentMatcher(bool by_name, std::size_t name_length)
    : by_name_(by_name), name_length_(name_length) {
  const Class& c = Current();
  for (int i = c.NumStudents; i >= 1; --i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    places_[by_name ? NameKeyOf(i) : KeyOf(student.id)].push_back(i);
  }
}

std::string StudentMatcher::NameKeyOf(int student) const {
  const std::string name = PlainName(Current().Students[static_cast<std::size_t>(student)]);
  return NameKey(Left(name, name_length_));
}

bool StudentMatcher::IsNameOf(std::string_view text, int student) const {
  return NameKey(Left(text, name_length_)) == NameKeyOf(student);
}

std::string StudentMatcher::KeyOf(std::string_view text) const {
  return by_name_ ? NameKey(Left(text, name_length_)) : std::string(Trim(text));
}

// A line of totals has no key, and is not the line of a student who has none.
int StudentMatcher::Find(std::string_view key) const {
  const std::string wanted = KeyOf(key);
  const auto found = wanted.empty() ? places_.end() : places_.find(wanted);
  return found == places_.end() || found->second.empty() ? 0 : found->second.back();
}

int StudentMatcher::Take(std::string_view key) {
  const int student = Find(key);
  if (student > 0) places_[KeyOf(key)].pop_back();
  return student;
}

}  // namespace tallyroll
