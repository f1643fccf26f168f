// SPDX-License-Identifier: GPL-3.0-or-later
// The codes of a form letter, and what a merge puts in their place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct FieldCode {
  std::string_view caption;  // as the list of codes shows and inserts it
  std::string_view code;     // as the merge looks for it, case not mattering
};

// In the order of the list and of the merge; the date is the last of the student's own, and those
// computed from the class stand behind it.
const std::vector<FieldCode>& FieldCodes();

// The value of a code for a student of the class in work, trimmed, in the code page. A figure that
// cannot be computed is empty.
std::string FieldValue(const FieldCode& code, i16 student);

}  // namespace tallyroll
