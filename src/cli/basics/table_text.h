// SPDX-License-Identifier: GPL-3.0-or-later
// Tables for a terminal. Cells are in the code page, so that one byte is one column of the screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// A row holds a cell for each column; row 0 is the heading.
using Table = std::vector<std::vector<std::string>>;

// Text of a class on one line of a terminal: no control character reaches it.
std::string CellText(std::string_view text);

// The leading cells of the heading, and those of student i, as NameMode asks.
std::vector<std::string> NameHeading();
std::vector<std::string> NameCells(const Class& c, int i);

// Description, teacher and school with an empty line behind; nothing when there are none.
std::string ClassHeading(const Class& c);

std::string AlignedText(const Table& table);

}  // namespace tallyroll
