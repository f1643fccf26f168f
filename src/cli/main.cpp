// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

int main(int argc, char** argv) {
  return tallyroll::RunCommandLine(argc, argv);
}
