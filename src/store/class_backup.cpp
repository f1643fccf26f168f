// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_backup.h"

#include <unistd.h>

#include <cerrno>
#include <vector>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "platform/surroundings.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

bool IsMiddleOfCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Whether the file already stands under that other name too. A file that bears the name itself
// has no backup there.
bool IsKeptUnder(const std::string& path, const std::string& name) {
  const FileStamp stamp = StampOf(path);
  return stamp.size >= 0 && stamp == StampOf(name) && CanonicalPath(path) != CanonicalPath(name);
}

// Keeps the file under the first of these names that is free. `kept` is the name under which it
// stands, `backup` tells whether this call made it.
int KeepUnderFirstFree(const std::string& path, const std::vector<std::string>& endings,
                       std::string& kept, Backup& backup) {
  int error = EEXIST;
  for (const std::string& ending : endings) {
    kept = BackupName(path, ending);
    if (IsKeptUnder(path, kept)) return 0;
    error = KeepUnderName(path, kept);
    if (error != EEXIST) break;
  }
  if (error == EEXIST) return kErrorPathAccess;
  if (error == 0) backup = {true, kept};
  return error == 0 ? 0 : RunTimeErrorOf(error);
}

}  // namespace

std::string BackupName(const std::string& path, std::string_view ending) {
  std::size_t end = path.size();
  for (int characters = 0; characters < 3 && end > 0; ++characters) {
    --end;
    while (end > 0 && IsMiddleOfCharacter(path[end])) --end;
  }
  return path.substr(0, end).append(ending);
}

Backup BackUpConvertedFile(const std::string& path) {
  const std::string first = BackupName(path, "old");
  std::string backup = first;
  // A save that was killed between backup and writing has already done this.
  if (IsKeptUnder(path, first)) return {true, {}};
  if (PathExists(first)) {
    backup = BackupName(path, "ol6");
    ShowMessage("A file with the name " + PathForDisplay(first) +
                " exists. The backup of the pre-converted file will therefore be saved as " +
                PathForDisplay(backup));
  }
  if (KeepUnderName(path, backup) != 0) return {};
  return {true, backup};
}

void TakeBack(const Backup& backup) {
  if (!backup.made_now.empty()) ::unlink(backup.made_now.c_str());
}

int BackUpUnreadFile(const std::string& path, std::string& kept, Backup& backup) {
  return KeepUnderFirstFree(path, {"bad", "ba2", "ba3", "ba4", "ba5", "ba6", "ba7", "ba8", "ba9"},
                            kept, backup);
}

int BackUpReplacedFile(const std::string& path, Backup& backup) {
  std::vector<std::string> endings = {"old", "ol6", "ol7", "ol8", "ol9"};
  for (int i = 10; i <= 99; ++i) endings.push_back("o" + PlainNumberText(i));
  std::string kept;
  return KeepUnderFirstFree(path, endings, kept, backup);
}

}  // namespace tallyroll
