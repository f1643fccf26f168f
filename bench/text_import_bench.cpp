// SPDX-License-Identifier: GPL-3.0-or-later
// Importing 5,000 students beside a bare walk over the lines of the same file.
#include <benchmark/benchmark.h>

#include <string>

#include "base/line_reader.h"
#include "bench/big_class.h"
#include "platform/headless.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/text/text_export.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 5000;

std::string TextOfMany(i16 mode) {
  return ExportText(BigClass(kStudents, 0, 0), kExportInfo, mode).bytes;
}

void ReadBareLines(benchmark::State& state) {
  const std::string text = TextOfMany(kCommasText);
  for (auto _ : state) {
    std::vector<std::string> copies;
    LineReader lines(text);
    while (const auto line = lines.Next()) copies.emplace_back(*line);
    benchmark::DoNotOptimize(copies.data());
  }
}
BENCHMARK(ReadBareLines)->Unit(benchmark::kMicrosecond);

// Reading, adding and sorting: all that follows the choice of the file.
void ImportStudents(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  const auto mode = static_cast<i16>(state.range(0));
  const std::string text = TextOfMany(mode);
  for (auto _ : state) {
    ResetClassSlot();
    TextRoster roster = ReadRosterText(text, mode);
    AddStudents(roster);
  }
  if (Current().NumStudents != kStudents) state.SkipWithError("students are missing");
  SetPlatform(nullptr);
}
BENCHMARK(ImportStudents)
    ->Arg(kColumnsText)
    ->Arg(kCommasText)
    ->Arg(kCsvText)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
