// SPDX-License-Identifier: GPL-3.0-or-later
// The one way from a class file to a class in work.
#pragma once

#include <string_view>

namespace tallyroll {

// Opens the class file into the slot in work, as every window and every command does it, so that a
// figure never depends on who opened the class. False: nothing was opened, which has been told.
bool OpenClass(std::string_view path);

}  // namespace tallyroll
