// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/grid_notes.h"

namespace tallyroll {

class Form1;

// What the grid of a class window tells beside its texts; the window must outlive it.
GridNotes NotesOfClassGrid(const Form1& window);

}  // namespace tallyroll
