// SPDX-License-Identifier: GPL-3.0-or-later
// The students of a class as a text file.
#pragma once

#include <string>

#include "platform/surroundings.h"
#include "store/records.h"

namespace tallyroll {

// What stands in the file; OpenState hands it to frmtxt.
inline constexpr int kExportNames = 451;
inline constexpr int kExportInfo = 441;         // with the supplementary information
inline constexpr int kExportGrades = 541;       // with marks, and titles above them
inline constexpr int kExportGradesPlain = 561;  // with marks alone

struct TextOfClass {
  std::string bytes;
  int changed = 0;         // values that the layout could not carry as they are
  bool cancelled = false;  // by the teacher: the text ends early
};

// Each line ends with CR LF. A value is cut to its column; a mark of the layout or a line end
// inside a value is written as what comes nearest to it.
TextOfClass ExportText(const Class& c, int what, i16 mode, TextEncoding encoding);
// As scripts expect it: comma-separated values in UTF-8, the other layouts in code page 1252.
TextOfClass ExportText(const Class& c, int what, i16 mode);

}  // namespace tallyroll
