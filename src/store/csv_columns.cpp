// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/csv_columns.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestMarkCell = 5;
constexpr std::size_t kRecordsForColumns = 20;

struct UseRow {
  CsvUse use;
  std::string_view caption;
  std::string Student::*field;
  // Titles that mean it, in small letters and without anything else, parted by blanks.
  std::string_view titles;
};

constexpr std::array kUses = {
    UseRow{CsvUse::kNotUsed, "(not used)", nullptr, ""},
    UseRow{CsvUse::kId, "ID", &Student::id, "id studentid idnumber studentnumber studentno number"},
    UseRow{CsvUse::kLastName, "Last name", nullptr, "lastname last surname familyname"},
    UseRow{CsvUse::kFirstName, "First name", nullptr, "firstname first givenname forename"},
    UseRow{CsvUse::kFullName, "Full name", nullptr, "fullname name student studentname"},
    UseRow{CsvUse::kAddress, "Address", &Student::address, "address street streetaddress"},
    UseRow{CsvUse::kCity, "City", &Student::city, "city town"},
    UseRow{CsvUse::kState, "State", &Student::state, "state province region"},
    UseRow{CsvUse::kZip, "Zip code", &Student::zip, "zipcode zip postalcode postcode"},
    UseRow{CsvUse::kParent, "Parent", &Student::parent,
           "parent parents guardian parentname parentguardian"},
    UseRow{CsvUse::kBirth, "Birth date", &Student::birth,
           "birthdate birth birthday dateofbirth dob"},
    UseRow{CsvUse::kHomePhone, "Home phone", &Student::phone,
           "homephone phone telephone phonenumber tel"},
    UseRow{CsvUse::kWorkPhone, "Work phone", &Student::work, "workphone work"},
    UseRow{CsvUse::kEmail, "E-mail", &Student::email, "email emailaddress mail"},
    UseRow{CsvUse::kGrade, "Grade", nullptr, ""},
};

constexpr std::array kStudentUses = {
    CsvUse::kNotUsed, CsvUse::kId,        CsvUse::kLastName,  CsvUse::kFirstName, CsvUse::kFullName,
    CsvUse::kAddress, CsvUse::kCity,      CsvUse::kState,     CsvUse::kZip,       CsvUse::kParent,
    CsvUse::kBirth,   CsvUse::kHomePhone, CsvUse::kWorkPhone, CsvUse::kEmail};
constexpr std::array kGradeByIdUses = {CsvUse::kNotUsed, CsvUse::kId, CsvUse::kGrade};
constexpr std::array kGradeByNameUses = {CsvUse::kNotUsed, CsvUse::kFullName, CsvUse::kLastName,
                                         CsvUse::kFirstName, CsvUse::kGrade};
// The order of text files, where no titles tell another.
constexpr std::array kUsualOrder = {CsvUse::kId,        CsvUse::kFullName, CsvUse::kAddress,
                                    CsvUse::kCity,      CsvUse::kState,    CsvUse::kZip,
                                    CsvUse::kParent,    CsvUse::kBirth,    CsvUse::kHomePhone,
                                    CsvUse::kWorkPhone, CsvUse::kEmail};

const UseRow& RowOf(CsvUse use) {
  return *std::ranges::find(kUses, use, &UseRow::use);
}

std::string LettersOf(std::string_view title) {
  std::string letters;
  for (const char c : LowerCase(title))
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) letters += c;
  return letters;
}

bool HoldsWord(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

CsvUse UseOfTitle(std::string_view title) {
  const std::string letters = LettersOf(title);
  for (const UseRow& row : kUses)
    if (!letters.empty() && HoldsWord(row.titles, letters)) return row.use;
  return CsvUse::kNotUsed;
}

bool TellsStudent(CsvUse use) {
  return use >= CsvUse::kId && use <= CsvUse::kFullName;
}

bool LooksLikeHeading(const CsvTable& table) {
  return !table.records.empty() &&
         std::ranges::any_of(table.records[0].cells, [](const CsvCell& cell) {
           return TellsStudent(UseOfTitle(cell.text));
         });
}

std::size_t WidthOf(const CsvTable& table) {
  std::size_t width = 0;
  for (const CsvRecord& record : table.records) width = std::max(width, record.cells.size());
  return width;
}

bool Offered(CsvUse use, CsvPurpose purpose) {
  return std::ranges::find(CsvUsesFor(purpose), use) != CsvUsesFor(purpose).end();
}

// No text in the first records is too long for a mark, and some are there.
bool LooksLikeMarks(const CsvTable& table, std::size_t column, bool heading) {
  bool any = false;
  const std::size_t end = std::min(table.records.size(), kRecordsForColumns);
  for (std::size_t i = heading ? 1 : 0; i < end; ++i) {
    const auto& cells = table.records[i].cells;
    const std::string_view text = column < cells.size() ? Trim(cells[column].text) : "";
    if (text.size() > kLongestMarkCell) return false;
    any = any || !text.empty();
  }
  return any;
}

// The columns that are neither a student's key nor anything else that titles tell.
void GuessGrades(CsvColumns& columns, const CsvTable& table) {
  for (std::size_t i = 0; i < columns.uses.size(); ++i) {
    const bool titled = columns.heading && i < table.records[0].cells.size() &&
                        UseOfTitle(table.records[0].cells[i].text) != CsvUse::kNotUsed;
    if (columns.uses[i] == CsvUse::kNotUsed && !titled && LooksLikeMarks(table, i, columns.heading))
      columns.uses[i] = CsvUse::kGrade;
  }
}

}  // namespace

CsvColumns ImportColumns;

int CsvColumns::Find(CsvUse use) const {
  const auto found = std::ranges::find(uses, use);
  return found == uses.end() ? -1 : static_cast<int>(found - uses.begin());
}

std::string_view CsvUseCaption(CsvUse use) {
  return RowOf(use).caption;
}

std::span<const CsvUse> CsvUsesFor(CsvPurpose purpose) {
  switch (purpose) {
    case CsvPurpose::kGradesById:
      return kGradeByIdUses;
    case CsvPurpose::kGradesByName:
      return kGradeByNameUses;
    case CsvPurpose::kStudents:
      break;
  }
  return kStudentUses;
}

std::string Student::*CsvStudentField(CsvUse use) {
  return RowOf(use).field;
}

CsvColumns GuessColumns(const CsvTable& table, CsvPurpose purpose) {
  return GuessColumns(table, purpose, LooksLikeHeading(table));
}

CsvColumns GuessColumns(const CsvTable& table, CsvPurpose purpose, bool heading) {
  CsvColumns columns;
  columns.heading = heading && !table.records.empty();
  columns.uses.assign(WidthOf(table), CsvUse::kNotUsed);
  const bool grades = purpose != CsvPurpose::kStudents;
  const std::size_t width = columns.uses.size();
  for (std::size_t i = 0; i < width; ++i) {
    CsvUse use = CsvUse::kNotUsed;
    if (columns.heading) {
      const auto& titles = table.records[0].cells;
      if (i < titles.size()) use = UseOfTitle(titles[i].text);
    } else if (grades) {
      if (i == 0) use = CsvUsesFor(purpose)[1];
    } else if (i < kUsualOrder.size()) {
      use = kUsualOrder[i];
    }
    if (Offered(use, purpose) && columns.Find(use) < 0) columns.uses[i] = use;
  }
  if (grades && width > 0) GuessGrades(columns, table);
  return columns;
}

void SetUse(CsvColumns& columns, int column, CsvUse use) {
  if (use != CsvUse::kGrade) std::ranges::replace(columns.uses, use, CsvUse::kNotUsed);
  columns.uses[static_cast<std::size_t>(column)] = use;
}

std::string_view WhatIsMissing(const CsvColumns& columns, CsvPurpose purpose) {
  const bool named = columns.Find(CsvUse::kLastName) >= 0 || columns.Find(CsvUse::kFullName) >= 0;
  if (purpose == CsvPurpose::kGradesById && columns.Find(CsvUse::kId) < 0)
    return "Choose the column that holds the ID.";
  if (purpose != CsvPurpose::kGradesById && !named)
    return "Choose the column that holds the last name or the full name.";
  if (purpose != CsvPurpose::kStudents && columns.Find(CsvUse::kGrade) < 0)
    return "Choose a column that holds a grade.";
  return {};
}

}  // namespace tallyroll
