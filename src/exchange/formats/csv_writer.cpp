// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/csv_writer.h"

#include "base/code_page.h"
#include "store/csv.h"

namespace tallyroll {

void CsvWriter::Add(std::string_view field) {
  if (begun_) text_ += ',';
  begun_ = true;
  text_ += CsvTextField(field);
}

void CsvWriter::EndRow() {
  text_ += "\r\n";
  begun_ = false;
}

std::string CsvWriter::Utf8(bool mark) const {
  return (mark ? "\xEF\xBB\xBF" : "") + Utf8FromCodePage(text_);
}

MarksByCell::MarksByCell(const ForeignTable& table)
    : grades_(table.grades.size()), marks_(table.students.size() * table.grades.size()) {
  for (const ForeignMark& mark : table.marks)
    marks_[static_cast<std::size_t>(mark.student) * grades_ +
           static_cast<std::size_t>(mark.grade)] = &mark;
}

const ForeignMark* MarksByCell::Of(std::size_t student, std::size_t grade) const {
  return marks_[student * grades_ + grade];
}

std::string_view MarksByCell::Text(std::size_t student, std::size_t grade) const {
  const ForeignMark* mark = Of(student, grade);
  return mark ? std::string_view(mark->text) : std::string_view();
}

std::string_view MarksByCell::Comment(std::size_t student, std::size_t grade) const {
  const ForeignMark* mark = Of(student, grade);
  return mark ? std::string_view(mark->comment) : std::string_view();
}

}  // namespace tallyroll
