// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/program_elsewhere.h"

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "store/safe_file.h"

namespace tallyroll {
namespace {

// The arguments of this process, each ended by a zero byte.
std::vector<char*> ArgumentsIn(std::string& bytes) {
  std::vector<char*> arguments;
  for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\0', at) + 1)
    arguments.push_back(bytes.data() + at);
  arguments.push_back(nullptr);
  return arguments;
}

// Comes back only when there is no such program.
void RunAgainWith(const std::filesystem::path& program) {
  FileContents line = ReadWholeFile("/proc/self/cmdline");
  if (line.error == 0) execv(program.c_str(), ArgumentsIn(line.bytes).data());
}

}  // namespace

void RunElsewhere(const char* program) {
  std::error_code error;
  const std::filesystem::path folder =
      std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  RunAgainWith(folder / program);
  RunAgainWith(folder / TALLYROLL_LIBEXEC / program);
}

}  // namespace tallyroll
