// SPDX-License-Identifier: GPL-3.0-or-later
// Runs tallyroll-cli in this process, in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"

namespace tallyroll {

struct CliRun {
  int status = 0;
  std::string out;
  std::string err;
};

inline CliRun RunCli(std::vector<std::string> arguments, const std::string& input = {}) {
  arguments.insert(arguments.begin(), "tallyroll-cli");
  std::vector<const char*> argv;
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunCommandLine(static_cast<int>(argv.size()), argv.data(), in, out, err);
  return {status, out.str(), err.str()};
}

class CliTest : public ::testing::Test {
 protected:
  CliTest() {
    std::string pattern = std::filesystem::temp_directory_path() / "tallyroll_cli_XXXXXX";
    folder_ = mkdtemp(pattern.data());
    setenv("LC_ALL", "C", 1);  // month first, whoever runs the tests
  }
  ~CliTest() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& name) const { return folder_ + "/" + name; }

  std::string Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }

  static std::string Get(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  // The class file that a JSON text describes, in the place of an earlier one.
  std::string Build(const std::string& json, const std::string& name = "class.TYR") const {
    std::filesystem::remove(Path(name));
    const CliRun run = RunCli({"build", "-", Path(name)}, json);
    EXPECT_EQ(run.status, 0) << run.err;
    return Path(name);
  }

  // A refusal: status 1, nothing on standard output, and this one line.
  static void ExpectRefused(const CliRun& run, const std::string& line) {
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, line + "\n");
  }

 private:
  std::string folder_;
};

}  // namespace tallyroll
