// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/temp_file.h"

#include <unistd.h>

#include <filesystem>

#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {

std::string TempFilePath() {
  constexpr const char* kTempFile = "/tempfile";
  if (!ProgramFolder.empty() && access(ProgramFolder.c_str(), W_OK) == 0)
    return ProgramFolder + kTempFile;
  const std::string own = Platform().ProfileFolder() + "/Tallyroll";
  std::error_code ignored;
  std::filesystem::create_directories(own, ignored);
  return own + kTempFile;
}

int WriteTempFile(std::string_view text) {
  using std::filesystem::perms;
  const std::string path = TempFilePath();
  // Its rights are set before there is anything in it: a file that is replaced keeps them.
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  const int error = ReplaceFile(path, {}, OldTail::kDrop);
  if (error != 0) return error;
  std::filesystem::permissions(path, perms::owner_read | perms::owner_write, ignored);
  return ReplaceFile(path, text, OldTail::kDrop);
}

}  // namespace tallyroll
