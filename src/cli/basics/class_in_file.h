// SPDX-License-Identifier: GPL-3.0-or-later
// How the commands come by a class in a file, and how they write one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/basics/command_options.h"
#include "store/records.h"

namespace tallyroll {

// Each answers nothing when all went well, otherwise the reason for a refusal.

// The class as it stands on disk, an older one in its converted form; no step of opening is taken.
std::string ParseClassFile(const std::string& path, Class& c);

// What opening takes from the command line.
struct OpenOptions {
  std::optional<std::string> password;
  std::string date_order;  // "mdy", "dmy", "ymd"; empty for the order of the system
};

// Adds --password and --date-order to a command that opens a class.
void AddOpenOptions(Command& command, OpenOptions& options);
// Adds --force to a command that writes a class.
void AddForce(Command& command, bool& force);
// How names and IDs are shown and sorted.
void AddNameMode(Command& command, i16& name_mode);

// The class in slot 1 as the program holds it after every step of opening.
std::string OpenClassFile(const std::string& path, const OpenOptions& options);

// Writes a class completely or not at all. A file that is there already is refused, or with
// `force` replaced: the old one then stays as a backup beside it, and nothing of it behind the new.
std::string WriteClassTo(const std::string& path, const Class& c, bool force = false);

// Writes what is no class, such as a text; never over a class file.
std::string WriteFileTo(const std::string& path, std::string_view bytes);
// Why no such file may be written there.
std::string WhyNotOver(const std::string& path);

inline constexpr const char* kNoStudents = "the class has no students";

// "File Error: 53 (there is no such file)".
std::string FileErrorText(int error);

// Whether two paths name one file.
bool IsSameFile(const std::string& a, const std::string& b);

bool IsOlderFormat(const Class& c);

}  // namespace tallyroll
