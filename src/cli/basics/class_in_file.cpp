// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/class_in_file.h"

#include <filesystem>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/command_options.h"
#include "cli/basics/command_result.h"
#include "cli/basics/date_order.h"
#include "shell/opened_class.h"
#include "store/class_backup.h"
#include "store/class_format.h"
#include "store/older_class_file.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr const char* kUnknownFormat = "This file is NOT in a recognized Tallyroll format";

std::string_view ErrorInWords(int error) {
  switch (error) {
    case kErrorOverflow:
      return "a number or a text is too large";
    case kErrorFileNotFound:
      return "there is no such file";
    case kErrorDevice:
      return "the file contradicts itself";
    case kErrorDiskFull:
      return "the disk is full";
    case kErrorPastEnd:
      return "the file ends too early";
    case kErrorPermission:
      return "permission denied";
    case kErrorPathAccess:
      return "the path cannot be used";
    case kErrorPathNotFound:
      return "there is no such folder";
    default:
      return {};
  }
}

bool IsOlderMark(std::string_view mark) {
  return mark == "ty7" || mark == "ty5";
}

}  // namespace

std::string FileErrorText(int error) {
  const std::string_view words = ErrorInWords(error);
  std::string text = "File Error: " + PlainNumberText(error);
  if (!words.empty()) text += " (" + std::string(words) + ")";
  return text;
}

std::string ParseClassFile(const std::string& path, Class& c) {
  const FileContents file = ReadWholeFile(path);
  if (file.error != 0) return FileErrorText(file.error);
  const std::string_view mark = std::string_view(file.bytes).substr(0, 3);
  if (mark != "ty8" && !IsOlderMark(mark)) return kUnknownFormat;
  const ParseOutcome outcome =
      mark == "ty8" ? ParseClass(file.bytes, c) : ParseOldClass(file.bytes, c);
  return outcome.error == 0 ? "" : FileErrorText(outcome.error);
}

void AddOpenOptions(Command& command, OpenOptions& options) {
  command.AddOption("--password", options.password, "the password of the file");
  command
      .AddOption("--date-order", options.date_order,
                 "how the dates in the file are read (otherwise as the system's locale has them)")
      .OneOf({"mdy", "dmy", "ymd"});
}

void AddNameMode(Command& command, i16& name_mode) {
  command
      .AddOption("--name-mode", name_mode,
                 "by name: 68 with the ID, 57 without; by ID: 82 with the name, 73 without")
      .OneOf({68, 57, 82, 73});
}

std::string OpenClassFile(const std::string& path, const OpenOptions& options) {
  CommandLineSurroundings surroundings(options.password, DateOrderOfOption(options.date_order));
  CurrentClass = 1;
  const bool opened = OpenClass(path);
  if (!surroundings.Refusal().empty()) return surroundings.Refusal();
  return opened ? "" : "cannot be opened";
}

void AddForce(Command& command, bool& force) {
  command.AddFlag("--force", force,
                  "replace a file that is there already; the old one is kept as a backup");
}

std::string WriteClassTo(const std::string& path, const Class& c, bool force) {
  std::error_code ignored;  // what cannot be looked at cannot be written, and the writer says so
  const bool there = std::filesystem::is_regular_file(path, ignored);
  if (there && !force) return "exists already (--force replaces it and keeps a backup)";
  std::string bytes;
  Backup backup;
  int error = SerializeClass(c, bytes);
  if (error == 0 && there) error = BackUpReplacedFile(path, backup);
  if (error == 0) error = ReplaceFile(path, bytes, OldTail::kDrop);
  if (error != 0) TakeBack(backup);
  return error == 0 ? "" : FileErrorText(error);
}

std::string WhyNotOver(const std::string& path) {
  const FileContents there = ReadWholeFile(path);
  const bool holds_class = there.bytes.starts_with("ty8") || IsOlderMark(there.bytes.substr(0, 3));
  return holds_class ? "is a class file, which is left as it is" : "";
}

std::string WriteFileTo(const std::string& path, std::string_view bytes) {
  std::string reason = WhyNotOver(path);
  if (!reason.empty()) return reason;
  const int error = ReplaceFile(path, bytes, OldTail::kDrop);
  return error == 0 ? "" : FileErrorText(error);
}

bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code ignored;  // a path without a file is the same as no other
  return a == b || std::filesystem::equivalent(a, b, ignored);
}

bool IsOlderFormat(const Class& c) {
  return IsOlderMark(c.Magic.view());
}

}  // namespace tallyroll
