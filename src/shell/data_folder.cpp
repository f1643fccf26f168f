// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_folder.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr const char* kSample = "/Sample8.TYR";
constexpr const char* kSampleLetters = "/letters";

// A sample that stands there already may hold a teacher's trials and is left alone.
void CopySample() {
  std::error_code ignored;
  std::filesystem::copy_file(ProgramFolder + kSample, DataFolder + kSample,
                             std::filesystem::copy_options::skip_existing, ignored);
  std::filesystem::copy(ProgramFolder + kSampleLetters, DataFolder + kSampleLetters,
                        std::filesystem::copy_options::skip_existing, ignored);
}

}  // namespace

std::string SamplePath() {
  return DataFolder + kSample;
}

void MakeDataFolder() {
  const std::string folder = Platform().ProfileFolder() + "/Tallyroll";
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  DataFolder = failed ? ProgramFolder : folder;
  if (!failed) CopySample();
  RememberedFolder = DataFolder;
  Platform().WriteSetting(kApplicationKey, "startup", "DIRFILE", DataFolder);
}

bool EnterDataFolder() {
  if (!RememberedFolder.empty() && chdir(RememberedFolder.c_str()) == 0) {
    DataFolder = RememberedFolder;
    return true;
  }
  if (chdir(DataFolder.c_str()) == 0) return true;
  const int error = errno == ENOENT ? kErrorPathNotFound : RunTimeErrorOf(errno);
  ShowMessage(
      "File Error: " + PlainNumberText(error) +
          ". The folder of the class files cannot be reached: " + PathForDisplay(DataFolder),
      BoxIcon::kExclamation);
  DataFolder = ProgramFolder;
  return false;
}

}  // namespace tallyroll
