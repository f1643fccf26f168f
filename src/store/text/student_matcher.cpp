// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/student_matcher.h"

#include "base/text.h"
#include "store/program_state.h"
#include "store/student_names.h"
#include "store/text_layout.h"

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

StudentMatcher::StudentMatcher(bool by_name, i16 mode)
    : by_name_(by_name),
      mode_(mode),
      name_length_(mode == kColumnsText ? kTextFields[1].length : std::string::npos) {
  for (int i = Current().NumStudents; i >= 1; --i) {
    places_[KeyOfStudent(i)].push_back(i);
    if (by_name_ || mode_ == kCsvText) continue;
    std::string written = WrittenIn(mode_, Trim(KeyOfStudent(i)));
    if (mode_ == kColumnsText) written = Left(written, kTextFields[0].length);
    const auto [place, first] = written_.try_emplace(std::string(Trim(written)), i);
    if (!first) place->second = 0;
  }
}

std::string StudentMatcher::KeyOfStudent(int student) const {
  if (by_name_) return NameKeyOf(student);
  return KeyOf(Current().Students[static_cast<std::size_t>(student)].id);
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
  if (found == places_.end()) return FindWritten(wanted);
  return found->second.empty() ? 0 : found->second.back();
}

int StudentMatcher::FindWritten(const std::string& id) const {
  const auto found = written_.find(id);
  if (id.empty() || found == written_.end() || found->second == 0) return 0;
  const auto place = places_.find(KeyOfStudent(found->second));
  return place->second.empty() ? 0 : found->second;
}

int StudentMatcher::Take(std::string_view key) {
  const int student = Find(key);
  if (student > 0) places_[KeyOfStudent(student)].pop_back();
  return student;
}

}  // namespace tallyroll
