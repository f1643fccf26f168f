// SPDX-License-Identifier: GPL-3.0-or-later
// A grade from the clipboard, for a class whose IDs hold what parts a line.
#include "fuzz/fuzzing.h"
#include "grades/grade_clipboard.h"
#include "platform/headless.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

void EnrolSome() {
  Class& c = Current();
  for (const char* id : {"7", "7,8", ",", "", "a b"}) {
    ReDimPreserve(c.Students, ++c.NumStudents);
    c.Students.back().id = id;
  }
}

}  // namespace
}  // namespace tallyroll

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  EnrolSome();
  const std::string_view text = TextOf(data, size);
  ReadHeader(text);
  if (const auto grade = ReadGrade(text))
    for (const MarkText& mark : grade->marks)
      Require(mark.student >= 1 && mark.student <= Current().NumStudents);
  SetPlatform(nullptr);
  return 0;
}
