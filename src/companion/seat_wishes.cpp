// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/seat_wishes.h"

#include "base/code_page.h"
#include "companion/companion_file.h"

namespace tallyroll {
namespace {

std::string FromFile(const std::string& text) {
  return CodePageFromUtf8(text).value_or("");
}

}  // namespace

KeptSeatWishes SeatWishes(const std::string& class_path) {
  if (class_path.empty()) return {{}, "the class was not saved yet"};
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return {{}, companion.fault};
  KeptSeatWishes kept;
  Statement rows(*companion.database, "SELECT kind, student, other FROM seat_wish ORDER BY place");
  while (rows.Next())
    kept.wishes.push_back({FromFile(rows.Text(0)), FromFile(rows.Text(1)), FromFile(rows.Text(2))});
  kept.fault = companion.database->fault();
  return kept;
}

std::string KeepSeatWishes(const std::string& class_path, const std::vector<SeatWish>& wishes) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  Transaction transaction(database);
  database.Run("DELETE FROM seat_wish");
  for (const SeatWish& wish : wishes) {
    database.Run("INSERT INTO seat_wish (kind, student, other) VALUES (?, ?, ?)",
                 {Utf8FromCodePage(wish.kind), Utf8FromCodePage(wish.student),
                  Utf8FromCodePage(wish.other)});
  }
  transaction.Commit();
  return database.fault();
}

}  // namespace tallyroll
