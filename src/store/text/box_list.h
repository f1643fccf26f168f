// SPDX-License-Identifier: GPL-3.0-or-later
// Lines below a sentence of a message box, as many as a screen holds.
#pragma once

#include <string>
#include <vector>

namespace tallyroll {

// Each on a line of its own behind a blank one; of many the first and how many more there are.
std::string BoxList(const std::vector<std::string>& lines);

}  // namespace tallyroll
