// SPDX-License-Identifier: GPL-3.0-or-later
// The folder in which class files are looked for first.
#pragma once

#include <string>

namespace tallyroll {

// Where the sample class lies for a teacher to try everything with.
std::string SamplePath();

// On a first run: makes DataFolder below the user's profile, copies the sample class there, and
// keeps the folder in the settings. Where none can be made the program's own folder serves.
void MakeDataFolder();

// Makes DataFolder the working directory; one that was away and is back is DataFolder again. While
// it cannot be reached, the program's folder takes its place. False after a box that told so.
bool EnterDataFolder();

}  // namespace tallyroll
