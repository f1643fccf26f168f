// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/merged_letters.h"

#include <utility>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "letters/merge/merge.h"

namespace tallyroll {

std::string ReadFormLetter(const std::string& path, LetterReading& letter) {
  letter = ReadLetter(path);
  if (letter.error != 0) return FileErrorText(letter.error);
  return letter.reason;
}

MergedLetters MergeLetters(const LetterReading& letter, const std::vector<i16>& students) {
  MergedLetters merged;
  merged.notes = letter.left_out;
  merged.students = students;
  const std::vector<std::string> warnings = LetterWarnings(letter.text, merged.students);
  const std::size_t unknown = UnknownCodes(letter.text).size();
  if (unknown > 0) merged.refusal = Utf8FromCodePage(warnings.front());
  for (std::size_t i = unknown; i < warnings.size(); ++i)
    merged.notes.push_back(Utf8FromCodePage(warnings[i]));
  for (const i16 student : merged.students) {
    MergedLetter one = MergeLetter(letter.text, student);
    if (!one.error.empty() && merged.refusal.empty()) merged.refusal = Utf8FromCodePage(one.error);
    merged.texts.push_back(std::move(one.text));
  }
  return merged;
}

}  // namespace tallyroll
