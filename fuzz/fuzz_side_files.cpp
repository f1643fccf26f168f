// SPDX-License-Identifier: GPL-3.0-or-later
// The side files of earlier versions.
#include "fuzz/fuzzing.h"
#include "store/side_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  const std::string_view bytes = TextOf(data, size);
  Class c;
  Require((ParseLetterFile(bytes, c) == 0) == (size >= 13 * 11));
  Require((ParseRoundFile(bytes, c) == 0) == (size >= 12 * 24));
  return 0;
}
