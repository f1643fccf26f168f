// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the rows: the fields of each record, in one order for values and headings. The
// names of columns, once published, stay.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "averages/rounding.h"
#include "base/date_serial.h"
#include "cli/rows/row_text.h"
#include "store/records.h"

namespace tallyroll {

void AddClass(RowPart& part, const Class& c, const std::string& file);
void AddStudent(RowPart& part, const Student& student);
void AddContact(RowPart& part, const Student& student);
void AddGrade(RowPart& part, int number, const Instrument& grade, DateOrder order);
void AddGradeRules(RowPart& part, const Instrument& grade);
void AddMark(RowPart& part, std::string_view mark);
void AddAverage(RowPart& part, const StudentAverage& outcome, bool points);
void AddDay(RowPart& part, const AttendanceDay& day, char code);

// The ends of rows by their mark. A district has millions of marks and few different ones.
class MarkParts {
 public:
  explicit MarkParts(RowForm form) : form_(form) {}
  std::string_view Of(std::string_view mark);

 private:
  struct Made {
    std::string mark, end;
  };
  static std::size_t PlaceOf(std::string_view mark);

  static constexpr std::size_t kPlaces = 1024;
  RowForm form_;
  std::vector<Made> made_ = std::vector<Made>(kPlaces);
};

}  // namespace tallyroll
