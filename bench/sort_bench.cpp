// SPDX-License-Identifier: GPL-3.0-or-later
// Sorting 1,000 students by name beside std::stable_sort of the same names as bare strings.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "bench/big_class.h"
#include "store/program_state.h"
#include "store/sort_students.h"

namespace tallyroll {
namespace {

void Shuffle(List<Student>& students, std::mt19937& random) {
  std::shuffle(students.begin() + 1, students.end(), random);
}

void SortBareNames(benchmark::State& state) {
  std::mt19937 random(7);
  Class c = BigClass(1000, 30, 0);
  for (auto _ : state) {
    state.PauseTiming();
    Shuffle(c.Students, random);
    std::vector<std::string> names;
    for (std::size_t i = 1; i < c.Students.size(); ++i)
      names.push_back(c.Students[i].lastname + c.Students[i].firstname);
    state.ResumeTiming();
    std::stable_sort(names.begin(), names.end());
    benchmark::DoNotOptimize(names.data());
  }
}
BENCHMARK(SortBareNames)->Unit(benchmark::kMicrosecond);

void SortStudentsByName(benchmark::State& state) {
  ResetStore();
  std::mt19937 random(7);
  Current() = BigClass(1000, 30, 0);
  for (auto _ : state) {
    state.PauseTiming();
    Shuffle(Current().Students, random);
    state.ResumeTiming();
    SortStudents();
  }
}
BENCHMARK(SortStudentsByName)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
