// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/one_roster.h"
#include "exchange/formats/zip_file.h"
#include "platform/long_work.h"

namespace tallyroll {
namespace {

// The same text gives the same identifier in every file, on every machine.
std::string StableId(std::string_view kind, std::string_view text) {
  std::uint64_t hash = 14695981039346656037u;
  for (const char c : std::string(kind) + '\n' + std::string(text))
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
  std::string id = "tallyroll-" + std::string(kind) + "-";
  for (int shift = 60; shift >= 0; shift -= 4) id += "0123456789abcdef"[hash >> shift & 15];
  return id;
}

class OneRosterWriter {
 public:
  explicit OneRosterWriter(const ForeignTable& table)
      : table_(table),
        org_(StableId("org", table.school)),
        session_(StableId("session", table.today.substr(0, 4))),
        course_(StableId("course", table.section)),
        class_(table.course.empty() ? StableId("class", table.school + "\n" + table.section)
                                    : table.course) {}

  ForeignFile Write() {
    const std::string year = table_.today.substr(0, 4);
    Add("orgs", {org_, "", "", table_.school, "school", "", ""});
    Add("academicSessions",
        {session_, "", "", year, "schoolYear", year + "-01-01", year + "-12-31", "", year});
    Add("courses", {course_, "", "", session_, table_.section, "", "", org_, "", ""});
    Add("classes", {class_, "", "", table_.section, "", course_, "", "scheduled", "", org_,
                    session_, "", "", ""});
    for (const ForeignStudent& student : table_.students) AddStudent(student);
    for (const ForeignGrade& grade : table_.grades) AddLineItem(grade);
    if (!AddResults()) return {"was not written to its end", ""};
    return Packed();
  }

 private:
  void Add(const std::string& file, const std::vector<std::string>& fields) {
    CsvWriter& out = files_[file];
    for (const std::string& field : fields) out.Add(field);
    out.EndRow();
  }

  static std::string IdOf(const ForeignStudent& student) {
    if (!student.key.empty()) return student.key;
    return StableId("user",
                    student.id.empty() ? student.lastname + "\n" + student.firstname : student.id);
  }
  // Two grades of one title are told apart by their places.
  std::string IdOf(const ForeignGrade& grade) const {
    if (!grade.key.empty()) return grade.key;
    int nth = 0;
    for (const ForeignGrade& earlier : table_.grades) {
      if (&earlier == &grade) break;
      nth += earlier.title == grade.title;
    }
    return StableId("lineItem", class_ + "\n" + grade.title + "\n" + PlainNumberText(nth));
  }

  void AddStudent(const ForeignStudent& student) {
    const std::string& id = student_ids_.emplace_back(IdOf(student));
    Add("users", {id,
                  "",
                  "",
                  "true",
                  student.login.empty() ? student.id : student.login,
                  "",
                  student.firstname,
                  student.lastname,
                  "",
                  student.id,
                  student.email,
                  "",
                  "",
                  "",
                  "",
                  "",
                  "",
                  "",
                  "",
                  "",
                  org_,
                  ""});
    Add("roles", {StableId("role", id), "", "", id, "primary", "student", "", "", org_, ""});
    Add("enrollments", {StableId("enrollment", class_ + "\n" + id), "", "", class_, org_, id,
                        "student", "false", "", ""});
  }

  std::string CategoryOf(const ForeignGrade& grade) {
    const std::string title = grade.category.empty() ? "Grade" : grade.category;
    std::string id = StableId("category", title);
    if (categories_.emplace(id, true).second) Add("categories", {id, "", "", title, ""});
    return id;
  }

  std::string DateOf(const ForeignGrade& grade) const {
    return grade.date.empty() ? table_.today : grade.date;
  }

  void AddLineItem(const ForeignGrade& grade) {
    const std::string date = DateOf(grade);
    const std::string& id = grade_ids_.emplace_back(IdOf(grade));
    Add("lineItems", {id, "", "", grade.title, "", date, date, class_, CategoryOf(grade), session_,
                      "0", grade.maximum ? PlainNumberText(*grade.maximum) : "", org_});
  }

  // False where it was cancelled.
  bool AddResults() {
    LongWork work(kWritingLines, static_cast<int>(table_.students.size()));
    int student = -1;  // whose marks are being written
    for (const ForeignMark& mark : table_.marks) {
      if (std::exchange(student, mark.student) != mark.student && !work.Step()) return false;
      AddResult(mark);
    }
    return true;
  }

  void AddResult(const ForeignMark& mark) {
    const ForeignGrade& grade = table_.grades[static_cast<std::size_t>(mark.grade)];
    const std::string& student = student_ids_[static_cast<std::size_t>(mark.student)];
    const bool excused = mark.text == "exempt";
    const bool number = NumberOfMark(mark.text).has_value();
    const std::string& item = grade_ids_[static_cast<std::size_t>(mark.grade)];
    Add("results",
        {StableId("result", item + "\n" + student), "", "", item, student,
         excused ? "exempt" : "fully graded", number ? mark.text : "", DateOf(grade), mark.comment,
         excused || number ? "" : mark.text, class_, "false", "false", "false", "false"});
  }

  ForeignFile Packed() {
    std::map<std::string, std::string, std::less<>> packed;
    CsvWriter manifest;
    const auto property = [&](std::string_view name, std::string_view value) {
      manifest.Row({name, value});
      manifest.EndRow();
    };
    property("propertyName", "value");
    property("manifest.version", "1.0");
    property("oneroster.version", "1.2");
    for (const OneRosterFile& file : kOneRosterFiles) {
      const auto rows = files_.find(std::string(file.name));
      const bool there = !file.columns.empty() && rows != files_.end();
      property("file." + std::string(file.name), there ? "bulk" : "absent");
      if (there)
        packed[std::string(file.name) + ".csv"] = "sourcedId,status,dateLastModified," +
                                                  std::string(file.columns) + "\r\n" +
                                                  rows->second.Utf8();
    }
    property("source.systemName", "Tallyroll");
    packed["manifest.csv"] = manifest.Utf8();
    ZipBytes zipped = Zip(packed);
    return {zipped.refusal, zipped.bytes};
  }

  const ForeignTable& table_;
  std::string org_, session_, course_, class_;
  std::map<std::string, CsvWriter> files_;
  std::map<std::string, bool> categories_;
  std::vector<std::string> student_ids_, grade_ids_;  // as they went out, by the table's places
};

}  // namespace

ForeignFile WriteOneRoster(const ForeignTable& table) {
  return OneRosterWriter(table).Write();
}

}  // namespace tallyroll
