// SPDX-License-Identifier: GPL-3.0-or-later
// One connection to a companion file. The only place that knows the database's library.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace tallyroll {

// Why a call did not work, in words; empty when it did.
using Fault = std::string;

class Statement;

// Text is UTF-8. A call that fails says why once, in fault(), and those after it do nothing.
class Database {
 public:
  // Writing makes the file when it is missing. Reading does with a file, or a folder, that may not
  // be written.
  enum class Mode { kRead, kWrite };
  Database(const std::string& path, Mode mode);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  const Fault& fault() const { return fault_; }
  bool ok() const { return fault_.empty(); }

  // Runs commands that give nothing back.
  void Run(const char* commands);
  // Runs one with values for its question marks.
  void Run(const char* command, std::initializer_list<std::string_view> values);
  // The same with bytes, which are no text, for the last question mark.
  void RunWithBytes(const char* command, std::initializer_list<std::string_view> values,
                    std::string_view bytes);
  // The first value of the first row; 0 without one.
  std::int64_t Number(const char* query);

 private:
  friend class Statement;
  friend class Transaction;
  void Open(const std::string& name, int flags);
  void Note(int result);
  void RollBack();

  sqlite3* handle_ = nullptr;
  Fault fault_;
};

// The rows of a query.
class Statement {
 public:
  Statement(Database& database, const char* query,
            std::initializer_list<std::string_view> values = {});
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // The next row; false behind the last one and after a fault.
  bool Next();
  std::string Text(int column) const;
  std::string Bytes(int column) const;
  std::int64_t Number(int column) const;

 private:
  friend class Database;
  Database& database_;
  sqlite3_stmt* handle_ = nullptr;
};

// Everything inside happens or nothing does; without Commit it is nothing.
class Transaction {
 public:
  explicit Transaction(Database& database) : database_(database) {
    database_.Run("BEGIN IMMEDIATE");
  }
  ~Transaction() {
    if (!done_) database_.RollBack();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void Commit();

 private:
  Database& database_;
  bool done_ = false;
};

}  // namespace tallyroll
