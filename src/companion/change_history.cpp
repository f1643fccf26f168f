// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/change_history.h"

#include "base/code_page.h"
#include "companion/companion_file.h"

namespace tallyroll {
namespace {

std::string ChangeText(const Statement& row, int column) {
  return CodePageFromUtf8(row.Text(column)).value_or("");
}

}  // namespace

std::string KeepChanges(const std::string& class_path, const std::string& time,
                        const std::vector<NamedChange>& changes) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  Transaction transaction(database);
  for (const NamedChange& change : changes) {
    database.Run(
        "INSERT INTO change (time, student, name, grade, code, field, old, new)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
        {time, Utf8FromCodePage(change.student), Utf8FromCodePage(change.name),
         Utf8FromCodePage(change.grade), Utf8FromCodePage(change.code), change.field,
         Utf8FromCodePage(change.before), Utf8FromCodePage(change.after)});
  }
  transaction.Commit();
  return database.fault();
}

KeptChanges ChangesKept(const std::string& class_path, const ChangeFilter& filter) {
  if (class_path.empty()) return {{}, "the class was not saved yet"};
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return {{}, companion.fault};
  KeptChanges kept;
  const std::string student = Utf8FromCodePage(filter.student);
  const std::string grade = Utf8FromCodePage(filter.grade);
  Statement rows(*companion.database,
                 "SELECT number, time, student, name, grade, code, field, old, new FROM change"
                 " WHERE (?1 = '' OR student = ?1) AND (?2 = '' OR grade = ?2 OR code = ?2)"
                 " AND time >= ?3 AND (?4 = '' OR name = ?4) ORDER BY number DESC",
                 {student, grade, filter.since, Utf8FromCodePage(filter.name)});
  while (rows.Next()) {
    KeptChange each;
    each.number = rows.Number(0);
    each.time = rows.Text(1);
    each.change = {ChangeText(rows, 2), ChangeText(rows, 3), ChangeText(rows, 4),
                   ChangeText(rows, 5), rows.Text(6),        ChangeText(rows, 7),
                   ChangeText(rows, 8)};
    kept.changes.push_back(std::move(each));
  }
  kept.fault = companion.database->fault();
  return kept;
}

bool HistoryAgreed(const std::string& class_path) {
  const Companion companion = OpenCompanion(class_path);
  return companion && companion.database->Number("SELECT count(*) FROM history_agreed") > 0;
}

std::string AgreeToHistory(const std::string& class_path, bool agreed) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Transaction transaction(*companion.database);
  companion.database->Run("DELETE FROM history_agreed");
  if (agreed) companion.database->Run("INSERT INTO history_agreed VALUES (1)");
  transaction.Commit();
  return companion.database->fault();
}

}  // namespace tallyroll
