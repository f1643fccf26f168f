// SPDX-License-Identifier: GPL-3.0-or-later
// The conversion of "ty7" files. The mark is given, so that no run is lost on guessing it.
#include "fuzz/fuzzing.h"
#include "store/older_class_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  std::string bytes(TextOf(data, size));
  bytes.replace(0, 3, "ty7");
  Class c;
  Require(ParseOldClass(bytes, c).consumed <= bytes.size());
  RequireMended(c, bytes.size());
  RequireRoundTrip(c);
  return 0;
}
