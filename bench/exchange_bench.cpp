// SPDX-License-Identifier: GPL-3.0-or-later
// The preview of a school system's file of 5,000 students, beside the bare parsing of its cells.
#include <benchmark/benchmark.h>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "bench/big_class.h"
#include "exchange/preview.h"
#include "platform/headless.h"
#include "store/csv.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kRows = 5000;

// Two grades that the class has and one that it has not.
std::string CanvasOfMany(const Class& c) {
  std::string text =
      "Student,ID,SIS User ID,Section,Grade 1,Grade 2,Oral\n    Points Possible,,,,100,100,50\n";
  for (int i = 1; i <= kRows; ++i) {
    const Student& s = c.Students[static_cast<std::size_t>(i)];
    text += "\"" + s.lastname + ", " + s.firstname + "\"," + PlainNumberText(i) + "," + s.id +
            ",A," + PlainNumberText(i % 101) + ".00,EX," + PlainNumberText(i % 51) + "\n";
  }
  return Utf8FromCodePage(text);
}

void ParseForeignCells(benchmark::State& state) {
  const std::string text = CanvasOfMany(BigClass(kRows, 2, 0));
  for (auto _ : state) benchmark::DoNotOptimize(ParseCsv(text).records.data());
}
BENCHMARK(ParseForeignCells)->Unit(benchmark::kMicrosecond);

void PreviewForeignFile(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  CurrentClass = 1;
  Current() = BigClass(kRows, 2, 0);
  const std::string text = CanvasOfMany(Current());
  std::size_t changes = 0;
  for (auto _ : state) changes = PreviewOfFile(ExchangeFormat::kCanvas, text).changes.size();
  if (changes != 3 * kRows + 1) state.SkipWithError("changes are missing");
  SetPlatform(nullptr);
}
BENCHMARK(PreviewForeignFile)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
