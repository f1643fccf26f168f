// SPDX-License-Identifier: GPL-3.0-or-later
// Class files of earlier versions, marks "ty7" and "ty5".
#pragma once

#include <string_view>

#include "store/class_format.h"

namespace tallyroll {

// An older class from bytes into the current record. Magic keeps the old mark, so that the first
// save makes a backup; texts of a fixed length lose their padding; what the old formats lack takes
// its fresh value. FileName and SlotState stay. Faults are met as by ParseClass.
ParseOutcome ParseOldClass(std::string_view bytes, Class& out);

// Tells the teacher that the file is being converted.
void ShowConversionNotice();

}  // namespace tallyroll
