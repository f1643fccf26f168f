// SPDX-License-Identifier: GPL-3.0-or-later
// Students from a text file into a class.
#pragma once

#include <string>
#include <vector>

#include "store/records.h"
#include "store/text/roster_text.h"

namespace tallyroll {

// A student who could not keep the ID of the file.
struct GivenId {
  std::string name, before, id;  // `before` is empty when the file had none
};

struct ImportOutcome {
  int error = 0;               // 6 when the class can take no more; those that it took stay
  bool cancelled = false;      // by the teacher: none was added
  std::vector<GivenId> given;  // in the order of the file
};

// Puts them behind the students of the current class and sorts it. An ID that an earlier student
// has, and a blank one, is replaced by one that nobody has, in the class or anywhere in the file.
ImportOutcome AddStudents(TextRoster& roster);

// How many were given an ID, and to whom.
std::string GivenIdsSentence(const ImportOutcome& outcome);
std::vector<std::string> GivenIdLines(const ImportOutcome& outcome);
// The box that says both, when there are any.
void TellGivenIds(const ImportOutcome& outcome);

// Reads ImportFile by TextMode, with the boxes that tell why not. False: there is nothing to add.
bool ReadImportFile(TextRoster& roster);
// Lists values that the code page cannot hold, and asks. True: there are none, or they may be left
// empty.
bool AcceptsLacking(const std::vector<std::string>& lacking);
// AddStudents with the box of its error.
ImportOutcome AddImportedStudents(TextRoster& roster);

// "File Error 53".
void ShowTextFileError(int error);

}  // namespace tallyroll
