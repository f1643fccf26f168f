// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "platform/headless.h"
#include "shell/program.h"
#include "store/program_state.h"

namespace tallyroll {

// A class in work without a screen.
struct OpenClass {
  explicit OpenClass(Class made) {
    ResetProgram();
    SetPlatform(&screen);
    CurrentClass = 1;
    Current() = std::move(made);
  }
  ~OpenClass() { SetPlatform(nullptr); }

  HeadlessSurroundings screen;
};

}  // namespace tallyroll
