// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/match_students.h"

#include <algorithm>

#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostGuesses = 3;

std::string KeyOfText(std::string_view text) {
  return LowerCase(Trim(text));
}

std::string NameKey(std::string_view lastname, std::string_view firstname) {
  return KeyOfText(lastname) + "," + KeyOfText(firstname);
}

// Leading zeros get lost where a spreadsheet had the file.
std::string WithoutZeros(std::string_view id) {
  const std::size_t from = id.find_first_not_of('0');
  return std::string(from == std::string_view::npos ? id : id.substr(from));
}

void AddGuess(std::vector<StudentGuess>& guesses, int student, std::string_view by) {
  const bool known = std::ranges::any_of(
      guesses, [&](const StudentGuess& guess) { return guess.student == student; });
  if (student > 0 && !known && guesses.size() < kMostGuesses) guesses.push_back({student, by});
}

template <typename Map>
void AddAll(std::vector<StudentGuess>& guesses, const Map& map, const std::string& key,
            std::string_view by) {
  const auto found = map.find(key);
  if (key.empty() || found == map.end()) return;
  for (const int student : found->second) AddGuess(guesses, student, by);
}

}  // namespace

ForeignMatcher::ForeignMatcher(const Class& c,
                               const std::unordered_map<std::string, std::string>& known)
    : class_(c) {
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    const std::string id(Trim(student.id));
    Note(by_id_, id, i);
    Note(by_mail_, KeyOfText(student.email), i);
    Note(by_name_, NameKey(student.lastname, student.firstname), i);
    by_last_[KeyOfText(student.lastname)].push_back(i);
    by_first_[KeyOfText(student.firstname)].push_back(i);
    if (const auto key = known.find(id); key != known.end()) Note(by_key_, key->second, i);
  }
}

void ForeignMatcher::Note(Places& places, std::string key, int student) {
  if (key.empty() || key == ",") return;
  const auto [place, fresh] = places.emplace(std::move(key), student);
  if (!fresh) place->second = kSeveral;
}

int ForeignMatcher::One(const Places& places, const std::string& key) {
  const auto found = places.find(key);
  return found == places.end() || found->second == kSeveral ? 0 : found->second;
}

int ForeignMatcher::Find(const ForeignStudent& student) const {
  if (const int found = One(by_key_, student.key)) return found;
  for (const std::string* id : {&student.id, &student.login})
    if (const int found = One(by_id_, *id)) return found;
  for (const std::string* mail : {&student.email, &student.login})
    if (const int found = One(by_mail_, KeyOfText(*mail))) return found;
  // A name is enough where the file tells no ID, or where the student has none to contradict it.
  const int named = One(by_name_, NameKey(student.lastname, student.firstname));
  if (named == 0 || student.id.empty()) return named;
  return Trim(class_.Students[static_cast<std::size_t>(named)].id).empty() ? named : 0;
}

std::vector<StudentGuess> ForeignMatcher::Guesses(const ForeignStudent& student) const {
  std::vector<StudentGuess> guesses;
  for (const std::string* id : {&student.id, &student.key})
    for (const std::string& form : {*id, WithoutZeros(*id)})
      AddGuess(guesses, One(by_id_, form), "ID");
  AddGuess(guesses, One(by_name_, NameKey(student.lastname, student.firstname)), "name");
  AddGuess(guesses, One(by_name_, NameKey(student.firstname, student.lastname)), "name");
  AddAll(guesses, by_last_, KeyOfText(student.lastname), "last name");
  AddAll(guesses, by_first_, KeyOfText(student.firstname), "first name");
  return guesses;
}

}  // namespace tallyroll
