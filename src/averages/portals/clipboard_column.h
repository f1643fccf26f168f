// SPDX-License-Identifier: GPL-3.0-or-later
// A column of a grid on the clipboard: weights, points or minimums on their way to another class.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/grid.h"

namespace tallyroll {

// The cells of a column from row 1, each as it is shown.
std::vector<std::string> ColumnOf(const Grid& grid, int col);

// Whether the clipboard holds a column of that format.
bool ClipboardHas(std::string_view format);
// Puts the format's name and the lines on the clipboard, a carriage return after each.
void CopyLines(std::string_view format, const std::vector<std::string>& lines);
// The lines behind the format's name. Without them the teacher is told, and the answer is false.
bool PasteLines(std::string_view format, std::vector<std::string>& lines);

}  // namespace tallyroll
