// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/database.h"

#include <sqlite3.h>

#include <filesystem>
#include <utility>

namespace tallyroll {
namespace {

// Nobody waits longer at the screen for another program that has the file.
constexpr int kMostWait = 20;  // ms

// What the teacher can do something about is said in the teacher's words.
Fault WordsFor(int result, sqlite3* handle) {
  switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "another program is using it";
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return "it is write-protected, or its folder is";
    case SQLITE_FULL:
      return "the disk is full";
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return "it is damaged";
    case SQLITE_CANTOPEN:
      return "it cannot be opened";
    default:
      return handle ? sqlite3_errmsg(handle) : sqlite3_errstr(result);
  }
}

// The name of a file that nobody changes while it is read: nothing is written beside it.
std::string NameToReadAlone(const std::string& path) {
  std::string name = "file:";
  for (const char c : path) {
    if (c == '%' || c == '?' || c == '#') {
      const auto byte = static_cast<unsigned char>(c);
      name += '%';
      name += "0123456789ABCDEF"[byte >> 4U];
      name += "0123456789ABCDEF"[byte & 15U];
    } else {
      name += c;
    }
  }
  return name + "?immutable=1";
}

// What another program wrote and has not yet brought into the file itself.
bool HasOpenJournal(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path + "-wal", error);
  return !error && size > 0;
}

// The library finds out at the first look that it may not keep its notes beside the file.
bool CanRead(sqlite3* handle) {
  const int result =
      sqlite3_exec(handle, "SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr);
  return result != SQLITE_CANTOPEN && result != SQLITE_READONLY;
}

}  // namespace

Database::Database(const std::string& path, Mode mode) {
  Open(path,
       mode == Mode::kRead ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  if (mode == Mode::kWrite || !ok() || CanRead(handle_) || HasOpenJournal(path)) return;
  sqlite3_close_v2(std::exchange(handle_, nullptr));
  Open(NameToReadAlone(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

void Database::Open(const std::string& name, int flags) {
  Note(sqlite3_open_v2(name.c_str(), &handle_, flags, nullptr));
  if (ok()) Note(sqlite3_busy_timeout(handle_, kMostWait));
}

Database::~Database() {
  sqlite3_close_v2(handle_);
}

void Database::Note(int result) {
  if (!ok() || result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
  fault_ = WordsFor(result, handle_);
}

void Database::Run(const char* commands) {
  if (ok()) Note(sqlite3_exec(handle_, commands, nullptr, nullptr, nullptr));
}

void Database::Run(const char* command, std::initializer_list<std::string_view> values) {
  Statement(*this, command, values).Next();
}

void Database::RunWithBytes(const char* command, std::initializer_list<std::string_view> values,
                            std::string_view bytes) {
  Statement statement(*this, command, values);
  if (!ok()) return;
  const int place = static_cast<int>(values.size()) + 1;
  Note(sqlite3_bind_blob64(statement.handle_, place, bytes.data(), bytes.size(), SQLITE_STATIC));
  statement.Next();
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

std::string Statement::Bytes(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_, column));
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
  return bytes ? std::string(bytes, length) : std::string();
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
