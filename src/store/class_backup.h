// SPDX-License-Identifier: GPL-3.0-or-later
// What a save keeps of the file that it goes over.
#pragma once

#include <string>

#include "store/records.h"

namespace tallyroll {

// The path with its last three characters replaced, whatever they are.
std::string BackupName(const std::string& path, std::string_view ending);

struct Backup {
  bool stands = false;   // the file is kept under another name
  std::string made_now;  // that name, if this call made it: a save that fails takes it back
};

// Before a file is replaced by another class: keeps it as ".old", or where that is taken as ".ol6"
// to ".ol9" or ".o10" to ".o99". Returns 0, or the error number for which it must not be replaced.
int BackUpReplacedFile(const std::string& path, Backup& backup);

// Before the first save of a converted class, or of a new class over some file: keeps the file as
// ".old", or ".ol6" with a word to the teacher when there is an ".old" already. When that name is
// taken too, nothing is kept and nothing said.
Backup BackUpConvertedFile(const std::string& path);
void TakeBack(const Backup& backup);

// Before the first save of a class that could not be read whole: keeps the file as ".bad", ".ba2"
// to ".ba9". Returns 0 and the name, or the error number for which the save must not go on.
// `backup` tells whether this call made it.
int BackUpUnreadFile(const std::string& path, std::string& kept, Backup& backup);

}  // namespace tallyroll
