// SPDX-License-Identifier: GPL-3.0-or-later
// A column copied from a spreadsheet, as marks.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

struct PastedMark {
  std::string copied;  // without the blanks around it
  std::string mark;    // what the keys would have made of it; empty leaves a cell as it is
};

// A line each; empty lines at the end do not count. Nothing when there is more than one column.
std::optional<std::vector<PastedMark>> MarksOfColumn(std::string_view clipboard);

// The mark, where a decimal comma is a point, as typing it would have made it.
std::string MarkOfCopied(std::string_view text);

// What is to be shown before it is pasted: why it does not stand as it was copied; empty when it
// does.
std::string DoubtOfPasted(const PastedMark& pasted);

}  // namespace tallyroll
