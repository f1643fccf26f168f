// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/foreign_ids.h"

#include "base/code_page.h"
#include "companion/companion_file.h"

namespace tallyroll {
namespace {

std::string ForeignIdFromFile(const std::string& text) {
  return CodePageFromUtf8(text).value_or("");
}

}  // namespace

KeptForeignIds ForeignIds(const std::string& class_path, const std::string& system) {
  if (class_path.empty()) return {{}, "the class was not saved yet"};
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return {{}, companion.fault};
  KeptForeignIds kept;
  Statement rows(*companion.database,
                 "SELECT kind, own, foreign_id FROM foreign_id WHERE system = ? ORDER BY kind, own",
                 {system});
  while (rows.Next())
    kept.ids.push_back({ForeignIdFromFile(rows.Text(0)), ForeignIdFromFile(rows.Text(1)),
                        ForeignIdFromFile(rows.Text(2))});
  kept.fault = companion.database->fault();
  return kept;
}

std::string KeepForeignIds(const std::string& class_path, const std::string& system,
                           const std::vector<ForeignId>& ids) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  Transaction transaction(database);
  for (const ForeignId& id : ids)
    database.Run(
        "INSERT OR REPLACE INTO foreign_id (system, kind, own, foreign_id)"
        " VALUES (?, ?, ?, ?)",
        {system, Utf8FromCodePage(id.kind), Utf8FromCodePage(id.own),
         Utf8FromCodePage(id.foreign)});
  transaction.Commit();
  return database.fault();
}

}  // namespace tallyroll
