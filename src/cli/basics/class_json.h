// SPDX-License-Identifier: GPL-3.0-or-later
// A class as JSON: the contract of the command line's `dump` and `build`.
#pragma once

#include "cli/basics/json_text.h"
#include "store/records.h"

namespace tallyroll {

// The header's fields in file order, then the four top-level lists.
Json ClassToJson(const Class& c);

// Adds what is rebuilt at opening and never in the file: Method, Weights and their like.
void AddDerivedFields(const Class& c, Json& json);

}  // namespace tallyroll
