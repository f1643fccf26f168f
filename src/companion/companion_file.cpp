// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/companion_file.h"

#include <filesystem>
#include <iterator>

#include "base/number_text.h"
#include "companion/behind.h"
#include "companion/class_mark.h"
#include "companion/mail_journal_layout.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

// Each step leads from the layout of its place to the next one; steps are added, never changed.
constexpr const char* kSteps[] = {
    // Wishes for seats, by the IDs of students.
    "CREATE TABLE seat_wish (place INTEGER PRIMARY KEY, kind TEXT NOT NULL,"
    " student TEXT NOT NULL, other TEXT NOT NULL)",
    // By what the class is known: one row, or none in a companion of the first layout.
    "CREATE TABLE known_class (file TEXT NOT NULL, students TEXT NOT NULL)",
    // The identifiers of other school systems.
    "CREATE TABLE foreign_id (system TEXT NOT NULL, kind TEXT NOT NULL, own TEXT NOT NULL,"
    " foreign_id TEXT NOT NULL, PRIMARY KEY (system, kind, own))",
    // What changed from save to save, and whether the class may keep it in spite of its password.
    "CREATE TABLE change (number INTEGER PRIMARY KEY, time TEXT NOT NULL, student TEXT NOT NULL,"
    " name TEXT NOT NULL, grade TEXT NOT NULL, code TEXT NOT NULL, field TEXT NOT NULL,"
    " old TEXT NOT NULL, new TEXT NOT NULL); CREATE TABLE history_agreed (agreed INTEGER NOT NULL)",
    kMailJournalTable,
    // What other school systems say by single marks.
    "CREATE TABLE mark_comment (system TEXT NOT NULL, student TEXT NOT NULL, grade TEXT NOT NULL,"
    " mark TEXT NOT NULL, comment TEXT NOT NULL, PRIMARY KEY (system, student, grade))",
    // The class at each save, and as it was worked on since; each as a class file has it.
    "CREATE TABLE snapshot (number INTEGER PRIMARY KEY, time TEXT NOT NULL, told TEXT NOT NULL,"
    " bytes BLOB NOT NULL); CREATE TABLE working_copy (time TEXT NOT NULL, file TEXT NOT NULL,"
    " bytes BLOB NOT NULL)",
};
constexpr auto kLayout = static_cast<std::int64_t>(std::size(kSteps));

constexpr const char* kOfNewerProgram = "it was written by a newer version of this program";
constexpr const char* kDamaged = "it is damaged";
constexpr const char* kOfAnotherClass = "it belongs to another class";

bool IsWhole(Database& database) {
  Statement check(database, "PRAGMA quick_check(1)");
  return check.Next() && check.Text(0) == "ok";
}

// The layout is looked at again inside: another program may have made the step meanwhile.
void BringUpToDate(Database& database) {
  Transaction transaction(database);
  for (auto step = database.Number("PRAGMA user_version"); step < kLayout && database.ok();
       ++step) {
    database.Run(kSteps[step]);
    database.Run(("PRAGMA user_version=" + PlainNumberText(step + 1)).c_str());
  }
  transaction.Commit();
}

enum class Knows { kThisClass, kAnother, kNone };

Knows WhomItKnows(Database& database, const ClassMark& mark) {
  Statement row(database, "SELECT file, students FROM known_class");
  if (!row.Next()) return Knows::kNone;
  const ClassMark kept{row.Text(0), row.Text(1)};
  return IsSameClass(kept, mark) ? Knows::kThisClass : Knows::kAnother;
}

// Whole and of today's layout, whichever class it knows.
Companion OpenAny(const std::string& class_path, Database::Mode mode) {
  auto database = std::make_unique<Database>(CompanionPath(class_path), mode);
  if (mode == Database::Mode::kWrite) database->Run("PRAGMA journal_mode=WAL");
  database->Run("PRAGMA synchronous=FULL");
  const bool whole = IsWhole(*database);
  if (!database->ok()) return {nullptr, database->fault()};
  if (!whole) return {nullptr, kDamaged};
  const std::int64_t layout = database->Number("PRAGMA user_version");
  if (layout < 0) return {nullptr, kDamaged};
  if (layout > kLayout) return {nullptr, kOfNewerProgram};
  if (layout < kLayout) BringUpToDate(*database);
  if (!database->ok()) return {nullptr, database->fault()};
  return {std::move(database), {}};
}

Fault NoteMark(Database& database, const ClassMark& mark) {
  Transaction transaction(database);
  database.Run("DELETE FROM known_class");
  database.Run("INSERT INTO known_class (file, students) VALUES (?, ?)",
               {mark.file, mark.students});
  transaction.Commit();
  return database.fault();
}

Companion Open(const std::string& class_path, const ClassMark& mark, Database::Mode mode) {
  Companion companion = OpenAny(class_path, mode);
  if (!companion) return companion;
  const Knows whom = WhomItKnows(*companion.database, mark);
  Fault fault = companion.database->fault();
  if (whom == Knows::kAnother) return {nullptr, kOfAnotherClass, true};
  if (whom == Knows::kNone && mode == Database::Mode::kWrite && fault.empty())
    fault = NoteMark(*companion.database, mark);
  if (!fault.empty()) return {nullptr, std::move(fault)};
  return companion;
}

bool StandsBeside(const std::string& class_path) {
  std::error_code error;
  return !class_path.empty() && std::filesystem::exists(CompanionPath(class_path), error);
}

}  // namespace

std::string CompanionPath(const std::string& class_path) {
  // However a class is reached, by a link or by itself, it has one companion.
  return std::filesystem::path(CanonicalPath(class_path)).replace_extension(".tyx").string();
}

Companion OpenCompanion(const std::string& class_path) {
  AwaitBehind();
  return StandsBeside(class_path) ? Open(class_path, MarkOf(class_path), Database::Mode::kRead)
                                  : Companion{};
}

Companion OpenCompanionOfAnyClass(const std::string& class_path) {
  AwaitBehind();
  return StandsBeside(class_path) ? OpenAny(class_path, Database::Mode::kRead) : Companion{};
}

Companion MakeCompanion(const std::string& class_path) {
  if (class_path.empty()) return {nullptr, "the class was not saved yet"};
  AwaitBehind();
  return Open(class_path, MarkOf(class_path), Database::Mode::kWrite);
}

Companion MakeCompanionBehind(const std::string& class_path, const ClassMark& mark) {
  return Open(class_path, mark, Database::Mode::kWrite);
}

bool KnowsFile(const Companion& companion, const std::string& class_path) {
  Statement row(*companion.database, "SELECT file FROM known_class");
  return row.Next() && row.Text(0) == MarkOf(class_path).file;
}

Fault KnowClass(Companion& companion, const std::string& class_path) {
  return NoteMark(*companion.database, MarkOf(class_path));
}

}  // namespace tallyroll
