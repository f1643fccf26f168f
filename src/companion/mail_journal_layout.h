// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tallyroll {

// Messages sent, by the IDs of students. States: 0 waiting, 1 trying, 2 sent, 3 refused.
inline constexpr const char* kMailJournalTable =
    "CREATE TABLE mail (place INTEGER PRIMARY KEY, run INTEGER NOT NULL, subject TEXT NOT NULL,"
    " student TEXT NOT NULL, name TEXT NOT NULL, address TEXT NOT NULL, attachment TEXT NOT NULL,"
    " state INTEGER NOT NULL, reason TEXT NOT NULL, changed TEXT NOT NULL);"
    "CREATE INDEX mail_subject ON mail (subject, run)";

}  // namespace tallyroll
