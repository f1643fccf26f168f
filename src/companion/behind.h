// SPDX-License-Identifier: GPL-3.0-or-later
// Work that is done behind the teacher's back, one piece after the other. It touches nothing of the
// program's state: what it works on is handed to it.
#pragma once

#include <functional>
#include <string>

namespace tallyroll {

// Begins a piece when those before it are done, for a class file; nobody waits for it here. It
// answers what went wrong; empty when nothing did.
void RunBehind(const std::string& class_path, std::function<std::string()> work);
// Waits until all is done. Everybody who opens a companion file does so first, so that nobody finds
// it locked by this program itself.
void AwaitBehind();
// What the last piece that is done for that class file answered, once.
std::string FaultBehind(const std::string& class_path);

}  // namespace tallyroll
