// SPDX-License-Identifier: GPL-3.0-or-later
// Text files of students and of grades in every layout. The first byte chooses the layout.
#include "fuzz/fuzzing.h"
#include "platform/headless.h"
#include "store/program_state.h"
#include "store/text/grade_file.h"
#include "store/text/taken_ids.h"
#include "store/text/text_export.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr i16 kLayouts[] = {kColumnsText, kSinglesText, kDoublesText,
                            kTabsText,    kCommasText,  kCsvText};

void RequireOwnIds() {
  TakenIds ids;
  for (std::size_t i = 1; i < Current().Students.size(); ++i)
    Require(ids.Take(Current().Students[i].id));
}

// An import is refused and adds nothing, or every student fits a class file and has an ID.
void ImportStudents(std::string_view bytes, i16 mode) {
  TextRoster roster = ReadRosterText(bytes, mode);
  Require(roster.refusal.empty() != roster.students.empty());
  const std::size_t students = roster.students.size();
  Require(AddStudents(roster).error == 0);
  Require(Current().NumStudents == static_cast<int>(students));
  RequireOwnIds();
  RequireMended(Current(), bytes.size());
  RequireRoundTrip(Current());
}

void ReadMarks(std::string_view bytes, i16 mode) {
  for (const int by : {kGradesById, kGradesByName}) {
    const GradeFile file = ReadGradeText(bytes, mode, {}, by);
    for (const GradeColumn& column : file.columns)
      Require(column.marks.size() == Current().Students.size());
  }
}

}  // namespace
}  // namespace tallyroll

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  if (size == 0) return 0;
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  const i16 mode = kLayouts[data[0] % std::size(kLayouts)];
  const std::string_view bytes = TextOf(data + 1, size - 1);
  ImportStudents(bytes, mode);
  ReadMarks(bytes, mode);
  for (const i16 layout : kLayouts) ExportText(Current(), kExportInfo, layout);
  SetPlatform(nullptr);
  return 0;
}
