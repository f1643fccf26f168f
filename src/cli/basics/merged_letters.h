// SPDX-License-Identifier: GPL-3.0-or-later
// A form letter filled in for several students, before any of it goes anywhere.
#pragma once

#include <string>
#include <vector>

#include "letters/text/letter_file.h"
#include "store/records.h"

namespace tallyroll {

// Why the file is no letter.
std::string ReadFormLetter(const std::string& path, LetterReading& letter);

struct MergedLetters {
  std::vector<i16> students;
  std::vector<RichText> texts;     // one a student
  std::vector<std::string> notes;  // what whoever sends them should know, in UTF-8
  std::string refusal;             // why none may leave
};

// A code that nobody knows would reach the families as it stands, and keeps every letter back.
MergedLetters MergeLetters(const LetterReading& letter, const std::vector<i16>& students);

}  // namespace tallyroll
