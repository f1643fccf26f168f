// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/student_clipboard.h"

#include <algorithm>
#include <array>

#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kStudentMark = "3z";
constexpr std::string_view kEndOfComment = "<END FIELD>";
constexpr std::string_view kNothing = "=";  // so that no line is blank
constexpr std::string_view kCommentLineEnd = "\r\n";

// A mark and a count as wide as older class files hold them.
constexpr std::string_view kNewMarkLine = "NEW  ";
constexpr std::string_view kNewCountLine = "0    ";

constexpr std::array kRequiredFields = {&Student::lastname, &Student::firstname, &Student::id};
constexpr std::array kOtherFields = {&Student::parent, &Student::phone,   &Student::work,
                                     &Student::email,  &Student::address, &Student::city,
                                     &Student::state,  &Student::zip,     &Student::birth};

// ---- Writing ----

void AddLine(std::string& text, std::string_view line) {
  for (const char c : line) text += c == '\r' || c == '\n' ? ' ' : c;
  text += '\r';
}

// A value that begins like nothing gets a blank before it, which every Portal trims off again.
std::string OrNothing(const std::string& value) {
  if (Trim(value).empty()) return std::string(kNothing);
  return value.starts_with(kNothing) ? " " + value : value;
}

template <typename T>
std::string_view ItemOr(const List<T>& list, int i, std::string_view otherwise) {
  return i <= UpperBound(list) ? std::string_view(list[static_cast<std::size_t>(i)]) : otherwise;
}

void AddLists(std::string& text, const Student& from) {
  const Class& c = Current();
  for (int i = 1; i <= c.NumInstruments; ++i) AddLine(text, ItemOr(from.Marks, i, kNewMarkLine));
  for (int i = 1; i <= c.NumDays; ++i) AddLine(text, ItemOr(from.DailyMarks, i, " "));
  for (int i = 1; i <= c.NumSummaries; ++i) {
    AddLine(text, ItemOr(from.SummaryAbsent, i, kNewCountLine));
    AddLine(text, ItemOr(from.SummaryLate, i, kNewCountLine));
    AddLine(text, ItemOr(from.SummaryDetail, i, kNewSummaryDetail));
  }
}

// ---- Reading ----

// Takes line after line; one that is missing or too long spoils the whole.
class Lines {
 public:
  explicit Lines(std::string_view text) : reader_(text) {}

  bool good() const { return good_; }
  std::string_view Rest() const { return reader_.Rest(); }
  std::string Next() {
    const auto line = reader_.Next();
    if (!line || line->size() > kLongestText) good_ = false;
    return good_ ? std::string(*line) : std::string();
  }
  int NextCount() {
    const std::optional<double> count = WholeNumberText(Next());
    constexpr double kMost = 32767;
    if (!count || *count < 0 || *count > kMost || *count != static_cast<int>(*count)) good_ = false;
    return good_ ? static_cast<int>(*count) : 0;
  }

 private:
  LineReader reader_;
  bool good_ = true;
};

std::string FieldOf(const std::string& line) {
  return line.starts_with(kNothing) ? std::string() : line;
}

// A comment's lines with the ends that comments have.
std::string CommentOf(std::string_view text) {
  std::string comment;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
    if (pair) continue;
    if (text[i] == '\r' || text[i] == '\n')
      comment += kCommentLineEnd;
    else
      comment += text[i];
  }
  return comment;
}

template <typename T>
void TakeItem(List<T>& list, int i, std::string_view text) {
  if (i <= UpperBound(list)) list[static_cast<std::size_t>(i)] = T(text);
}

}  // namespace

std::string StudentOnClipboard(const Student& student, bool all) {
  const Class& c = Current();
  std::string text;
  AddLine(text, kStudentMark);
  for (const auto field : kRequiredFields) AddLine(text, OrNothing(student.*field));
  for (const auto field : kOtherFields) AddLine(text, OrNothing(student.*field));
  text += OrNothing(student.comments);
  AddLine(text, kEndOfComment);
  for (const i16 count : {c.NumInstruments, c.NumDays, c.NumSummaries})
    AddLine(text, PlainNumberText(int{count}));
  AddLists(text, all ? student : Student());
  return text;
}

bool HoldsStudent(std::string_view clipboard) {
  return clipboard.starts_with(kStudentMark);
}

std::optional<StudentText> ReadStudent(std::string_view clipboard) {
  StudentText text;
  Lines lines(clipboard);
  lines.Next();
  for (const auto field : kRequiredFields) text.fields.*field = FieldOf(lines.Next());
  for (const auto field : kOtherFields) text.fields.*field = FieldOf(lines.Next());
  // No line behind the comment holds its end, so that a comment may.
  const std::size_t end = lines.Rest().rfind(kEndOfComment);
  if (!lines.good() || end == std::string_view::npos || end > kLongestText) return std::nullopt;
  text.fields.comments = FieldOf(CommentOf(lines.Rest().substr(0, end)));
  if (text.fields.comments.size() > kLongestText) return std::nullopt;

  Lines rest(lines.Rest().substr(end));
  rest.Next();
  const int marks = rest.NextCount();
  const int days = rest.NextCount();
  const int summaries = rest.NextCount();
  for (int i = 0; i < marks && rest.good(); ++i) text.marks.push_back(rest.Next());
  for (int i = 0; i < days && rest.good(); ++i) text.days.push_back(rest.Next());
  for (int i = 0; i < summaries && rest.good(); ++i)
    text.summaries.push_back({rest.Next(), rest.Next(), rest.Next()});
  if (!rest.good()) return std::nullopt;
  return text;
}

void TakeLists(const StudentText& text, Student& student) {
  for (std::size_t i = 0; i < text.marks.size(); ++i)
    TakeItem(student.Marks, static_cast<int>(i) + 1, TrimRight(text.marks[i]));
  for (std::size_t i = 0; i < text.days.size(); ++i)
    TakeItem(student.DailyMarks, static_cast<int>(i) + 1, text.days[i]);
  for (std::size_t i = 0; i < text.summaries.size(); ++i) {
    const int place = static_cast<int>(i) + 1;
    TakeItem(student.SummaryAbsent, place, text.summaries[i].absent);
    TakeItem(student.SummaryLate, place, TrimRight(text.summaries[i].late));
    TakeItem(student.SummaryDetail, place, text.summaries[i].detail);
  }
}

}  // namespace tallyroll
