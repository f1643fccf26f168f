// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/working_copy.h"

#include <utility>

#include "companion/behind.h"
#include "companion/class_mark.h"
#include "companion/companion_file.h"
#include "companion/save_time.h"
#include "companion/squeeze.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

std::string WriteCopy(const std::string& class_path, const ClassMark& mark, const std::string& time,
                      const std::string& bytes) {
  const Companion companion = MakeCompanionBehind(class_path, mark);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  const std::string small = Squeezed(bytes);
  Transaction transaction(database);
  database.Run("DELETE FROM working_copy");
  database.RunWithBytes("INSERT INTO working_copy (time, file, bytes) VALUES (?, ?, ?)",
                        {time, mark.file}, small);
  transaction.Commit();
  return database.fault();
}

}  // namespace

void KeepWorkingCopy(const std::string& class_path, const std::string& time, std::string bytes) {
  RunBehind(class_path, [class_path, mark = MarkOf(class_path), time, bytes = std::move(bytes)] {
    return WriteCopy(class_path, mark, time, bytes);
  });
}

WorkingCopy WorkingCopyOf(const std::string& class_path) {
  WorkingCopy copy;
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return copy;
  Statement row(*companion.database, "SELECT time, file, bytes FROM working_copy");
  if (!row.Next()) return copy;
  Unsqueezed kept = Unsqueeze(row.Bytes(2));
  if (!kept.fault.empty()) return copy;
  copy.time = row.Text(0);
  copy.bytes = std::move(kept.bytes);
  // The file is still the one that was worked on, or it was written before the copy was.
  copy.newer = row.Text(1) == MarkOf(class_path).file ||
               copy.time > FileTimeText(StampOf(class_path).modified);
  return copy;
}

std::string DropWorkingCopy(const std::string& class_path) {
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  if (database.Number("SELECT count(*) FROM working_copy") > 0)
    database.Run("DELETE FROM working_copy");
  return database.fault();
}

}  // namespace tallyroll
