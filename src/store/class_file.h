// SPDX-License-Identifier: GPL-3.0-or-later
// Class files: bytes to record and back, and the two routines that open and save.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "store/records.h"

namespace tallyroll {

inline constexpr std::size_t kLongestText = 65535;  // bytes of one text in a class file

// How far a class could be read. `error` is 0 or a run-time error number; what stood before the
// fault is in the class, with counts that fit its lists. `consumed` counts the bytes read.
struct ParseOutcome {
  int error = 0;
  std::size_t consumed = 0;
};

// The current format from bytes. Trusts nothing: counts are held against the bytes that remain.
ParseOutcome ParseClass(std::string_view bytes, Class& out);
// The header alone: what is known before the password was given.
ParseOutcome ParseHeader(std::string_view bytes, Class& out);

// The bytes of the current format. Magic is written as it stands. Throws nothing; a text longer
// than kLongestText or a list beyond its count's range is an overflow: returns its error number.
int SerializeClass(const Class& c, std::string& bytes);

// Reads FileName into Classes[CurrentClass] as the teacher opens it, with every message. On a
// refusal FileName is empty; after a fault in the file it stays, and so does what was read.
void ReadClassFile();
// Writes Classes[CurrentClass] to FileName, whole or not at all. On failure the class stays
// Changed and FileErrorCode holds the number.
void WriteClassFile();

}  // namespace tallyroll
