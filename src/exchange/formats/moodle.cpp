// SPDX-License-Identifier: GPL-3.0-or-later
// The grade file of Moodle: fields of the user under translated titles, then columns for items,
// each with its kind in brackets.
#include <algorithm>
#include <array>

#include "base/text.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/formats.h"
#include "platform/long_work.h"

namespace tallyroll {
namespace {

using Titles = std::vector<std::string_view>;

// English, German, French and Spanish, in the code page.
const Titles kFirstNames = {"First name", "Vorname", "Pr\xE9nom", "Nombre"};
const Titles kLastNames = {"Last name",      "Surname",     "Nachname", "Nom",
                           "Nom de famille", "Apellido(s)", "Apellidos"};
const Titles kIdNumbers = {"ID number", "ID-Nummer", "Num\xE9ro d'identification",
                           "N\xFAmero de ID"};
const Titles kAddresses = {"Email address", "E-Mail-Adresse", "Adresse de courriel",
                           "Direcci\xF3n de correo"};
const Titles kUserNames = {"Username", "Anmeldename", "Nom d'utilisateur", "Nombre de usuario"};
constexpr std::string_view kLastDownload = "Last downloaded from this course";
constexpr std::array<std::string_view, 4> kMarkKinds = {" (Real)", " (Punkte)", " (Brut)",
                                                        " (Note)"};
constexpr std::array<std::string_view, 3> kFeedbackKinds = {
    " (Feedback)", " (Retroalimentaci\xF3n)", " (Commentaires)"};
// The same mark once more, in another form.
constexpr std::array<std::string_view, 4> kOtherKinds = {" (Percentage)", " (Letter)",
                                                         " (Prozentsatz)", " (Pourcentage)"};
constexpr std::array<std::string_view, 12> kModules = {
    "Assignment", "Quiz",     "Forum",    "Lesson",  "Workshop", "SCORM package",
    "H5P",        "Glossary", "Database", "Aufgabe", "Test",     "External tool"};
constexpr std::string_view kCourseTotal = "Course total";

template <typename Kinds>
bool EndsAs(std::string_view title, const Kinds& kinds, std::string& rest) {
  for (const std::string_view kind : kinds) {
    if (!LowerCase(title).ends_with(LowerCase(kind))) continue;
    rest = Trim(title.substr(0, title.size() - kind.size()));
    return true;
  }
  return false;
}

// "Assignment: Essay" is the grade "Essay".
std::string WithoutModule(std::string_view title) {
  const std::size_t colon = title.find(": ");
  const bool module = colon != std::string_view::npos &&
                      std::ranges::find(kModules, title.substr(0, colon)) != kModules.end();
  return std::string(module ? Trim(title.substr(colon + 2)) : title);
}

class MoodleReader {
 public:
  explicit MoodleReader(const CsvSource& source) : source_(source) {}

  ForeignTable Read() {
    first_ = source_.FindAny(kFirstNames);
    last_ = source_.FindAny(kLastNames);
    id_ = source_.FindAny(kIdNumbers);
    mail_ = source_.FindAny(kAddresses);
    user_ = source_.FindAny(kUserNames);
    if (!id_ && !mail_ && !user_ && !last_) {
      table_.refusal =
          "has none of the columns \"ID number\", \"Email address\", \"Username\" and \"Last "
          "name\"";
      return std::move(table_);
    }
    for (std::size_t column = 0; column < source_.columns(); ++column) ReadTitle(column);
    ReadRows(source_, 0, table_, [this](std::size_t row) { ReadRow(row); });
    return std::move(table_);
  }

 private:
  struct Item {
    std::size_t column;
    int grade;
    std::optional<std::size_t> feedback;
  };

  void ReadTitle(std::size_t column) {
    const std::string title = source_.Title(column);
    std::string name;
    if (title.starts_with(kCourseTotal)) return;
    if (EndsAs(title, kFeedbackKinds, name)) return NoteFeedback(column, name);
    if (EndsAs(title, kOtherKinds, name) || !EndsAs(title, kMarkKinds, name)) return;
    ForeignGrade grade;
    grade.title = WithoutModule(name);
    if (const int place = TakeGrade(source_, column, std::move(grade), table_); place >= 0) {
      items_.push_back({column, place, std::nullopt});
      names_.push_back(name);
    }
  }

  void NoteFeedback(std::size_t column, const std::string& name) {
    for (std::size_t i = 0; i < items_.size(); ++i)
      if (names_[i] == name) {
        items_[i].feedback = column;
        return;
      }
    table_.faults.push_back({1, static_cast<int>(column) + 1, source_.Title(column),
                             "is a comment without its column of marks"});
  }

  std::string CellAt(std::size_t row, const std::optional<std::size_t>& column) const {
    return column ? source_.Cell(row, *column) : std::string();
  }

  void ReadRow(std::size_t row) {
    if (source_.IsBlankRow(row)) return;
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.id = CellAt(row, id_);
    student.login = CellAt(row, user_);
    student.email = CellAt(row, mail_);
    student.firstname = CellAt(row, first_);
    student.lastname = CellAt(row, last_);
    table_.students.push_back(std::move(student));
    const int place = static_cast<int>(table_.students.size()) - 1;
    for (const Item& item : items_) {
      const std::size_t before = table_.marks.size();
      TakeMark(source_, row, item.column, place, item.grade, table_);
      const std::string comment = CellAt(row, item.feedback);
      if (table_.marks.size() > before) table_.marks.back().comment = comment;
    }
  }

  const CsvSource& source_;
  ForeignTable table_;
  std::optional<std::size_t> first_, last_, id_, mail_, user_;
  std::vector<Item> items_;
  std::vector<std::string> names_;  // by item, as the titles have them
};

}  // namespace

bool LooksLikeMoodle(const CsvSource& source) {
  return source.Find(kLastDownload).has_value() ||
         (source.FindAny(kFirstNames) && source.FindAny(kLastNames) &&
          (source.FindAny(kIdNumbers) || source.FindAny(kAddresses)));
}

ForeignTable ReadMoodle(const CsvSource& source) {
  return MoodleReader(source).Read();
}

// A mark and its comment go together: a comment alone would take all marks of its item away there.
// Addresses are small letters, for the other side tells the cases apart.
std::string WriteMoodle(const ForeignTable& table) {
  const bool comments = std::ranges::any_of(
      table.marks, [](const ForeignMark& mark) { return !mark.comment.empty(); });
  CsvWriter out;
  out.Row({"First name", "Last name", "ID number", "Email address"});
  for (const ForeignGrade& grade : table.grades) {
    out.Add(grade.title + " (Real)");
    if (comments) out.Add(grade.title + " (Feedback)");
  }
  out.EndRow();
  const MarksByCell marks(table);
  LongWork work(kWritingLines, static_cast<int>(table.students.size()));
  for (std::size_t s = 0; s < table.students.size() && work.Step(); ++s) {
    const ForeignStudent& student = table.students[s];
    out.Row({student.firstname, student.lastname, student.id, LowerCase(student.email)});
    for (std::size_t g = 0; g < table.grades.size(); ++g) {
      out.Add(marks.Text(s, g).empty() ? "-" : marks.Text(s, g));
      if (comments) out.Add(marks.Comment(s, g));
    }
    out.EndRow();
  }
  return out.Utf8();
}

}  // namespace tallyroll
