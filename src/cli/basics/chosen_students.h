// SPDX-License-Identifier: GPL-3.0-or-later
// The option --student: some of the class, by ID.
#pragma once

#include <string>
#include <vector>

#include "cli/basics/command_options.h"
#include "store/records.h"

namespace tallyroll {

void AddStudents(Command& command, std::vector<std::string>& ids);

// The students of these IDs, each once, all of the class without any. Answers why that cannot be.
std::string TakeStudents(const std::vector<std::string>& ids, std::vector<i16>& students);

}  // namespace tallyroll
