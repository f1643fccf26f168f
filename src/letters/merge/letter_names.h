// SPDX-License-Identifier: GPL-3.0-or-later
// The files that student letters are saved to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct StudentLetterName {
  i16 student = 0;
  std::string path;
};

struct StudentLetterNames {
  std::vector<StudentLetterName> letters;  // one a student, no two paths alike
  std::vector<std::string> notices;  // for the teacher: names that had to differ from the rule
};

// Beside the chosen name: without its extension, "_", the last name, or the ID where names are not
// shown, and ".RTF" or ".TXT" as the chosen name has. The second of a name has its ID added; a
// character that a file system refuses becomes "-".
StudentLetterNames NamesOfStudentLetters(const std::string& chosen,
                                         const std::vector<i16>& students);

// The same with an extension of its own, such as ".pdf".
StudentLetterNames NamesOfStudentLetters(const std::string& chosen, std::string_view extension,
                                         const std::vector<i16>& students);

}  // namespace tallyroll
