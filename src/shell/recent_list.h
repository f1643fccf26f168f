// SPDX-License-Identifier: GPL-3.0-or-later
// The class files opened last, as the menus list them.
#pragma once

#include <string>
#include <string_view>

#include "shell/menu.h"

namespace tallyroll {

// Two paths are held to name one file when they agree without regard to case and outer blanks.
bool SameFile(std::string_view a, std::string_view b);

// The file's name alone, and the folder it lies in.
std::string FileNameOf(std::string_view path);
std::string FolderOf(std::string_view path);

// Puts a path in front of RecentFiles; the oldest falls out if it was not among them.
void AddRecentFile(std::string_view path);
void RemoveRecentFile(std::string_view path);

// "&1. /home ... /classes/math.tyr": an entry's text, its path shortened when it is long.
std::string RecentMenuText(int index);

// Writes RecentFiles to the entries mnuFileList0 to 4; a file that is open may be left out.
void ShowRecentFiles(Menu& menu, bool leave_out_open);

}  // namespace tallyroll
