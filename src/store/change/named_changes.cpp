// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/named_changes.h"

#include <string_view>
#include <type_traits>

#include "base/number_text.h"
#include "base/text.h"
#include "store/change/same_records.h"
#include "store/fields.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

std::string_view TextAt(const List<ShortText>& list, std::size_t i) {
  return i < list.size() ? Trim(list[i]) : std::string_view();
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
    SameRecords same = MatchRecords(before, after);
    students_ = std::move(same.students);
    grades_ = std::move(same.grades);
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
