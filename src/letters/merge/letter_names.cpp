// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/merge/letter_names.h"

#include <filesystem>
#include <set>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr i16 kFirstModeById = 73;
constexpr std::size_t kLongestPart = 60;  // of a file name, in characters

// What some file system refuses within a name stands as "-", and no blank or point ends a part.
std::string FilePart(std::string_view text) {
  constexpr std::string_view kRefused = "/\\:*?\"<>|";
  std::string part(Left(Trim(text), kLongestPart));
  for (char& c : part)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F' || kRefused.find(c) != kRefused.npos)
      c = '-';
  while (!part.empty() && (part.back() == ' ' || part.back() == '.')) part.pop_back();
  return part;
}

class LetterNames {
 public:
  LetterNames(const std::string& chosen, std::string_view extension) : extension_(extension) {
    const std::filesystem::path path(chosen);
    beginning_ = (path.parent_path() / path.stem()).string() + "_";
    stem_ = path.stem().string() + "_";
  }

  void Add(i16 student) {
    const Student& record = Current().Students[static_cast<std::size_t>(student)];
    const std::string id = FilePart(record.id), last = FilePart(record.lastname);
    const bool by_id = NameMode >= kFirstModeById;
    std::string part = by_id ? id : last;
    if (part.empty()) part = by_id ? last : id;
    const std::string wanted = part;
    if (!IsFree(part) && !id.empty() && part != id) part += "_" + id;
    part = Numbered(part);
    taken_.insert(UpperCase(part));
    names.letters.push_back({student, beginning_ + Utf8FromCodePage(part) + extension_});
    if (part != wanted)
      names.notices.push_back("There are two letters for " + std::string(Trim(record.lastname)) +
                              ": that of " + PlainName(record) + " is " +
                              PathForDisplay(stem_ + Utf8FromCodePage(part) + extension_));
  }

  StudentLetterNames names;

 private:
  bool IsFree(const std::string& part) const {
    return !part.empty() && !taken_.contains(UpperCase(part));
  }

  std::string Numbered(const std::string& part) const {
    if (IsFree(part)) return part;
    for (int number = 2;; ++number) {
      std::string numbered = part + (part.empty() ? "" : "_") + PlainNumberText(number);
      if (IsFree(numbered)) return numbered;
    }
  }

  std::string beginning_, stem_, extension_;  // bytes of the file system
  std::set<std::string> taken_;               // parts in capitals: some file systems know no case
};

bool IsRichName(const std::string& chosen) {
  return UpperCase(std::filesystem::path(chosen).extension().string()) == ".RTF";
}

}  // namespace

StudentLetterNames NamesOfStudentLetters(const std::string& chosen,
                                         const std::vector<i16>& students) {
  return NamesOfStudentLetters(chosen, IsRichName(chosen) ? ".RTF" : ".TXT", students);
}

StudentLetterNames NamesOfStudentLetters(const std::string& chosen, std::string_view extension,
                                         const std::vector<i16>& students) {
  LetterNames names(chosen, extension);
  for (const i16 student : students) names.Add(student);
  return names.names;
}

}  // namespace tallyroll
