// SPDX-License-Identifier: GPL-3.0-or-later
// Typing the beginning of a name where names stand in lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// The line that begins with what is typed: the next one from `from` on, and then from the first.
// The columns of a line are parted by tabs; all first columns come before all second ones, and a
// number that stands before a name is passed over. Where no name begins so, an ID before a name
// may, and then any later word: a first name, or the surname behind an ID. Capitals, accents and
// blanks do not matter. -1 when there is none.
int LineThatBegins(std::string_view typed, const std::vector<std::string>& lines, int from);

// The line to go to from the current one, -1 for none yet. A letter more stays where it fits; the
// same letter once more goes on to the next.
int LineToGoTo(std::string_view typed, const std::vector<std::string>& lines, int current);

}  // namespace tallyroll
