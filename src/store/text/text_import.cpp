// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/text_import.h"

#include <algorithm>
#include <limits>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/sort_students.h"
#include "store/student_names.h"
#include "store/text/box_list.h"
#include "store/text/counted_lines.h"
#include "store/text/taken_ids.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

void RaiseTo(i16& width, const std::string& name) {
  constexpr std::size_t kWidest = std::numeric_limits<i16>::max();
  width = std::max(width, static_cast<i16>(std::min(name.size(), kWidest)));
}

void AddStudent(Student& imported) {
  Class& c = Current();
  RaiseTo(c.LastNameWidth, imported.lastname);
  RaiseTo(c.FirstNameWidth, imported.firstname);
  ++c.NumStudents;
  ReDimPreserve(c.Students, c.NumStudents);
  c.Students.back() = std::move(imported);
  AddStudentDefaults();
}

// What a class is without the students who are being added behind its own.
struct ClassBefore {
  i16 students, last_width, first_width;
};

void TakeBack(const ClassBefore& before) {
  Class& c = Current();
  ReDimPreserve(c.Students, before.students);
  c.NumStudents = before.students;
  c.LastNameWidth = before.last_width;
  c.FirstNameWidth = before.first_width;
}

std::string Count(std::size_t count, std::string_view what) {
  return PlainNumberText(static_cast<std::int64_t>(count)) + " " + std::string(what);
}

}  // namespace

ImportOutcome AddStudents(TextRoster& roster) {
  Class& c = Current();
  ImportOutcome outcome;
  const ClassBefore own{c.NumStudents, c.LastNameWidth, c.FirstNameWidth};
  CountedLines work("Adding the students", roster.students.size());
  TakenIds ids(c);
  for (const Student& student : roster.students) ids.Reserve(student.id);
  for (Student& student : roster.students) {
    if (!work.Next()) {
      TakeBack(own);
      outcome = {};
      outcome.cancelled = true;
      return outcome;
    }
    if (c.NumStudents == std::numeric_limits<i16>::max()) {
      outcome.error = kErrorOverflow;
      break;
    }
    if (!ids.Take(student.id)) {
      const std::string before(Trim(student.id));
      student.id = ids.MakeUniqueId();
      outcome.given.push_back({PlainName(student), before, student.id});
    }
    AddStudent(student);
  }
  c.Changed = kTrue;
  SortStudents();
  return outcome;
}

std::string GivenIdsSentence(const ImportOutcome& outcome) {
  const std::size_t all = outcome.given.size();
  const auto blank = static_cast<std::size_t>(
      std::ranges::count_if(outcome.given, [](const GivenId& g) { return g.before.empty(); }));
  std::string text = "New IDs were given to " + Count(all, all == 1 ? "student: " : "students: ");
  if (all > blank) text += Count(all - blank, "whose ID was taken already");
  if (all > blank && blank > 0) text += ", ";
  if (blank > 0) text += Count(blank, "without an ID");
  return text + ".";
}

std::vector<std::string> GivenIdLines(const ImportOutcome& outcome) {
  std::vector<std::string> lines;
  for (const GivenId& given : outcome.given) {
    lines.push_back(given.name + ": " + given.id);
    if (!given.before.empty()) lines.back() += " instead of " + given.before;
  }
  return lines;
}

void TellGivenIds(const ImportOutcome& outcome) {
  if (outcome.given.empty()) return;
  ShowMessage(GivenIdsSentence(outcome) + BoxList(GivenIdLines(outcome)), BoxIcon::kInformation);
}

bool ReadImportFile(TextRoster& roster) {
  const FileContents file = ReadWholeFile(ImportFile, kLargestTextFile);
  if (file.error != 0) {
    ShowTextFileError(file.error);
    return false;
  }
  const LongWork work("Reading the file", 1);
  roster = ReadRosterText(file.bytes, TextMode, ImportColumns);
  if (work.Cancelled()) return false;
  if (!roster.refusal.empty()) {
    ShowMessage(PathForDisplay(ImportFile) + " " + roster.refusal + ".", BoxIcon::kCritical);
    return false;
  }
  return AcceptsLacking(roster.lacking);
}

bool AcceptsLacking(const std::vector<std::string>& lacking) {
  if (lacking.empty()) return true;
  const std::string box =
      "A class file cannot hold these values. They will be left empty, and you can enter them in "
      "another spelling afterwards." +
      BoxList(lacking) + "\n\nContinue?";
  return Ask(box, BoxButtons::kYesNo, BoxIcon::kExclamation) == BoxAnswer::kYes;
}

ImportOutcome AddImportedStudents(TextRoster& roster) {
  ImportOutcome outcome = AddStudents(roster);
  if (outcome.error != 0) ShowTextFileError(outcome.error);
  return outcome;
}

void ShowTextFileError(int error) {
  ShowMessage("File Error " + PlainNumberText(error));
}

}  // namespace tallyroll
