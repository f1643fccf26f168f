// SPDX-License-Identifier: GPL-3.0-or-later
// The averages and final grades of 200 students with 100 grades each, by every method, beside
// reading each mark once as a bare number. A twelfth of the marks are letters and special marks;
// the lowest grade of each type is dropped.
#include <benchmark/benchmark.h>

#include <charconv>

#include "averages/rounding.h"
#include "bench/big_class.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

void PutBigClassToWork(i16 method) {
  ResetStore();
  ResetAverages();
  Current() = BigAveragedClass(200, 100, method);
  PrepareWeights();
}

void ReadEachMark(benchmark::State& state) {
  PutBigClassToWork(0);
  for (auto _ : state) {
    double sum = 0;
    for (const Student& student : Current().Students) {
      for (const ShortText& mark : student.Marks) {
        const std::string_view text = mark;
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        sum += value;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ReadEachMark)->Unit(benchmark::kMicrosecond);

void AverageEachStudent(benchmark::State& state) {
  PutBigClassToWork(static_cast<i16>(state.range(0)));
  for (auto _ : state) {
    for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
      TypeTotals totals;
      FinalGrade grade;
      if (ComputeAverage(totals) || RoundedGrade(grade)) state.SkipWithError("no average");
      benchmark::DoNotOptimize(grade);
    }
  }
}
BENCHMARK(AverageEachStudent)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
