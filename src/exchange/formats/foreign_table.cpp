// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/foreign_table.h"

#include "base/number_text.h"

namespace tallyroll {

std::string CellName(int line, int column) {
  if (column == 0) return "line " + PlainNumberText(line);
  std::string letters;
  for (int rest = column; rest > 0; rest = (rest - 1) / 26)
    letters.insert(letters.begin(), static_cast<char>('A' + (rest - 1) % 26));
  return letters + PlainNumberText(line);
}

}  // namespace tallyroll
