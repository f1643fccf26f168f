// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <CLI/CLI.hpp>

namespace tallyroll {

int RunCommandLine(int argc, char** argv) {
  CLI::App app("Tallyroll without a screen");
  app.set_version_flag("--version", TALLYROLL_VERSION);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e) == 0 ? 0 : 2;
  }
  return 0;
}

}  // namespace tallyroll
