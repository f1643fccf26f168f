// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_folder.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "base/run_time_error.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr const char* kSample = "/Sample8.TYR";

// A sample that stands there already may hold a teacher's trials and is left alone.
void CopySample() {
  std::error_code ignored;
  std::filesystem::copy_file(ProgramFolder + kSample, DataFolder + kSample,
                             std::filesystem::copy_options::skip_existing, ignored);
}

}  // namespace

void MakeDataFolder() {
  const std::string folder = Platform().ProfileFolder() + "/Tallyroll";
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  DataFolder = failed ? ProgramFolder : folder;
  if (!failed) CopySample();
  Platform().WriteSetting(kApplicationKey, "startup", "DIRFILE", DataFolder);
}

int EnterDataFolder() {
  if (chdir(DataFolder.c_str()) == 0) return 0;
  return errno == ENOENT ? kErrorPathNotFound : RunTimeErrorOf(errno);
}

}  // namespace tallyroll
