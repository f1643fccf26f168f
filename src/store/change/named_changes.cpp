// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/named_changes.h"

#include <map>
#include <string_view>
#include <type_traits>

#include "base/number_text.h"
#include "base/text.h"
#include "store/fields.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::size_t kNowhere = 0;

std::string_view TextAt(const List<ShortText>& list, std::size_t i) {
  return i < list.size() ? Trim(list[i]) : std::string_view();
}

// ---- Which record is which ----

// For each record after its place before, kNowhere for a new one. Records are the same by their
// key where it stands once on both sides; with `by_place`, what is left over is the same at its
// place.
template <typename Record, typename Key>
std::vector<std::size_t> PlacesBefore(const List<Record>& before, const List<Record>& after,
                                      Key&& key, bool by_place) {
  std::map<std::string, std::vector<std::size_t>> places, places_after;
  for (std::size_t i = 1; i < before.size(); ++i) places[key(before[i])].push_back(i);
  for (std::size_t i = 1; i < after.size(); ++i) places_after[key(after[i])].push_back(i);
  std::vector<std::size_t> source(after.size(), kNowhere);
  std::vector<bool> used(before.size(), false);
  for (const auto& [name, now] : places_after) {
    const auto found = places.find(name);
    if (found == places.end()) continue;
    // Those of one key follow one another in the same order.
    for (std::size_t k = 0; k < now.size() && k < found->second.size(); ++k) {
      source[now[k]] = found->second[k];
      used[found->second[k]] = true;
    }
  }
  for (std::size_t i = 1; by_place && i < after.size() && i < before.size(); ++i) {
    if (source[i] != kNowhere || used[i]) continue;
    source[i] = i;
    used[i] = true;
  }
  return source;
}

std::map<std::string, int> CountIds(const List<Student>& students) {
  std::map<std::string, int> count;
  for (std::size_t i = 1; i < students.size(); ++i) ++count[std::string(Trim(students[i].id))];
  return count;
}

// ---- The fields that a teacher knows ----

template <typename T>
std::string FieldText(const T& field) {
  if constexpr (std::is_same_v<T, std::string>)
    return std::string(Trim(field));
  else
    return PlainNumberText(field);
}

// Visits the fields that hold one text or number, under names that mean something.
template <typename Record, typename Visit>
void ForEachTold(const Record& record, Visit&& visit) {
  ForEachField(record, [&](const char* name, const auto& field) {
    using T = std::remove_cvref_t<decltype(field)>;
    constexpr bool kTold =
        std::is_same_v<T, std::string> || std::is_same_v<T, Currency> || std::is_same_v<T, i16>;
    if constexpr (kTold) {
      const std::string_view text = name;
      const bool inner = text.starts_with("Reserved") || text.starts_with("Num") ||
                         text.ends_with("Width") || text == "Password" ||
                         text == "AverageSettings" || text == "PercentsText";
      if (!inner) visit(text, FieldText(field));
    }
  });
}

class Comparison {
 public:
  Comparison(const Class& before, const Class& after) : before_(before), after_(after) {
    const auto ids_before = CountIds(before.Students), ids_after = CountIds(after.Students);
    const auto once = [](const std::map<std::string, int>& ids, const std::string& id) {
      const auto found = ids.find(id);
      return found == ids.end() || found->second == 1;
    };
    students_ = PlacesBefore(
        before.Students, after.Students,
        [&](const Student& student) {
          const std::string id(Trim(student.id));
          const bool known = !id.empty() && once(ids_before, id) && once(ids_after, id);
          return known ? "#" + id : PlainName(student);
        },
        false);
    grades_ = PlacesBefore(
        before.Instruments, after.Instruments,
        [](const Instrument& grade) {
          return std::string(Trim(grade.title)) + '\n' + std::string(Trim(grade.code));
        },
        before.Instruments.size() == after.Instruments.size());
  }

  std::vector<NamedChange> Run() {
    CompareFields(before_, after_, {});
    CompareGrades();
    for (std::size_t s = 1; s < after_.Students.size(); ++s) CompareStudent(s);
    TellDeletedStudents();
    return std::move(changes_);
  }

 private:
  static NamedChange Of(const Student& student) {
    NamedChange change;
    change.student = Trim(student.id);
    change.name = PlainName(student);
    return change;
  }
  static NamedChange Of(const Instrument& grade, NamedChange change = {}) {
    change.grade = Trim(grade.title);
    change.code = Trim(grade.code);
    return change;
  }
  void Tell(NamedChange change, std::string_view field, std::string_view before,
            std::string_view after) {
    if (before == after) return;
    change.field = field;
    change.before = before;
    change.after = after;
    changes_.push_back(std::move(change));
  }

  template <typename Record>
  void CompareFields(const Record& before, const Record& after, const NamedChange& whose) {
    std::vector<std::pair<std::string_view, std::string>> old;
    ForEachTold(before, [&](std::string_view name, std::string text) {
      old.emplace_back(name, std::move(text));
    });
    std::size_t k = 0;
    ForEachTold(after, [&](std::string_view name, const std::string& text) {
      Tell(whose, name, old[k++].second, text);
    });
  }

  void CompareGrades() {
    std::vector<bool> kept(before_.Instruments.size(), false);
    for (std::size_t g = 1; g < after_.Instruments.size(); ++g) {
      const Instrument& grade = after_.Instruments[g];
      if (grades_[g] == kNowhere) {
        Tell(Of(grade), kGradeField, "", Trim(grade.title));
        continue;
      }
      kept[grades_[g]] = true;
      CompareFields(before_.Instruments[grades_[g]], grade, Of(grade));
    }
    for (std::size_t g = 1; g < kept.size(); ++g) {
      if (kept[g]) continue;
      const Instrument& grade = before_.Instruments[g];
      Tell(Of(grade), kGradeField, Trim(grade.title), "");
      deleted_grades_.push_back(g);
    }
  }

  void CompareStudent(std::size_t s) {
    const Student& student = after_.Students[s];
    const NamedChange whose = Of(student);
    const bool added = students_[s] == kNowhere;
    const Student& old = added ? nobody_ : before_.Students[students_[s]];
    if (added)
      Tell(whose, kStudentField, "", whose.name);
    else
      CompareFields(old, student, whose);
    for (std::size_t g = 1; g < after_.Instruments.size(); ++g) {
      const std::string_view was =
          grades_[g] == kNowhere ? std::string_view() : TextAt(old.Marks, grades_[g]);
      Tell(Of(after_.Instruments[g], whose), kMarkField, was, TextAt(student.Marks, g));
    }
    for (const std::size_t g : deleted_grades_)
      Tell(Of(before_.Instruments[g], whose), kMarkField, TextAt(old.Marks, g), "");
  }

  void TellDeletedStudents() {
    std::vector<bool> kept(before_.Students.size(), false);
    for (const std::size_t place : students_)
      if (place != kNowhere) kept[place] = true;
    for (std::size_t s = 1; s < kept.size(); ++s) {
      if (kept[s]) continue;
      const Student& student = before_.Students[s];
      const NamedChange whose = Of(student);
      Tell(whose, kStudentField, whose.name, "");
      for (std::size_t g = 1; g < before_.Instruments.size(); ++g)
        Tell(Of(before_.Instruments[g], whose), kMarkField, TextAt(student.Marks, g), "");
    }
  }

  const Class& before_;
  const Class& after_;
  std::vector<std::size_t> students_, grades_;  // places before, by the places after
  std::vector<std::size_t> deleted_grades_;
  const Student nobody_;  // who a new student was
  std::vector<NamedChange> changes_;
};

}  // namespace

std::vector<NamedChange> ChangesBetween(const Class& before, const Class& after) {
  return Comparison(before, after).Run();
}

}  // namespace tallyroll
