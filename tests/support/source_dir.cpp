// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/source_dir.h"

namespace tallyroll {

std::string SourceDir() {
  return TALLYROLL_SOURCE_DIR;
}

}  // namespace tallyroll
