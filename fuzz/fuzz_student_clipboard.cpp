// SPDX-License-Identifier: GPL-3.0-or-later
// A student on the clipboard, as another program may have left it.
#include "fuzz/fuzzing.h"
#include "roster/student_clipboard.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  const std::optional<StudentText> text = ReadStudent(TextOf(data, size));
  if (!text) return 0;
  ResetStore();
  Class& c = Current();
  ResetRecord(c);
  c.NumInstruments = 2;
  c.NumSummaries = 1;
  c.NumStudents = 1;
  ReDim(c.Instruments, 2);
  ReDim(c.Summaries, 1);
  ReDim(c.Students, 1);
  c.Students[1] = text->fields;
  AddStudentDefaults();
  TakeLists(*text, c.Students[1]);
  Require(UpperBound(c.Students[1].Marks) == 2);
  const std::string written = StudentOnClipboard(c.Students[1], true);
  Require(ReadStudent(written).has_value());
  return 0;
}
