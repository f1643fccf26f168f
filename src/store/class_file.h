// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving a class file, as the teacher sees it.
#pragma once

#include <array>
#include <string>

#include "store/class_format.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {

// What is known of the file behind a slot: set by reading and writing, forgotten by ResetClassSlot.
struct ClassFile {
  std::string path;          // the file that was read or written last
  FileStamp stamp;           // what it was then
  bool read_failed = false;  // it could not be read whole and was not saved since
};

extern std::array<ClassFile, kClassSlots> ClassFiles;
// That of CurrentClass.
ClassFile& CurrentClassFile();

// Reads FileName into Classes[CurrentClass], with every message. FileName is empty afterwards when
// nothing was opened: the file could not be read at all, its mark is unknown, or the password was
// refused. After a fault inside the file it stays, and so does what was read before the fault,
// made fit to work on. An older file is converted and keeps its Magic; the caller then runs
// RecalculateRangeSummaries, which lies beyond the store.
void ReadClassFile();

// Writes Classes[CurrentClass] to FileName, whole or not at all. On failure the class is Changed,
// FileErrorCode holds the number, and the file is what it was. Clearing Changed after a success
// is left to the caller.
void WriteClassFile();

// "math.tyr saved.": what the status bar tells of a file that was written.
std::string SavedText(std::string_view path);

// Whether a class that is open in the program lies in this file.
bool IsOpenClassFile(const std::string& path);

// "File Error: " and the number; 76 also takes DataFolder back to the program's folder.
void ReportReadError(int error);

}  // namespace tallyroll
