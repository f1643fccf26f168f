// SPDX-License-Identifier: GPL-3.0-or-later
// The sheets that reports are laid out for. All lengths are twips, 1/1440 inch.
#pragma once

#include <QPageSize>

namespace tallyroll {

// Upright. The printable part lies in the middle of the sheet.
struct Sheet {
  double width = 0;
  double height = 0;
  double printable_width = 0;
  double printable_height = 0;

  friend bool operator==(const Sheet&, const Sheet&) = default;
};

// Every place of the sheet can be printed on.
Sheet WholeSheet(const QPageSize& size);
Sheet Turned(const Sheet& sheet);
QPageSize PageSizeOf(const Sheet& sheet);

// What lies in printers where the user lives: Letter or A4.
QPageSize UsualPageSize();

}  // namespace tallyroll
