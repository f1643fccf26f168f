// SPDX-License-Identifier: GPL-3.0-or-later
// JSON to a class: what `build` accepts.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// Fills Classes[CurrentClass] from a JSON text. A missing field takes the value of a new class or
// record, a missing count the length of its list. Returns nothing when all went well, otherwise
// the path of the value at fault and the reason: "Students[3].Marks has 4 items, ...".
std::string ReadClassFromJson(std::string_view text);

}  // namespace tallyroll
