// SPDX-License-Identifier: GPL-3.0-or-later
// Grade files of other school systems. The first byte chooses the system, or lets the head of the
// file do so.
#include "exchange/out_table.h"
#include "exchange/take.h"
#include "fuzz/fuzzing.h"
#include "platform/headless.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

void MakeClassOfTwo() {
  CurrentClass = 1;
  StartNewClass();
  Class& c = Current();
  c.description = "Algebra";
  c.NumInstruments = 1;
  c.NumStudents = 2;
  ReDim(c.Instruments, 1);
  c.Instruments[1].title = "Essay";
  c.Instruments[1].mvalue = 20;
  ReDim(c.Students, 2);
  constexpr const char* kNames[] = {"", "Abel", "Ng"};
  for (std::size_t i = 1; i <= 2; ++i) {
    c.Students[i].lastname = kNames[i];
    c.Students[i].firstname = "Bo";
    c.Students[i].id = i == 1 ? "7" : "8";
    ReDim(c.Students[i].Marks, 1, ShortText("18"));
  }
}

// Whatever is ticked can be carried out, and leaves a class that is in order.
void TakeAll(ExchangeFormat format, std::string_view bytes) {
  ExchangePreview preview = PreviewOfFile(format, bytes);
  Require(preview.refusal.empty() || preview.changes.empty());
  for (const Change& change : preview.changes) {
    Require(!change.ticked || CanTick(change));
    GradeTitleOf(preview, change);
    StudentNameOf(preview, change);
  }
  for (Change& change : preview.changes) change.ticked = CanTick(change);
  TakeTicked(preview);
  for (std::size_t i = 1; i < Current().Students.size(); ++i)
    for (const ShortText& mark : Current().Students[i].Marks) Require(mark.size() <= 5);
  RequireRoundTrip(Current());
}

}  // namespace
}  // namespace tallyroll

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  if (size == 0) return 0;
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  MakeClassOfTwo();
  const std::string_view bytes = TextOf(data + 1, size - 1);
  const auto formats = ExchangeFormats();
  const std::size_t which = data[0] % (formats.size() + 1);
  const auto format =
      which < formats.size() ? std::optional(formats[which].format) : RecognisedFormat(bytes);
  if (format) TakeAll(*format, bytes);
  for (const ExchangeFormatRow& row : formats)
    if (row.format != ExchangeFormat::kOneRoster) OutFile(row.format, MakeOutTable(row.format, {}));
  SetPlatform(nullptr);
  return 0;
}
