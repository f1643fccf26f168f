// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text_import.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/sort_students.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLinesInBox = 10;
constexpr int kDraws = 100;  // after that the numbers behind those that can be drawn serve
constexpr int kBeyondDraws = 1529;

using Ids = std::unordered_set<std::string>;

Ids IdsOf(const Class& c) {
  Ids ids;
  for (int i = 1; i <= c.NumStudents; ++i)
    ids.emplace(Trim(c.Students[static_cast<std::size_t>(i)].id));
  return ids;
}

int DrawNumber() {
  const double r1 = Platform().Random();
  const double r2 = Platform().Random();
  const double r3 = Platform().Random();
  const double r4 = Platform().Random();
  return static_cast<int>(r2 * 32) + static_cast<int>(r1 * 100) + static_cast<int>(r3 * 500) +
         static_cast<int>(r4 * 900);
}

std::string MakeUniqueId(const Ids& taken) {
  for (int i = 0; i < kDraws; ++i) {
    std::string id = PlainNumberText(DrawNumber());
    if (!taken.contains(id)) return id;
  }
  // A full roster without ids leaves hardly a number that can be drawn.
  int number = kBeyondDraws + static_cast<int>(taken.size());
  while (taken.contains(PlainNumberText(number))) ++number;
  return PlainNumberText(number);
}

void RaiseTo(i16& width, const std::string& name) {
  constexpr std::size_t kWidest = std::numeric_limits<i16>::max();
  width = std::max(width, static_cast<i16>(std::min(name.size(), kWidest)));
}

void AddStudent(Student& imported, bool numbered, Ids& ids) {
  Class& c = Current();
  if (c.NumStudents == std::numeric_limits<i16>::max()) throw RunTimeError{kErrorOverflow};
  const bool clash = ids.contains(std::string(Trim(imported.id)));
  if (clash || !numbered) imported.id = MakeUniqueId(ids);
  ids.emplace(Trim(imported.id));
  RaiseTo(c.LastNameWidth, imported.lastname);
  RaiseTo(c.FirstNameWidth, imported.firstname);
  ++c.NumStudents;
  ReDimPreserve(c.Students, c.NumStudents);
  c.Students.back() = std::move(imported);
  AddStudentDefaults();
}

std::string LackingBox(const std::vector<std::string>& lacking) {
  std::string text =
      "A class file cannot hold these values. They will be left empty, and you can enter them in "
      "another spelling afterwards.\n";
  for (std::size_t i = 0; i < std::min(lacking.size(), kLinesInBox); ++i) text += "\n" + lacking[i];
  if (lacking.size() > kLinesInBox)
    text += "\n... and " +
            PlainNumberText(static_cast<std::int64_t>(lacking.size() - kLinesInBox)) + " more";
  return text + "\n\nContinue?";
}

}  // namespace

std::string MakeUniqueId(const Class& c) {
  return MakeUniqueId(IdsOf(c));
}

int AddStudents(TextRoster& roster) {
  Class& c = Current();
  int error = 0;
  try {
    Ids ids = IdsOf(c);
    for (Student& student : roster.students) AddStudent(student, roster.numbered, ids);
  } catch (const RunTimeError& fault) {
    error = fault.number;
  }
  c.Changed = kTrue;
  SortStudents();
  return error;
}

bool ReadImportFile(TextRoster& roster) {
  const FileContents file = ReadWholeFile(ImportFile, kLargestTextFile);
  if (file.error != 0) {
    ShowTextFileError(file.error);
    return false;
  }
  roster = ReadRosterText(file.bytes, TextMode, ImportColumns);
  if (!roster.refusal.empty()) {
    ShowMessage(PathForDisplay(ImportFile) + " " + roster.refusal + ".", BoxIcon::kCritical);
    return false;
  }
  return AcceptsLacking(roster.lacking);
}

bool AcceptsLacking(const std::vector<std::string>& lacking) {
  return lacking.empty() ||
         Ask(LackingBox(lacking), BoxButtons::kYesNo, BoxIcon::kExclamation) == BoxAnswer::kYes;
}

void AddImportedStudents(TextRoster& roster) {
  if (const int error = AddStudents(roster)) ShowTextFileError(error);
}

void ShowTextFileError(int error) {
  ShowMessage("File Error " + PlainNumberText(error));
}

}  // namespace tallyroll
