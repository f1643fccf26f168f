// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/out_warnings.h"

#include <algorithm>
#include <map>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/exchange_texts.h"
#include "exchange/formats/foreign_mark.h"

namespace tallyroll {
namespace {

// "Final Score" becomes "Final-Score": the words stay, the other side no longer knows them.
std::string WithoutTotalWords(std::string title) {
  for (const char* second : {" Score", " Points", " Grade", " Status"})
    for (const char* first : {"Current", "Final", "Override"}) {
      const std::string words = std::string(first) + second;
      for (std::size_t at = title.find(words); at != std::string::npos; at = title.find(words))
        title[at + std::string_view(first).size()] = '-';
    }
  return title;
}

std::string WithoutBrackets(std::string title) {
  std::ranges::replace(title, '[', '(');
  std::ranges::replace(title, ']', ')');
  return title;
}

std::string WithoutHash(std::string_view title) {
  while (!title.empty() && (title.front() == '#' || title.front() == '*' || title.front() == ' '))
    title.remove_prefix(1);
  return title.empty() ? "Grade" : std::string(title);
}

// "Essay (2)" becomes "Essay - 2".
std::string WithoutKeyEnd(const std::string& title) {
  const std::size_t open = title.rfind(" (");
  return title.substr(0, open) + " - " + title.substr(open + 2, title.size() - open - 3);
}

bool HasTooManyDecimals(const ForeignMark& mark, int most) {
  const std::optional<Currency> number = NumberOfMark(mark.text);
  return number && RoundedTo(*number, most) != *number;
}

bool IsLetterOfGrades(std::string_view text) {
  return !text.empty() && text[0] >= 'A' && text[0] <= 'F' && text.size() <= 2;
}

class WarningFinder {
 public:
  WarningFinder(ExchangeFormat format, const ForeignTable& table)
      : format_(format), row_(RowOfFormat(format)), table_(table) {}

  std::vector<OutWarning> Find() {
    for (int g = 0; g < static_cast<int>(table_.grades.size()); ++g) LookAtGrade(g);
    LookAtMarks();
    LookAtStudents();
    return std::move(found_);
  }

 private:
  void Warn(OutTrouble trouble, int grade, std::string text, std::string remedy) {
    const bool mended = !remedy.empty();
    found_.push_back({trouble, grade, std::move(text), std::move(remedy), mended});
  }

  void LookAtGrade(int g) {
    const ForeignGrade& grade = table_.grades[static_cast<std::size_t>(g)];
    const std::string& title = grade.title;
    if (format_ == ExchangeFormat::kCanvas && IsCanvasTotal(title))
      Warn(OutTrouble::kTotalTitle, g,
           Quoted(title) + " is taken for one of its totals and dropped.",
           "Write " + Quoted(WithoutTotalWords(title)) + ".");
    if (format_ == ExchangeFormat::kCanvas && grade.key.empty() && EndsAsCanvasKey(title))
      Warn(OutTrouble::kKeyTitle, g,
           Quoted(title) + " is taken for the assignment with that number.",
           "Write " + Quoted(WithoutKeyEnd(title)) + ".");
    if (format_ == ExchangeFormat::kSakai && title.find_first_of("[]") != std::string::npos)
      Warn(OutTrouble::kBracketTitle, g, Quoted(title) + " ends there at its bracket.",
           "Write " + Quoted(WithoutBrackets(title)) + ".");
    if (format_ == ExchangeFormat::kSakai && (title.starts_with('#') || title.starts_with('*')))
      Warn(OutTrouble::kHashTitle, g, Quoted(title) + " is passed over because of its first sign.",
           "Write " + Quoted(WithoutHash(title)) + ".");
    const bool by_title = format_ == ExchangeFormat::kSakai || format_ == ExchangeFormat::kMoodle;
    if (by_title && ++titles_[title] > 1)
      Warn(OutTrouble::kTwiceTitle, g, Quoted(title) + " stands twice among the titles.",
           "Write " + Quoted(title + " - " + PlainNumberText(titles_[title])) + ".");
    if (format_ == ExchangeFormat::kEdx && grade.key.empty())
      Warn(OutTrouble::kNoKey, g,
           Quoted(title) + " is not known there and stays out: take its bulk grades in first.", "");
  }

  struct UnfitMarks {
    int decimals = 0, texts = 0;
  };

  void LookAtMarks() {
    std::vector<UnfitMarks> unfit(table_.grades.size());
    for (const ForeignMark& mark : table_.marks) {
      UnfitMarks& of_grade = unfit[static_cast<std::size_t>(mark.grade)];
      of_grade.decimals += HasTooManyDecimals(mark, row_.most_decimals);
      of_grade.texts += IsUnreadable(mark.text);
    }
    for (std::size_t g = 0; g < unfit.size(); ++g) WarnOfMarks(static_cast<int>(g), unfit[g]);
  }

  void WarnOfMarks(int g, const UnfitMarks& unfit) {
    const std::string& title = table_.grades[static_cast<std::size_t>(g)].title;
    if (unfit.decimals > 0)
      Warn(OutTrouble::kDecimals, g,
           Quoted(title) + " has " + PlainNumberText(unfit.decimals) +
               " marks with more than two decimals.",
           "Round them to two.");
    if (unfit.texts > 0)
      Warn(OutTrouble::kText, g,
           Quoted(title) + " has " + PlainNumberText(unfit.texts) +
               " marks that are no numbers there.",
           "Leave them out.");
  }

  // Letters are numbers to nobody; some systems have them beside.
  bool IsUnreadable(std::string_view text) const {
    if (text == row_.excused || NumberOfMark(text)) return false;
    const bool letters = format_ != ExchangeFormat::kMoodle && format_ != ExchangeFormat::kEdx;
    return !letters || !IsLetterOfGrades(text);
  }

  void LookAtStudents() {
    int without = 0;
    for (const ForeignStudent& student : table_.students) without += IsLost(student);
    if (without > 0)
      Warn(OutTrouble::kNoId, -1,
           PlainNumberText(without) + " students have neither an ID" +
               (format_ == ExchangeFormat::kEdx ? " of Open edX and stay out."
                                                : " nor an e-mail and may not be found there."),
           "");
  }

  bool IsLost(const ForeignStudent& student) const {
    if (format_ == ExchangeFormat::kEdx) return student.key.empty();
    return student.id.empty() && student.key.empty() &&
           (student.email.empty() || format_ == ExchangeFormat::kSakai);
  }

  ExchangeFormat format_;
  const ExchangeFormatRow& row_;
  const ForeignTable& table_;
  std::map<std::string, int> titles_;
  std::vector<OutWarning> found_;
};

// By grade, whether its marks are to be mended.
using GradesToMend = std::vector<bool>;

void MendMarks(const GradesToMend& grades, ExchangeFormat format, ForeignTable& table) {
  const int most = RowOfFormat(format).most_decimals;
  for (ForeignMark& mark : table.marks)
    if (grades[static_cast<std::size_t>(mark.grade)] && HasTooManyDecimals(mark, most))
      mark.text = PlainNumberText(RoundedTo(*NumberOfMark(mark.text), most));
}

void DropTexts(const GradesToMend& grades, ExchangeFormat format, ForeignTable& table) {
  const std::string_view excused = RowOfFormat(format).excused;
  const bool letters = format != ExchangeFormat::kMoodle && format != ExchangeFormat::kEdx;
  std::erase_if(table.marks, [&](const ForeignMark& mark) {
    if (!grades[static_cast<std::size_t>(mark.grade)] || mark.text == excused ||
        NumberOfMark(mark.text))
      return false;
    return !letters || !IsLetterOfGrades(mark.text);
  });
}

void MendTitle(const OutWarning& warning, ForeignTable& table) {
  std::string& title = table.grades[static_cast<std::size_t>(warning.grade)].title;
  switch (warning.trouble) {
    case OutTrouble::kTotalTitle:
      title = WithoutTotalWords(title);
      return;
    case OutTrouble::kKeyTitle:
      title = WithoutKeyEnd(title);
      return;
    case OutTrouble::kBracketTitle:
      title = WithoutBrackets(title);
      return;
    case OutTrouble::kHashTitle:
      title = WithoutHash(title);
      return;
    case OutTrouble::kTwiceTitle: {
      int nth = 0;
      for (int g = 0; g <= warning.grade; ++g)
        nth += table.grades[static_cast<std::size_t>(g)].title == title;
      title += " - " + PlainNumberText(nth);
      return;
    }
    default:
      return;
  }
}

}  // namespace

std::vector<OutWarning> WarningsOf(ExchangeFormat format, const ForeignTable& table) {
  return WarningFinder(format, table).Find();
}

// The marks are walked once for all grades.
void Mend(ExchangeFormat format, const std::vector<OutWarning>& warnings, ForeignTable& table) {
  GradesToMend decimals(table.grades.size()), texts(table.grades.size());
  for (const OutWarning& warning : warnings) {
    if (!warning.mended || warning.grade < 0) continue;
    const auto grade = static_cast<std::size_t>(warning.grade);
    if (warning.trouble == OutTrouble::kDecimals)
      decimals[grade] = true;
    else if (warning.trouble == OutTrouble::kText)
      texts[grade] = true;
    else
      MendTitle(warning, table);
  }
  MendMarks(decimals, format, table);
  DropTexts(texts, format, table);
}

}  // namespace tallyroll
