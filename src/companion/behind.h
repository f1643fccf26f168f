// SPDX-License-Identifier: GPL-3.0-or-later
// One piece of work that is done behind the teacher's back. It touches nothing of the program's
// state: what it works on is handed to it.
#pragma once

#include <functional>
#include <string>

namespace tallyroll {

// Begins it when the one before is done, for a class file. It answers what went wrong; empty when
// nothing did.
void RunBehind(const std::string& class_path, std::function<std::string()> work);
// Waits until it is done. Everybody who opens a companion file does so first, so that nobody finds
// it locked by this program itself.
void AwaitBehind();
// What the last one answered, once, if it was for that class file.
std::string FaultBehind(const std::string& class_path);

}  // namespace tallyroll
