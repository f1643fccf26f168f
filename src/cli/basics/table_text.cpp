// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/table_text.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::string PlainName(const Student& student) {
  return CellText(student.lastname) + ", " + CellText(student.firstname);
}

std::string NumberedName(const Student& student, int number) {
  return SignedNumberText(number) + " " + PlainName(student);
}

}  // namespace

std::string CellText(std::string_view text) {
  std::string shown(Trim(text));
  for (char& c : shown) {
    const auto byte = static_cast<unsigned char>(c);
    const char32_t character = UnicodeOf(byte);
    if (character < 32 || (character >= 127 && character < 160)) c = ' ';
  }
  return shown;
}

std::vector<std::string> NameHeading() {
  switch (NameMode) {
    case 57:
      return {"NAME"};
    case 82:
      return {"ID", "NAME"};
    case 73:
      return {"ID"};
    default:
      return {"NAME", "ID"};
  }
}

std::vector<std::string> NameCells(const Class& c, int i) {
  const Student& student = c.Students[static_cast<std::size_t>(i)];
  const std::string id = CellText(student.id);
  switch (NameMode) {
    case 57:
      return {NumberedName(student, i)};
    case 82:
      return {id, PlainName(student)};
    case 73:
      return {id};
    default:
      return {NumberedName(student, i), id};
  }
}

std::string ClassHeading(const Class& c) {
  std::string heading;
  for (const std::string* part : {&c.description, &c.teacher, &c.school}) {
    const std::string shown = CellText(*part);
    if (!shown.empty()) heading += (heading.empty() ? "" : ", ") + shown;
  }
  return heading.empty() ? heading : heading + "\n\n";
}

std::string AlignedText(const Table& table) {
  std::vector<std::size_t> widths(table.front().size());
  for (const auto& row : table) {
    for (std::size_t k = 0; k < row.size(); ++k) widths[k] = std::max(widths[k], row[k].size());
  }
  std::string text;
  for (const auto& row : table) {
    std::string line;
    for (std::size_t k = 0; k < row.size(); ++k) {
      line += (k == 0 ? "" : "  ") + PadRight(row[k], widths[k]);
    }
    text += std::string(TrimRight(line)) + "\n";
  }
  return text;
}

}  // namespace tallyroll
