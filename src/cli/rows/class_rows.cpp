// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/rows/class_rows.h"

#include <algorithm>
#include <array>

#include "attendance/daily_codes.h"
#include "averages/rounding.h"
#include "cli/rows/row_fields.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

using Place = RowPart::Place;

class TableWriter {
 public:
  TableWriter(RowForm form, const std::string& file, DateOrder order, RowSink& sink)
      : form_(form), order_(order), sink_(sink), class_(form, Place::kFirst) {
    AddClass(class_, Current(), file);
  }

  void Students() {
    ForEachStudent([&](const Student& student) {
      RowPart contact(form_, Place::kLater);
      AddContact(contact, student);
      Row(class_.text() + Part(student), contact.text());
    });
  }

  void Grades() {
    for (int i = 1; i <= GradeCount(Current()) && !sink_.closed(); ++i) {
      RowPart part(form_, Place::kLater);
      const Instrument& grade = Current().Instruments[static_cast<std::size_t>(i)];
      AddGrade(part, i, grade, order_);
      AddGradeRules(part, grade);
      Row(class_.text(), part.text());
    }
  }

  void Marks() {
    std::vector<std::string> grades;
    for (int i = 1; i <= GradeCount(Current()); ++i) {
      RowPart part(form_, Place::kLater);
      AddGrade(part, i, Current().Instruments[static_cast<std::size_t>(i)], order_);
      grades.push_back(part.text());
    }
    MarkParts marks(form_);
    ForEachStudent([&](const Student& student) {
      const std::string head = class_.text() + Part(student);
      for (std::size_t i = 0; i < grades.size(); ++i)
        sink_.AddRow(head, grades[i], marks.Of(MarkOf(student, static_cast<int>(i) + 1)));
    });
  }

  // One figure that cannot be computed leaves no other one without its company.
  std::string Averages() {
    const bool points = Current().Method == 2 || Current().Method == 3;
    std::string reason;
    std::string rows;
    for (int i = 1; i <= Current().NumStudents; ++i) {
      CurrentStudent = static_cast<i16>(i);
      StudentAverage outcome;
      if (const AverageError error = AverageStudent(outcome)) return AverageErrorText(error);
      RowPart part(form_, Place::kLater);
      AddAverage(part, outcome, points);
      rows += class_.text() + Part(Current().Students[static_cast<std::size_t>(i)]) + part.text();
      rows += RowEnd(form_);
    }
    sink_.AddRow(rows, "", "");
    return {};
  }

  void Attendance() {
    const Class& c = Current();
    ForEachStudent([&](const Student& student) {
      const std::string head = class_.text() + Part(student);
      for (int day = 1; day <= UpperBound(c.AttendanceDays); ++day) {
        RowPart part(form_, Place::kLater);
        AddDay(part, c.AttendanceDays[static_cast<std::size_t>(day)], MarkOn(student, day));
        Row(head, part.text());
      }
    });
  }

 private:
  template <typename Visitor>
  void ForEachStudent(Visitor&& visit) {
    const Class& c = Current();
    for (int i = 1; i <= c.NumStudents && !sink_.closed(); ++i)
      visit(c.Students[static_cast<std::size_t>(i)]);
  }

  std::string Part(const Student& student) const {
    RowPart part(form_, Place::kLater);
    AddStudent(part, student);
    return part.text();
  }

  void Row(std::string_view head, std::string_view rest) {
    sink_.AddRow(head, rest, RowEnd(form_));
  }

  RowForm form_;
  DateOrder order_;
  RowSink& sink_;
  RowPart class_;
};

struct RowTable {
  std::string_view name;
  void (*heading)(RowPart& part);  // behind the columns of the class
  std::string (*write)(TableWriter& writer);
};

constexpr std::array kRowTables = {
    RowTable{"students",
             [](RowPart& part) {
               AddStudent(part, {});
               AddContact(part, {});
             },
             [](TableWriter& writer) {
               writer.Students();
               return std::string();
             }},
    RowTable{"grades",
             [](RowPart& part) {
               AddGrade(part, 0, {}, DateOrder::kMonthFirst);
               AddGradeRules(part, {});
             },
             [](TableWriter& writer) {
               writer.Grades();
               return std::string();
             }},
    RowTable{"marks",
             [](RowPart& part) {
               AddStudent(part, {});
               AddGrade(part, 0, {}, DateOrder::kMonthFirst);
               AddMark(part, "");
             },
             [](TableWriter& writer) {
               writer.Marks();
               return std::string();
             }},
    RowTable{"averages",
             [](RowPart& part) {
               AddStudent(part, {});
               AddAverage(part, {}, false);
             },
             [](TableWriter& writer) { return writer.Averages(); }},
    RowTable{"attendance",
             [](RowPart& part) {
               AddStudent(part, {});
               AddDay(part, {}, kNoMark);
             },
             [](TableWriter& writer) {
               writer.Attendance();
               return std::string();
             }},
};

const RowTable& TableOf(std::string_view name) {
  return *std::ranges::find(kRowTables, name, &RowTable::name);
}

}  // namespace

std::vector<std::string> RowTables() {
  std::vector<std::string> names;
  names.reserve(std::size(kRowTables));
  for (const RowTable& table : kRowTables) names.emplace_back(table.name);
  return names;
}

std::string RowHeading(std::string_view table) {
  RowPart part(RowForm::kCsvHeading, Place::kFirst);
  AddClass(part, {}, "");
  TableOf(table).heading(part);
  return part.text() + "\n";
}

std::string WriteRows(std::string_view table, RowForm form, const std::string& file,
                      DateOrder order, RowSink& sink) {
  TableWriter writer(form, file, order, sink);
  return TableOf(table).write(writer);
}

}  // namespace tallyroll
