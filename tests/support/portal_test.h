// SPDX-License-Identifier: GPL-3.0-or-later
// A test in a fresh program without a screen, in a folder of its own that goes with it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/headless.h"
#include "shell/program.h"

namespace tallyroll {

class PortalTest : public testing::Test {
 protected:
  PortalTest() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyroll-XXXXXX").string();
    folder = mkdtemp(name.data());
    ResetProgram();
    SetPlatform(&screen);
    screen.profile_folder = folder;
    screen.program_folder = folder;
  }
  ~PortalTest() override {
    for (const std::string& complaint : screen.Complaints()) ADD_FAILURE() << complaint;
    ResetProgram();
    SetPlatform(nullptr);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  std::string Path(std::string_view name) const { return folder + "/" + std::string(name); }

  HeadlessSurroundings screen;
  std::string folder;
};

}  // namespace tallyroll
