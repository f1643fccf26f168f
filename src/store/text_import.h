// SPDX-License-Identifier: GPL-3.0-or-later
// Students from a text file into a class.
#pragma once

#include <string>
#include <vector>

#include "store/records.h"
#include "store/roster_text.h"

namespace tallyroll {

// An id that no student of the class has, from four random numbers.
std::string MakeUniqueId(const Class& c);

// Puts them behind the students of the current class and sorts it. An id that an earlier student
// has is replaced. Returns 0, or 6 when the class can take no more; those that it took stay.
int AddStudents(TextRoster& roster);

// Reads ImportFile by TextMode, with the boxes that tell why not. False: there is nothing to add.
bool ReadImportFile(TextRoster& roster);
// Lists values that the code page cannot hold, and asks. True: there are none, or they may be left
// empty.
bool AcceptsLacking(const std::vector<std::string>& lacking);
// AddStudents with its box.
void AddImportedStudents(TextRoster& roster);

// "File Error 53".
void ShowTextFileError(int error);

}  // namespace tallyroll
