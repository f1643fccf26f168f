// SPDX-License-Identifier: GPL-3.0-or-later
// Which column of comma-separated values is which field.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/csv.h"
#include "store/records.h"

namespace tallyroll {

enum class CsvUse {
  kNotUsed,
  kId,
  kLastName,
  kFirstName,
  kFullName,
  kAddress,
  kCity,
  kState,
  kZip,
  kParent,
  kBirth,
  kHomePhone,
  kWorkPhone,
  kEmail,
  kGrade,  // a grade's marks; any number of columns
};

// What a file is read for.
enum class CsvPurpose { kStudents, kGradesById, kGradesByName };

struct CsvColumns {
  std::vector<CsvUse> uses;  // one a column; those behind are not used
  bool heading = false;      // the first record holds titles
  bool capitals = false;     // the letters of grades are taken as capitals

  int Find(CsvUse use) const;  // the first such column from 0; -1 is none
};

// How the file that is being imported is read; set by frmtxt.
extern CsvColumns ImportColumns;

// "Last name"; "(not used)".
std::string_view CsvUseCaption(CsvUse use);
// What a column may be, in the order in which it is offered.
std::span<const CsvUse> CsvUsesFor(CsvPurpose purpose);
// The field of a student that a column fills; null for names and for what is no such field.
std::string Student::*CsvStudentField(CsvUse use);

// What the titles tell; without titles the order in which text files hold the fields.
CsvColumns GuessColumns(const CsvTable& table, CsvPurpose purpose);
CsvColumns GuessColumns(const CsvTable& table, CsvPurpose purpose, bool heading);
// Gives a column its use; another one that had it has none any more, for only grades come twice.
void SetUse(CsvColumns& columns, int column, CsvUse use);
// What has to be chosen still, as a sentence; empty when the columns suffice.
std::string_view WhatIsMissing(const CsvColumns& columns, CsvPurpose purpose);

}  // namespace tallyroll
