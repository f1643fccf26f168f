// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/database.h"

#include <sqlite3.h>

namespace tallyroll {
namespace {

// Nobody waits longer at the screen for another program that has the file.
constexpr int kMostWait = 20;  // ms

}  // namespace

Database::Database(const std::string& path, Mode mode) {
  const int flags =
      mode == Mode::kRead ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  Note(sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr));
  if (ok()) Note(sqlite3_busy_timeout(handle_, kMostWait));
}

Database::~Database() {
  sqlite3_close_v2(handle_);
}

void Database::Note(int result) {
  if (!ok() || result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
  fault_ = handle_ ? sqlite3_errmsg(handle_) : sqlite3_errstr(result);
}

void Database::Run(const char* commands) {
  if (ok()) Note(sqlite3_exec(handle_, commands, nullptr, nullptr, nullptr));
}

void Database::Run(const char* command, std::initializer_list<std::string_view> values) {
  Statement(*this, command, values).Next();
}

std::int64_t Database::Number(const char* query) {
  Statement statement(*this, query);
  return statement.Next() ? statement.Number(0) : 0;
}

Statement::Statement(Database& database, const char* query,
                     std::initializer_list<std::string_view> values)
    : database_(database) {
  if (!database_.ok()) return;
  database_.Note(sqlite3_prepare_v2(database_.handle_, query, -1, &handle_, nullptr));
  int place = 0;
  for (const std::string_view value : values) {
    if (!database_.ok()) return;
    database_.Note(sqlite3_bind_text64(handle_, ++place, value.data(), value.size(),
                                       SQLITE_TRANSIENT, SQLITE_UTF8));
  }
}

Statement::~Statement() {
  sqlite3_finalize(handle_);
}

bool Statement::Next() {
  if (!database_.ok()) return false;
  const int result = sqlite3_step(handle_);
  database_.Note(result);
  return result == SQLITE_ROW;
}

std::string Statement::Text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
  return text ? std::string(text, length) : std::string();
}

std::int64_t Statement::Number(int column) const {
  return sqlite3_column_int64(handle_, column);
}

void Transaction::Commit() {
  database_.Run("COMMIT");
  done_ = database_.ok();
}

void Database::RollBack() {
  // Whatever went wrong stays told; the way back is taken all the same.
  if (handle_) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
}

}  // namespace tallyroll
