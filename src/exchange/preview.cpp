// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/preview.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/exchange_texts.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/kept_ids.h"
#include "grades/marks.h"
#include "platform/long_work.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kNewGradeOfFile = 0;
constexpr int kNoGrade = -1;
constexpr std::size_t kMostGuessed = 200;  // lines of a file that is about another class altogether
constexpr std::size_t kShownOfLongTitle = 60;
constexpr Currency kFractionScale = Currency::FromScaled(100'0000);

// A maximum score as a class holds it; nothing for parts of a point and beyond its range.
std::optional<i16> WholeScore(Currency maximum) {
  constexpr std::int64_t kUnit = 10000;
  constexpr std::int64_t kMostScore = 32767;
  const std::int64_t scaled = maximum.scaled();
  if (scaled % kUnit != 0 || scaled <= 0 || scaled / kUnit > kMostScore) return std::nullopt;
  return static_cast<i16>(scaled / kUnit);
}

class PreviewMaker {
 public:
  PreviewMaker(ExchangeFormat format, ForeignTable table, const StudentsByRow& chosen)
      : kept_(KeptIdsOf(format)), chosen_(chosen) {
    preview_.refusal = table.refusal;
    preview_.table = std::move(table);
  }

  ExchangePreview Make() {
    if (preview_.refusal.empty() && table().students.empty())
      preview_.refusal = "holds no students";
    if (preview_.refusal.empty() && table().grades.empty() && table().faults.empty())
      preview_.refusal = "holds no grades";
    if (!preview_.refusal.empty()) return std::move(preview_);
    MatchGrades();
    const std::size_t grades = preview_.changes.size();
    MatchStudents();
    FindTwice();
    for (const ForeignFault& fault : table().faults)
      Add(ChangeKind::kUnusable, fault.line, fault.column,
          (fault.cell.empty() ? "" : "\"" + fault.cell + "\" ") + fault.reason);
    if (!AddMarks()) return Refusal("was not read to its end");
    std::stable_sort(preview_.changes.begin() + static_cast<std::ptrdiff_t>(grades),
                     preview_.changes.end(),
                     [](const Change& a, const Change& b) { return a.line < b.line; });
    return std::move(preview_);
  }

 private:
  const ForeignTable& table() const { return preview_.table; }

  static ExchangePreview Refusal(std::string_view why) {
    ExchangePreview preview;
    preview.refusal = why;
    return preview;
  }

  // False where it was cancelled.
  bool AddMarks() {
    LongWork work("Comparing the marks", static_cast<int>(table().students.size()));
    int student = -1;  // whose marks are being compared
    for (const ForeignMark& mark : table().marks) {
      if (std::exchange(student, mark.student) != mark.student && !work.Step()) return false;
      AddMark(mark);
    }
    return true;
  }

  Change& Add(ChangeKind kind, int line, int column, std::string reason = {}) {
    Change& change = preview_.changes.emplace_back();
    change.kind = kind;
    change.line = line;
    change.column = column;
    change.reason = std::move(reason);
    change.ticked = kind == ChangeKind::kNewGrade || kind == ChangeKind::kNewMark ||
                    kind == ChangeKind::kChangedMark;
    return change;
  }

  // By the identifier kept of an earlier file, then by title: of several grades of one title each
  // is one column's.
  void MatchGrades() {
    const Class& c = Current();
    std::vector<bool> taken(static_cast<std::size_t>(GradeCount(c)) + 1);
    preview_.grade_of.assign(table().grades.size(), kNewGradeOfFile);
    const auto take = [&](std::size_t g, std::string_view title) {
      for (int i = 1; i <= GradeCount(c) && preview_.grade_of[g] == kNewGradeOfFile; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (taken[place] || Trim(c.Instruments[place].title) != title) continue;
        taken[place] = true;
        preview_.grade_of[g] = i;
      }
    };
    for (std::size_t g = 0; g < table().grades.size(); ++g)
      if (const auto kept = kept_.grade_of_key.find(table().grades[g].key);
          !table().grades[g].key.empty() && kept != kept_.grade_of_key.end())
        take(g, kept->second);
    for (std::size_t g = 0; g < table().grades.size(); ++g) {
      if (table().grades[g].shown.empty()) take(g, Trim(table().grades[g].title));
      AddGrade(static_cast<int>(g));
    }
  }

  static std::string TitleFault(const ForeignGrade& grade) {
    if (grade.title.empty()) return "it is a grade without a title";
    const bool too_long = grade.title.size() > kLongestText;
    const std::string shown =
        too_long ? std::string(Left(grade.title, kShownOfLongTitle)) + "..." : grade.shown;
    if (shown.empty()) return {};
    return Quoted(shown) + " is a title that a class file cannot hold";
  }

  void AddGrade(int g) {
    const ForeignGrade& grade = table().grades[static_cast<std::size_t>(g)];
    int& place = preview_.grade_of[static_cast<std::size_t>(g)];
    const std::optional<i16> score = grade.maximum ? WholeScore(*grade.maximum) : std::nullopt;
    const std::string text = grade.maximum ? PlainNumberText(*grade.maximum) : "";
    if (place > 0) {
      const i16 before = Current().Instruments[static_cast<std::size_t>(place)].mvalue;
      if (!grade.maximum || score == before) return;
      Change& change = Add(ChangeKind::kMaximum, grade.line, grade.column,
                           score ? "" : "a maximum score is a whole number above 0 here");
      change.before = PlainNumberText(before);
      change.after = text;
      change.grade = g;
      return;
    }
    std::string fault = TitleFault(grade);
    if (grade.maximum && !score)
      fault = Quoted(text) + " is no maximum score: it is a whole number above 0 here";
    if (!fault.empty()) {
      place = kNoGrade;
      Add(ChangeKind::kUnusable, grade.line, grade.column, fault).grade = g;
      return;
    }
    Change& change = Add(ChangeKind::kNewGrade, grade.line, grade.column);
    change.after = text;
    change.grade = g;
  }

  void MatchStudents() {
    const ForeignMatcher matcher(Current(), kept_.key_of_student);
    std::size_t guessed = 0;
    preview_.student_of.assign(table().students.size(), 0);
    for (std::size_t s = 0; s < table().students.size(); ++s) {
      const ForeignStudent& student = table().students[s];
      const auto chosen = chosen_.find(static_cast<int>(s));
      int& place = preview_.student_of[s];
      place = chosen != chosen_.end() ? chosen->second : matcher.Find(student);
      if (place > 0) continue;
      Change& change = Add(ChangeKind::kUnknownStudent, student.line, 0);
      change.row = static_cast<int>(s);
      if (guessed++ < kMostGuessed) change.guesses = matcher.Guesses(student);
    }
  }

  // Which of the lines is the right one nobody knows, so neither is taken.
  void FindTwice() {
    std::map<int, std::vector<std::size_t>> lines;
    for (std::size_t s = 0; s < preview_.student_of.size(); ++s)
      if (preview_.student_of[s] > 0) lines[preview_.student_of[s]].push_back(s);
    for (const auto& [student, rows] : lines) {
      if (rows.size() < 2) continue;
      std::string told = "stands on the lines";
      for (const std::size_t row : rows)
        told += (row == rows.front() ? " " : ", ") + PlainNumberText(table().students[row].line);
      for (const std::size_t row : rows) {
        Change& change = Add(ChangeKind::kDuplicate, table().students[row].line, 0, told);
        change.row = static_cast<int>(row);
        change.student = student;
        preview_.student_of[row] = 0;
      }
    }
  }

  // The mark as the class would hold it, and what is to be said of it.
  std::optional<std::string> MarkFor(const ForeignMark& mark, std::string& told) const {
    const ForeignGrade& grade = table().grades[static_cast<std::size_t>(mark.grade)];
    std::optional<Currency> number = NumberOfMark(mark.text);
    if (!number) return mark.text;
    if (grade.fraction) number = RoundedTo(*number * ScoreOf(mark.grade), 2);
    std::optional<std::string> text = MarkOfNumber(*number);
    if (text && PlainNumberText(*number) != *text)
      told = "rounded from " + PlainNumberText(*number);
    return text;
  }

  Currency ScoreOf(int g) const {
    const int place = preview_.grade_of[static_cast<std::size_t>(g)];
    if (place <= 0) return kFractionScale;
    return Currency::FromWhole(Current().Instruments[static_cast<std::size_t>(place)].mvalue);
  }

  void AddMark(const ForeignMark& mark) {
    const int student = preview_.student_of[static_cast<std::size_t>(mark.student)];
    const int grade = preview_.grade_of[static_cast<std::size_t>(mark.grade)];
    if (student == 0 || grade == kNoGrade) return;  // told by its line or its title
    std::string told;
    const std::optional<std::string> text = MarkFor(mark, told);
    if (!text) {
      Change& change = Add(ChangeKind::kUnusable, mark.line, mark.column,
                           "\"" + mark.text + "\" has more than five characters");
      change.grade = mark.grade;
      change.row = mark.student;
      return;
    }
    const std::string_view before =
        grade > 0 ? MarkOf(Current().Students[static_cast<std::size_t>(student)], grade) : kNewMark;
    Change& change = Add(KindOf(before, *text), mark.line, mark.column, std::move(told));
    change.grade = mark.grade;
    change.row = mark.student;
    change.student = student;
    change.before = Trim(before);
    change.after = *text;
    change.comment = mark.comment;
  }

  static ChangeKind KindOf(std::string_view before, std::string_view after) {
    if (IsSameMark(before, after)) return ChangeKind::kSame;
    const bool none = Trim(before).empty() || Trim(before) == kNewMark;
    return none ? ChangeKind::kNewMark : ChangeKind::kChangedMark;
  }

  KeptIds kept_;
  const StudentsByRow& chosen_;
  ExchangePreview preview_;
};

}  // namespace

std::string_view ChangeKindText(ChangeKind kind) {
  constexpr std::array<std::string_view, kChangeKinds.size()> kTexts = {
      "new grade",       "new mark",  "changed mark",   "maximum differs",
      "unknown student", "duplicate", "cannot be used", "nothing to do"};
  return kTexts[static_cast<std::size_t>(kind)];
}

bool Blocks(ChangeKind kind) {
  return kind == ChangeKind::kUnknownStudent || kind == ChangeKind::kDuplicate ||
         kind == ChangeKind::kUnusable;
}

int ExchangePreview::Count(ChangeKind kind) const {
  return static_cast<int>(std::ranges::count(changes, kind, &Change::kind));
}

bool ExchangePreview::Blocked() const {
  return std::ranges::any_of(changes, Blocks, &Change::kind);
}

ExchangePreview PreviewOf(ExchangeFormat format, ForeignTable table, const StudentsByRow& chosen) {
  return PreviewMaker(format, std::move(table), chosen).Make();
}

ExchangePreview PreviewOfFile(ExchangeFormat format, std::string_view bytes,
                              const StudentsByRow& chosen) {
  LongWork work("Reading the file", 2);
  ForeignTable table = ReadForeign(format, bytes);
  work.Step();
  return PreviewOf(format, std::move(table), chosen);
}

std::string GradeTitleOf(const ExchangePreview& preview, const Change& change) {
  if (change.grade < 0) return {};
  const int place = preview.grade_of[static_cast<std::size_t>(change.grade)];
  if (place > 0)
    return std::string(Trim(Current().Instruments[static_cast<std::size_t>(place)].title));
  return preview.table.grades[static_cast<std::size_t>(change.grade)].title;
}

std::string StudentNameOf(const ExchangePreview& preview, const Change& change) {
  if (change.student > 0)
    return PlainName(Current().Students[static_cast<std::size_t>(change.student)]);
  if (change.row < 0) return {};
  const ForeignStudent& student = preview.table.students[static_cast<std::size_t>(change.row)];
  std::string name = student.lastname + (student.firstname.empty() ? "" : ", ") + student.firstname;
  if (!name.empty()) return name;
  for (const std::string* other : {&student.id, &student.email, &student.login})
    if (!other->empty()) return *other;
  return student.key;
}

}  // namespace tallyroll
