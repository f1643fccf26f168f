// SPDX-License-Identifier: GPL-3.0-or-later
// A form letter filled in for one student, with its formatting.
#pragma once

#include <string>
#include <vector>

#include "platform/rich_text.h"
#include "store/records.h"

namespace tallyroll {

struct MergedLetter {
  RichText text;
  std::string error;  // why it cannot be merged, for the teacher; empty when it could
};

// Each code in turn is searched from the start until it is found no more, so that a value's own
// text is searched too. The form letter stays as it is. A value that holds its own code would
// never come to an end, and is an error.
MergedLetter MergeLetter(const RichText& letter, i16 student);

// What looks like a code and is none, each once in the order of the letter: "<Nickname>".
std::vector<std::string> UnknownCodes(const RichText& letter);

// The codes that stand in the letter and have no value for the student, as the list writes them.
std::vector<std::string> EmptyCodes(const RichText& letter, i16 student);

// What a teacher should know before letters leave: unknown codes, and whose values are missing. A
// line each; none when all is well.
std::vector<std::string> LetterWarnings(const RichText& letter, const std::vector<i16>& students);

}  // namespace tallyroll
