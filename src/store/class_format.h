// SPDX-License-Identifier: GPL-3.0-or-later
// The current class file format: bytes to record and back, without a file and without a screen.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "store/records.h"

namespace tallyroll {

inline constexpr std::size_t kLongestText = 65535;  // bytes of one text in a class file

// How far a class could be read. `error` is 0 or a run-time error number; `consumed` counts the
// bytes read before the fault.
struct ParseOutcome {
  int error = 0;
  std::size_t consumed = 0;
};

// A class of the current format from bytes: the header and the records behind it. Trusts nothing:
// a count is held against the bytes that remain before anything is sized by it. Bytes behind the
// last student are no fault. After a fault what was read whole stays, with counts lowered to it,
// and so does a student cut in the middle whose lastname was already read; without a lastname it
// is dropped. Lists inside the records stay as the file has them: MendClass makes them fit.
ParseOutcome ParseClass(std::string_view bytes, Class& out);

// The two halves of ParseClass, since the password is asked for between them. ParseRecords goes
// on where the header ended, by the counts that the header left in `out`.
ParseOutcome ParseHeader(std::string_view bytes, Class& out);
ParseOutcome ParseRecords(std::string_view bytes, std::size_t from, Class& out);

// The bytes of the current format; Magic is written as it stands. Returns 0, or kErrorOverflow
// for a text longer than kLongestText and for a count that goes beyond its list.
int SerializeClass(const Class& c, std::string& bytes);

}  // namespace tallyroll
