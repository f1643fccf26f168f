// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/class_snapshots.h"

#include "base/code_page.h"
#include "base/number_text.h"
#include "companion/companion_file.h"
#include "companion/save_time.h"
#include "companion/squeeze.h"
#include "companion/thinning.h"
#include "store/class_format.h"

namespace tallyroll {
namespace {

constexpr const char* kFirstSnapshot = "The first that is kept";
constexpr const char* kUnreadSnapshot = "The one before it cannot be read";

SnapshotBytes BytesIn(Database& database, std::int64_t number) {
  Statement row(database, "SELECT bytes FROM snapshot WHERE number = ?", {PlainNumberText(number)});
  if (!row.Next())
    return {{}, database.fault().empty() ? "it is not kept any more" : database.fault()};
  Unsqueezed kept = Unsqueeze(row.Bytes(0));
  return {std::move(kept.bytes), std::move(kept.fault)};
}

// What changed between two of them, in words.
std::string WordsBetween(std::string_view before, std::string_view after) {
  Class then, now;
  const bool read = ParseClass(before, then).error == 0 && ParseClass(after, now).error == 0;
  return read ? WordsOfChanges(ChangesBetween(then, now)) : kUnreadSnapshot;
}

// The newest that is kept; 0 without one.
std::int64_t NewestIn(Database& database) {
  return database.Number("SELECT max(number) FROM snapshot");
}

void KeepOne(Database& database, const NewSnapshot& made) {
  const std::int64_t newest = NewestIn(database);
  std::string told = kFirstSnapshot;
  if (newest != 0) {
    const SnapshotBytes before = BytesIn(database, newest);
    if (before.fault.empty() && before.bytes == made.bytes) return;
    told = before.fault.empty() ? WordsBetween(before.bytes, made.bytes) : kUnreadSnapshot;
  }
  database.RunWithBytes("INSERT INTO snapshot (time, told, bytes) VALUES (?, ?, ?)",
                        {made.time, Utf8FromCodePage(told)}, Squeezed(made.bytes));
}

struct Place {
  std::int64_t number = 0;
  bool tell_again = false;  // the one before it is gone
};

// Those that stay, the oldest first.
std::vector<Place> DropOld(Database& database, const std::string& now) {
  std::vector<std::int64_t> numbers;
  std::vector<double> days;
  {
    Statement rows(database, "SELECT number, time FROM snapshot ORDER BY number");
    while (rows.Next()) {
      numbers.push_back(rows.Number(0));
      days.push_back(DayOfSaveTime(rows.Text(1)));
    }
  }
  const std::vector<std::size_t> drop = SnapshotsToDrop(days, DayOfSaveTime(now));
  std::vector<Place> stay;
  std::size_t next = 0;
  bool gap = false;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool dropped = next < drop.size() && drop[next] == i;
    next += dropped ? 1 : 0;
    if (dropped)
      database.Run("DELETE FROM snapshot WHERE number = ?", {PlainNumberText(numbers[i])});
    else
      stay.push_back({numbers[i], gap});
    gap = dropped;
  }
  return stay;
}

void Thin(Database& database, const std::string& now) {
  const std::vector<Place> stay = DropOld(database, now);
  for (std::size_t i = 0; i < stay.size() && database.ok(); ++i) {
    if (!stay[i].tell_again) continue;
    std::string told = kFirstSnapshot;
    if (i > 0) {
      const SnapshotBytes before = BytesIn(database, stay[i - 1].number);
      const SnapshotBytes after = BytesIn(database, stay[i].number);
      const bool read = before.fault.empty() && after.fault.empty();
      told = read ? WordsBetween(before.bytes, after.bytes) : kUnreadSnapshot;
    }
    database.Run("UPDATE snapshot SET told = ? WHERE number = ?",
                 {Utf8FromCodePage(told), PlainNumberText(stay[i].number)});
  }
}

// What a record is called where it is one, and how many there are.
class Counted {
 public:
  void Add(std::string_view name) {
    if (count_++ == 0) first_ = name;
  }
  void Tell(std::string& text, std::string_view one, std::string_view many,
            std::string_view what = {}) const {
    if (count_ == 0) return;
    if (!text.empty()) text += ", ";
    if (count_ == 1)
      text += one.empty() ? first_ : std::string(one);
    else
      text += PlainNumberText(count_) + std::string(many);
    text += what;
  }

 private:
  std::int64_t count_ = 0;
  std::string first_;
};

}  // namespace

std::string WordsOfChanges(const std::vector<NamedChange>& changes) {
  Counted grades_in, grades_out, students_in, students_out, marks, others;
  for (const NamedChange& change : changes) {
    const bool added = change.before.empty();
    if (change.field == kGradeField)
      (added ? grades_in : grades_out).Add(change.grade);
    else if (change.field == kStudentField)
      (added ? students_in : students_out).Add(change.name);
    else if (change.field == kMarkField)
      marks.Add(change.grade);
    else
      others.Add({});
  }
  std::string text;
  grades_in.Tell(text, {}, " grades", " added");
  grades_out.Tell(text, {}, " grades", " deleted");
  students_in.Tell(text, {}, " students", " added");
  students_out.Tell(text, {}, " students", " deleted");
  marks.Tell(text, "1 mark", " marks");
  others.Tell(text, "1 other entry", " other entries");
  // Attendance, seats and the order of grades are told by no name.
  return text.empty() ? "Attendance, seats or the order of records" : text;
}

std::string KeepSnapshots(const std::string& class_path, const std::vector<NewSnapshot>& made) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  Transaction transaction(database);
  for (const NewSnapshot& each : made) KeepOne(database, each);
  if (!made.empty()) Thin(database, made.back().time);
  transaction.Commit();
  return database.fault();
}

KeptSnapshots SnapshotsOf(const std::string& class_path) {
  if (class_path.empty()) return {{}, "the class was not saved yet"};
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return {{}, companion.fault};
  KeptSnapshots kept;
  Statement rows(*companion.database,
                 "SELECT number, time, told FROM snapshot ORDER BY number DESC");
  while (rows.Next())
    kept.snapshots.push_back(
        {rows.Number(0), rows.Text(1), CodePageFromUtf8(rows.Text(2)).value_or("")});
  kept.fault = companion.database->fault();
  return kept;
}

SnapshotBytes BytesOfSnapshot(const std::string& class_path, std::int64_t number) {
  const Companion companion = OpenCompanion(class_path);
  if (!companion)
    return {{}, companion.fault.empty() ? "it is not kept any more" : companion.fault};
  return BytesIn(*companion.database, number);
}

bool KeepsMarks(const std::string& class_path) {
  const Companion companion = OpenCompanion(class_path);
  return companion && companion.database->Number(
                          "SELECT EXISTS (SELECT 1 FROM change) OR EXISTS (SELECT 1 FROM snapshot)"
                          " OR EXISTS (SELECT 1 FROM working_copy)") != 0;
}

std::string ForgetMarks(const std::string& class_path) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  {
    Transaction transaction(database);
    database.Run("DELETE FROM change; DELETE FROM snapshot; DELETE FROM working_copy");
    transaction.Commit();
  }
  database.Run("VACUUM; PRAGMA wal_checkpoint(TRUNCATE)");
  return database.fault();
}

}  // namespace tallyroll
