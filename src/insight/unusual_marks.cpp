// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/unusual_marks.h"

#include <algorithm>
#include <optional>

#include "averages/engine/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/letters.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::size_t kFewestOthers = 5;
constexpr Currency kLeastDistance = Currency::FromScaled(20'0000);
constexpr std::int64_t kTimesTheMedian = 4;

using Percents = std::vector<Currency>;

struct ReadMark {
  std::string_view text;
  bool graded = false;  // a number, or a letter
  bool letter = false;
  std::optional<Currency> value, percent;
};

bool IsLetter(std::string_view mark) {
  return std::any_of(LetterNames.begin() + 1, LetterNames.end(),
                     [mark](std::string_view name) { return Trim(name) == mark; });
}

ReadMark Read(const Student& student, int grade) {
  ReadMark mark;
  mark.text = Trim(MarkOf(student, grade));
  mark.letter = IsLetter(mark.text);
  mark.graded =
      !mark.text.empty() && KindOfMark(mark.text) == MarkKind::kGraded && IsGrade(mark.text);
  if (!mark.graded) return mark;
  try {
    mark.value = GradeValue(mark.text);
    const i16 most = Current().Instruments[static_cast<std::size_t>(grade)].mvalue;
    if (most > 0) mark.percent = PercentOf(*mark.value, most);
  } catch (const RunTimeError&) {
    mark.percent.reset();  // a number beyond all others has no percent
  }
  return mark;
}

Currency Between(Currency lower, Currency upper) {
  return Currency::FromScaled((lower + upper).scaled() / 2);
}

Currency MedianOf(Percents& values) {
  const std::size_t half = values.size() / 2;
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(half),
                   values.end());
  const Currency upper = values[half];
  if (values.size() % 2 == 1) return upper;
  return Between(
      *std::max_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(half)), upper);
}

// Of the sorted values without the one at `left_out`.
Currency MedianOfOthers(const Percents& sorted, std::size_t left_out) {
  const auto other = [&](std::size_t i) { return sorted[i < left_out ? i : i + 1]; };
  const std::size_t others = sorted.size() - 1, half = others / 2;
  return others % 2 == 1 ? other(half) : Between(other(half - 1), other(half));
}

Currency Distance(Currency a, Currency b) {
  return a < b ? b - a : a - b;
}

// Why a percent is far from the others of the sorted list it stands in; empty where it is not. Few
// are: the distances of all others are looked at for those alone.
std::string WhyFar(Currency percent, const Percents& sorted) {
  if (sorted.size() < kFewestOthers + 1) return {};
  const auto own = std::lower_bound(sorted.begin(), sorted.end(), percent);
  const auto at = static_cast<std::size_t>(own - sorted.begin());
  const Currency median = MedianOfOthers(sorted, at);
  const Currency distance = Distance(percent, median);
  if (distance <= kLeastDistance) return {};
  Percents distances;
  distances.reserve(sorted.size());
  for (std::size_t i = 0; i < sorted.size(); ++i)
    if (i != at) distances.push_back(Distance(sorted[i], median));
  const Currency half = MedianOf(distances);
  if (distance.scaled() / kTimesTheMedian <= half.scaled()) return {};
  return PlainNumberText(percent) + " percent; the median of the others is " +
         PlainNumberText(median) + ", half of them lie within " + PlainNumberText(half);
}

class Search {
 public:
  Search() {
    const Class& c = Current();
    const int grades = GradeCount(c);
    marks_.resize(static_cast<std::size_t>(c.NumStudents) + 1);
    for (int s = 1; s <= c.NumStudents; ++s) {
      auto& row = marks_[static_cast<std::size_t>(s)];
      row.resize(static_cast<std::size_t>(grades) + 1);
      for (int g = 1; g <= grades; ++g)
        row[static_cast<std::size_t>(g)] = Read(c.Students[static_cast<std::size_t>(s)], g);
    }
    FindNumericGrades(grades);
    SortPercents(grades);
  }

  std::vector<UnusualMark> Run(const std::function<bool()>& go_on) {
    for (std::size_t s = 1; s < marks_.size(); ++s) {
      for (std::size_t g = 1; g < marks_[s].size(); ++g) Look(s, g);
      if (go_on && !go_on()) break;
    }
    return std::move(found_);
  }

 private:
  void FindNumericGrades(int grades) {
    numeric_.resize(static_cast<std::size_t>(grades) + 1);
    for (std::size_t g = 1; g < numeric_.size(); ++g) {
      int numbers = 0, letters = 0;
      for (std::size_t s = 1; s < marks_.size(); ++s) {
        if (!marks_[s][g].graded) continue;
        ++(marks_[s][g].letter ? letters : numbers);
      }
      numeric_[g] = numbers > letters;
    }
  }

  void Look(std::size_t s, std::size_t g) {
    const ReadMark& mark = marks_[s][g];
    const auto found = [&](Unusual kind, std::string told) {
      found_.push_back({static_cast<int>(s), static_cast<int>(g), kind, std::string(mark.text),
                        std::move(told)});
    };
    if (mark.text.empty()) return found(Unusual::kEmpty, "there is no mark");
    if (!IsGrade(mark.text)) return found(Unusual::kUnknownText, "neither a number nor a letter");
    if (!mark.value) return;
    if (mark.letter && numeric_[g]) found(Unusual::kLetter, "most marks of the grade are numbers");
    if (*mark.value < Currency()) found(Unusual::kNegative, "below 0");
    const i16 most = Current().Instruments[g].mvalue;
    if (!mark.letter && *mark.value > Currency::FromWhole(most))
      found(Unusual::kAboveMaximum, "the maximum is " + PlainNumberText(most));
    if (!mark.percent) return;
    if (std::string why = WhyFar(*mark.percent, of_student_[s]); !why.empty())
      found(Unusual::kFarFromStudent, std::move(why));
    if (std::string why = WhyFar(*mark.percent, of_grade_[g]); !why.empty())
      found(Unusual::kFarFromClass, std::move(why));
  }

  void SortPercents(int grades) {
    of_student_.resize(marks_.size());
    of_grade_.resize(static_cast<std::size_t>(grades) + 1);
    for (std::size_t s = 1; s < marks_.size(); ++s)
      for (std::size_t g = 1; g < marks_[s].size(); ++g)
        if (const auto& percent = marks_[s][g].percent) {
          of_student_[s].push_back(*percent);
          of_grade_[g].push_back(*percent);
        }
    for (std::vector<Percents>* lists : {&of_student_, &of_grade_})
      for (Percents& list : *lists) std::sort(list.begin(), list.end());
  }

  std::vector<std::vector<ReadMark>> marks_;
  std::vector<bool> numeric_;                    // by grade
  std::vector<Percents> of_student_, of_grade_;  // sorted
  std::vector<UnusualMark> found_;
};

}  // namespace

std::vector<UnusualMark> UnusualMarks(const std::function<bool()>& go_on) {
  return Search().Run(go_on);
}

std::string_view NameOfKind(Unusual kind) {
  switch (kind) {
    case Unusual::kEmpty:
      return "empty";
    case Unusual::kUnknownText:
      return "unknown text";
    case Unusual::kLetter:
      return "letter among numbers";
    case Unusual::kNegative:
      return "negative";
    case Unusual::kAboveMaximum:
      return "above the maximum";
    case Unusual::kFarFromStudent:
      return "far from the student's others";
    case Unusual::kFarFromClass:
      return "far from the class";
  }
  return "";
}

}  // namespace tallyroll
