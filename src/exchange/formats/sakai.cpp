// SPDX-License-Identifier: GPL-3.0-or-later
// The grade book file of Sakai: the identifier and the name by their places, then "Title [points]",
// "* Title" for comments and "# anything" for what is not read back.
#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"
#include "platform/long_work.h"

namespace tallyroll {
namespace {

constexpr std::size_t kFirstSakaiColumn = 2;

// "Essay [20]" into title and maximum; false when the brackets hold no points.
bool SplitPoints(std::string_view title, ForeignGrade& grade) {
  const std::size_t open = title.find('[');
  grade.title = Trim(title.substr(0, open));
  if (open == std::string_view::npos) return true;
  const std::string_view rest = Trim(title.substr(open + 1));
  if (!rest.ends_with(']')) return false;
  grade.maximum = ForeignNumber(rest.substr(0, rest.size() - 1));
  return grade.maximum.has_value();
}

class SakaiReader {
 public:
  explicit SakaiReader(const CsvSource& source) : source_(source) {}

  ForeignTable Read() {
    if (source_.columns() < kFirstSakaiColumn) {
      table_.refusal = "has no columns for the identifier and the name";
      return std::move(table_);
    }
    for (std::size_t column = kFirstSakaiColumn; column < source_.columns(); ++column)
      ReadTitle(column);
    for (const auto& [column, title] : comments_) JoinComment(column, title);
    ReadRows(source_, 0, table_, [this](std::size_t row) { ReadRow(row); });
    return std::move(table_);
  }

 private:
  struct Item {
    std::size_t column;
    int grade;
    std::optional<std::size_t> comment;
  };

  void Fault(std::size_t column, std::string reason) {
    table_.faults.push_back(
        {1, static_cast<int>(column) + 1, source_.Title(column), std::move(reason)});
  }

  void ReadTitle(std::size_t column) {
    const std::string title = source_.Title(column);
    if (title.starts_with('#')) return;
    if (title.starts_with("* ")) {
      comments_.emplace_back(column, std::string(Trim(std::string_view(title).substr(2))));
      return;
    }
    ForeignGrade grade;
    if (!SplitPoints(title, grade)) return Fault(column, "has no points between its brackets");
    if (PlaceOf(grade.title) >= 0) return Fault(column, "stands twice among the titles");
    if (const int place = TakeGrade(source_, column, std::move(grade), table_); place >= 0)
      items_.push_back({column, place, std::nullopt});
  }

  int PlaceOf(std::string_view title) const {
    for (std::size_t i = 0; i < table_.grades.size(); ++i)
      if (!title.empty() && table_.grades[i].title == title) return static_cast<int>(i);
    return -1;
  }

  void JoinComment(std::size_t column, const std::string& title) {
    const int place = PlaceOf(title);
    const auto item = std::ranges::find(items_, place, &Item::grade);
    if (place < 0 || item == items_.end()) return Fault(column, "is a comment without its grade");
    item->comment = column;
  }

  void ReadRow(std::size_t row) {
    if (source_.IsBlankRow(row)) return;
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.id = source_.Cell(row, 0);
    TakeName(source_.Cell(row, 1), student);
    table_.students.push_back(std::move(student));
    const int place = static_cast<int>(table_.students.size()) - 1;
    for (const Item& item : items_) {
      const std::size_t before = table_.marks.size();
      TakeMark(source_, row, item.column, place, item.grade, table_);
      if (item.comment && table_.marks.size() > before)
        table_.marks.back().comment = source_.Cell(row, *item.comment);
    }
  }

  const CsvSource& source_;
  ForeignTable table_;
  std::vector<Item> items_;
  std::vector<std::pair<std::size_t, std::string>> comments_;
};

}  // namespace

bool LooksLikeSakai(const CsvSource& source) {
  for (std::size_t column = kFirstSakaiColumn; column < source.columns(); ++column) {
    const std::string title = source.Title(column);
    if (title.starts_with("# ") || title.starts_with("* ")) return true;
    ForeignGrade grade;
    if (SplitPoints(title, grade) && grade.maximum) return true;
  }
  return false;
}

ForeignTable ReadSakai(const CsvSource& source) {
  return SakaiReader(source).Read();
}

std::string WriteSakai(const ForeignTable& table) {
  const bool comments = std::ranges::any_of(
      table.marks, [](const ForeignMark& mark) { return !mark.comment.empty(); });
  CsvWriter out;
  out.Row({"Student ID", "Name"});
  for (const ForeignGrade& grade : table.grades) {
    out.Add(grade.title +
            (grade.maximum ? " [" + PlainNumberText(RoundedTo(*grade.maximum, 2)) + "]" : ""));
    if (comments) out.Add("* " + grade.title);
  }
  out.EndRow();
  const MarksByCell marks(table);
  LongWork work(kWritingLines, static_cast<int>(table.students.size()));
  for (std::size_t s = 0; s < table.students.size() && work.Step(); ++s) {
    const ForeignStudent& student = table.students[s];
    out.Row({student.id, student.lastname + ", " + student.firstname});
    for (std::size_t g = 0; g < table.grades.size(); ++g) {
      out.Add(marks.Text(s, g));
      if (comments) out.Add(marks.Comment(s, g));
    }
    out.EndRow();
  }
  return out.Utf8(true);
}

}  // namespace tallyroll
