// SPDX-License-Identifier: GPL-3.0-or-later
// Marks that may be slips, told while they are typed. Every text has a value: none is refused.
#pragma once

#include <string>
#include <string_view>

#include "grades/mark_notes.h"

namespace tallyroll {

// "B+ counts as 88 of 20": why what was typed may not be meant so; empty when nothing speaks
// against it. A maximum of 0 is none yet.
std::string DoubtOfMark(std::string_view mark, double maximum);

// NoteOfMark for a grid in which marks are typed: what has a doubt is underlined.
CellNote NoteOfTypedMark(std::string_view mark, const MarkBounds& bounds);

}  // namespace tallyroll
