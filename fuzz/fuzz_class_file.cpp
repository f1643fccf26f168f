// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of class files. A file that it accepts is written back byte for byte.
#include "fuzz/fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  const std::string_view bytes = TextOf(data, size);
  Class c;
  const ParseOutcome outcome = ParseClass(bytes, c);
  Require(outcome.consumed <= size);
  if (outcome.error == 0) {
    std::string written;
    Require(SerializeClass(c, written) == 0);
    Require(written == bytes.substr(0, outcome.consumed));
  }
  RequireMended(c, size);
  RequireRoundTrip(c);
  return 0;
}
