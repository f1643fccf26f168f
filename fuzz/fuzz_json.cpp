// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of JSON. A class that it accepts can be written, and its dump gives the same bytes.
#include "cli/basics/class_from_json.h"
#include "cli/basics/class_json.h"
#include "fuzz/fuzzing.h"
#include "store/program_state.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  if (!ReadClassFromJson(TextOf(data, size)).empty()) return 0;
  std::string first, second;
  Require(SerializeClass(Current(), first) == 0);
  const std::string dump = JsonText(ClassToJson(Current()));
  Require(ReadClassFromJson(dump).empty());
  Require(SerializeClass(Current(), second) == 0);
  Require(first == second);
  return 0;
}
