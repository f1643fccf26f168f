// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/records.h"

namespace tallyroll {

// A class of that size with names, contact data and marks as a real one has them.
Class BigClass(int students, int grades, int days);

}  // namespace tallyroll
