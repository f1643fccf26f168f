// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/companion_file.h"

#include <filesystem>
#include <iterator>

#include "base/number_text.h"
#include "companion/mail_journal_layout.h"

namespace tallyroll {
namespace {

// Each step leads from the layout of its place to the next one; steps are added, never changed.
constexpr const char* kSteps[] = {
    // Wishes for seats, by the IDs of students.
    "CREATE TABLE seat_wish (place INTEGER PRIMARY KEY, kind TEXT NOT NULL,"
    " student TEXT NOT NULL, other TEXT NOT NULL)",
    kMailJournalTable,
};
constexpr auto kLayout = static_cast<std::int64_t>(std::size(kSteps));

constexpr const char* kOfNewerProgram = "it was written by a newer version of this program";
constexpr const char* kDamaged = "it is damaged";

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

Companion Open(const std::string& path, Database::Mode mode) {
  auto database = std::make_unique<Database>(path, mode);
  database->Run("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL");
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

}  // namespace

std::string CompanionPath(const std::string& class_path) {
  return std::filesystem::path(class_path).replace_extension(".tyx").string();
}

Companion OpenCompanion(const std::string& class_path) {
  std::error_code error;
  if (class_path.empty() || !std::filesystem::exists(CompanionPath(class_path), error)) return {};
  return Open(CompanionPath(class_path), Database::Mode::kRead);
}

Companion MakeCompanion(const std::string& class_path) {
  if (class_path.empty()) return {nullptr, "the class was not saved yet"};
  return Open(CompanionPath(class_path), Database::Mode::kWrite);
}

}  // namespace tallyroll
