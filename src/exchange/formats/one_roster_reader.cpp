// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "base/text.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/one_roster.h"
#include "exchange/formats/zip_file.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kExemptStatus = "exempt";

// One file of the archive.
class OneRosterTable {
 public:
  OneRosterTable(std::string_view name, std::string_view bytes) : name_(name), source_(bytes) {}

  std::string Refusal(const std::vector<std::string_view>& columns) const {
    std::string refusal = source_.refusal();
    if (refusal.empty()) refusal = LacksColumns(source_, columns);
    return refusal.empty() ? "" : "holds a " + name_ + ".csv that " + refusal;
  }
  const CsvSource& source() const { return source_; }
  std::size_t rows() const { return source_.rows(); }
  std::string Cell(std::size_t row, std::string_view title) const {
    const auto column = source_.Find(title);
    return column ? source_.Cell(row, *column) : std::string();
  }
  // The text of a cell of which a class file lacks characters; else empty.
  std::string Lacking(std::size_t row, std::string_view title) const {
    const auto column = source_.Find(title);
    if (!column || source_.HoldsCell(row, *column)) return {};
    return source_.ShownCell(row, *column);
  }
  // What was deleted at the other side stands for the record alone.
  bool IsDeleted(std::size_t row) const { return Cell(row, "status") == "tobedeleted"; }
  int LineOf(std::size_t row) const { return source_.LineOf(row); }
  ForeignFault Fault(std::size_t row, std::string_view title, std::string reason) const {
    const auto column = source_.Find(title);
    return {LineOf(row), column ? static_cast<int>(*column) + 1 : 0, Cell(row, title),
            std::move(reason) + " (" + name_ + ".csv)"};
  }

 private:
  std::string name_;
  CsvSource source_;
};

class OneRosterReader {
 public:
  explicit OneRosterReader(std::string_view bytes) : zip_(Unzip(bytes)) {}

  ForeignTable Read() {
    table_.refusal = zip_.refusal;
    if (table_.refusal.empty()) ReadManifest();
    if (table_.refusal.empty()) ChooseClass();
    if (table_.refusal.empty()) ReadUsers();
    if (table_.refusal.empty()) ReadLineItems();
    if (table_.refusal.empty()) ReadResults();
    return std::move(table_);
  }

 private:
  using Columns = std::vector<std::string_view>;

  // Null without the file, or after a refusal.
  std::unique_ptr<OneRosterTable> Open(const std::string& name, const Columns& columns) {
    const auto found = zip_.files.find(name + ".csv");
    if (found == zip_.files.end()) return nullptr;
    auto opened = std::make_unique<OneRosterTable>(name, found->second);
    table_.refusal = opened->Refusal(columns);
    return table_.refusal.empty() ? std::move(opened) : nullptr;
  }

  void ReadManifest() {
    const auto manifest = Open("manifest", {"propertyName", "value"});
    if (!table_.refusal.empty()) return;
    if (!manifest) {
      table_.refusal = "has no manifest.csv";
      return;
    }
    for (std::size_t row = 0; row < manifest->rows(); ++row) {
      const std::string name = manifest->Cell(row, "propertyName");
      const std::string value = manifest->Cell(row, "value");
      if (name == "oneroster.version" && !value.starts_with("1."))
        table_.refusal = "is of version " + value + ", not of 1.2";
      if (name.starts_with("file.") && value == "delta") table_.refusal = "holds changes alone";
    }
  }

  // The only one, or the one that is called as the class in work.
  void ChooseClass() {
    const auto classes = Open("classes", {"sourcedId", "title"});
    if (!classes) return;
    std::string others;
    std::size_t count = 0;
    for (std::size_t row = 0; row < classes->rows(); ++row) {
      if (classes->IsDeleted(row)) continue;
      const std::string title = classes->Cell(row, "title");
      const bool wanted = Trim(Current().description) == title;
      if (count == 0 || wanted) class_ = classes->Cell(row, "sourcedId");
      if (wanted) return;
      others += (count++ > 0 ? ", " : "") + title;
    }
    if (count > 1)
      table_.refusal = "holds several classes, and none is called as this one: " + others;
  }

  std::set<std::string> Enrolled() {
    std::set<std::string> users;
    const auto enrollments = Open("enrollments", {"classSourcedId", "userSourcedId", "role"});
    if (!enrollments) return users;
    for (std::size_t row = 0; row < enrollments->rows(); ++row)
      if (!enrollments->IsDeleted(row) && enrollments->Cell(row, "role") == "student" &&
          enrollments->Cell(row, "classSourcedId") == class_)
        users.insert(enrollments->Cell(row, "userSourcedId"));
    return users;
  }

  void ReadUsers() {
    const std::set<std::string> enrolled = Enrolled();
    if (!table_.refusal.empty()) return;
    const auto users = Open("users", {"sourcedId", "givenName", "familyName"});
    if (!users) {
      if (table_.refusal.empty()) table_.refusal = "has no users.csv";
      return;
    }
    for (std::size_t row = 0; row < users->rows(); ++row) {
      const std::string key = users->Cell(row, "sourcedId");
      if (users->IsDeleted(row) || (!enrolled.empty() && !enrolled.contains(key))) continue;
      students_.emplace(key, static_cast<int>(table_.students.size()));
      table_.students.push_back({key, users->Cell(row, "identifier"), users->Cell(row, "username"),
                                 users->Cell(row, "email"), users->Cell(row, "familyName"),
                                 users->Cell(row, "givenName"), users->LineOf(row)});
    }
  }

  void ReadLineItems() {
    const auto items = Open("lineItems", {"sourcedId", "title", "classSourcedId"});
    if (!items) return;
    for (std::size_t row = 0; row < items->rows(); ++row) {
      if (items->IsDeleted(row)) continue;
      const std::string key = items->Cell(row, "sourcedId");
      const std::string of_class = items->Cell(row, "classSourcedId");
      if (!class_.empty() && of_class != class_) {
        elsewhere_.insert(key);
        continue;
      }
      ForeignGrade grade;
      grade.key = key;
      grade.title = items->Cell(row, "title");
      grade.shown = items->Lacking(row, "title");
      grade.line = items->LineOf(row);
      const std::string most = items->Cell(row, "resultValueMax");
      grade.maximum = ForeignNumber(most);
      if (!most.empty() && !grade.maximum)
        table_.faults.push_back(items->Fault(row, "resultValueMax", "is no number"));
      grades_.emplace(key, static_cast<int>(table_.grades.size()));
      table_.grades.push_back(std::move(grade));
    }
  }

  void ReadResults() {
    const auto results =
        Open("results", {"lineItemSourcedId", "studentSourcedId", "scoreStatus", "score"});
    if (!results) return;
    std::set<std::pair<int, int>> known;
    ReadRows(results->source(), 0, table_, [&](std::size_t row) {
      const std::string item = results->Cell(row, "lineItemSourcedId");
      if (results->IsDeleted(row) || elsewhere_.contains(item)) return;
      const auto grade = grades_.find(item);
      const auto student = students_.find(results->Cell(row, "studentSourcedId"));
      if (grade == grades_.end())
        table_.faults.push_back(
            results->Fault(row, "lineItemSourcedId", "is no grade of the file"));
      else if (student == students_.end())
        table_.faults.push_back(
            results->Fault(row, "studentSourcedId", "is no student of the file"));
      else if (!known.emplace(student->second, grade->second).second)
        table_.faults.push_back(
            results->Fault(row, "studentSourcedId", "has this grade on an earlier line already"));
      else
        ReadResult(*results, row, student->second, grade->second);
    });
  }

  void ReadResult(const OneRosterTable& results, std::size_t row, int student, int grade) {
    std::string text = results.Cell(row, "score");
    const char* column = "score";
    if (text.empty()) {
      text = results.Cell(row, "textScore");
      column = "textScore";
    }
    if (results.Cell(row, "scoreStatus") == kExemptStatus) text = "EXC";
    if (text.empty()) return;
    const std::optional<std::string> mark = MarkOfCell(text);
    if (!mark) {
      table_.faults.push_back(results.Fault(row, column, "is no mark"));
      return;
    }
    table_.marks.push_back(
        {student, grade, *mark, results.Cell(row, "comment"), results.LineOf(row), 0});
  }

  ZipFiles zip_;
  ForeignTable table_;
  std::string class_;  // empty where the file tells of none
  std::map<std::string, int> students_, grades_;
  std::set<std::string> elsewhere_;  // grades of other classes
};

}  // namespace

bool LooksLikeOneRoster(std::string_view bytes) {
  return bytes.starts_with("PK\x03\x04");
}

ForeignTable ReadOneRoster(std::string_view bytes) {
  return OneRosterReader(bytes).Read();
}

}  // namespace tallyroll
