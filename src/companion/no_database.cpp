// SPDX-License-Identifier: GPL-3.0-or-later
// A build without the database's library: nothing is kept beside a class, and says so.
#include "companion/database.h"

namespace tallyroll {

Database::Database(const std::string& /*path*/, Mode /*mode*/)
    : fault_("this version of the program was built without companion files") {}
Database::~Database() = default;
void Database::Run(const char* /*commands*/) {}
void Database::Run(const char* /*command*/, std::initializer_list<std::string_view> /*values*/) {}
void Database::RunWithBytes(const char* /*command*/,
                            std::initializer_list<std::string_view> /*values*/,
                            std::string_view /*bytes*/) {}
std::int64_t Database::Number(const char* /*query*/) {
  return 0;
}
void Database::RollBack() {}

Statement::Statement(Database& database, const char* /*query*/,
                     std::initializer_list<std::string_view> /*values*/)
    : database_(database) {}
Statement::~Statement() = default;
bool Statement::Next() {
  return false;
}
std::string Statement::Text(int /*column*/) const {
  return {};
}
std::string Statement::Bytes(int /*column*/) const {
  return {};
}
std::int64_t Statement::Number(int /*column*/) const {
  return 0;
}

void Transaction::Commit() {}

}  // namespace tallyroll
