// SPDX-License-Identifier: GPL-3.0-or-later
// What keeping the work that is not saved costs the thread of the screen; the disk's part goes on
// behind. Beside it the bytes of the class alone, and a save with all that its companion file
// keeps.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/big_class.h"
#include "companion/behind.h"
#include "companion/class_snapshots.h"
#include "insight/kept_work.h"
#include "platform/headless.h"
#include "store/class_file.h"

namespace tallyroll {
namespace {

class KeptWorkFolder {
 public:
  KeptWorkFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyroll-bench-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  ~KeptWorkFolder() {
    AwaitBehind();
    std::filesystem::remove_all(path_);
  }
  std::string file() const { return path_ + "/big.TYR"; }

 private:
  std::string path_;
};

// A class of that size, saved, in the slot in work.
void PutToWork(const std::string& file, benchmark::State& state) {
  ResetStore();
  Current() = BigClass(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), 0);
  Current().FileName = file;
  WriteClassFile();
  Current().Changed = kTrue;
}

void TypeAMark(int number) {
  Current().Students[1].Marks[1] = std::to_string(number % 100);
}

void KeepWorkOnTheScreensThread(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  const KeptWorkFolder folder;
  PutToWork(folder.file(), state);
  KeptWork work;
  int typed = 0;
  for (auto _ : state) {
    state.PauseTiming();
    AwaitBehind();
    TypeAMark(++typed);
    state.ResumeTiming();
    if (!work.Keep(Current()).empty()) state.SkipWithError("the work was not kept");
  }
  SetPlatform(nullptr);
}
BENCHMARK(KeepWorkOnTheScreensThread)
    ->Args({200, 100})
    ->Args({1000, 300})
    ->Unit(benchmark::kMicrosecond);

void BytesOfClass(benchmark::State& state) {
  ResetStore();
  Current() = BigClass(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), 0);
  for (auto _ : state) {
    std::string bytes;
    benchmark::DoNotOptimize(SerializeClass(Current(), bytes));
  }
}
BENCHMARK(BytesOfClass)->Args({200, 100})->Args({1000, 300})->Unit(benchmark::kMicrosecond);

void KeepASnapshot(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  const KeptWorkFolder folder;
  PutToWork(folder.file(), state);
  int typed = 0;
  for (auto _ : state) {
    TypeAMark(++typed);
    std::string bytes;
    SerializeClass(Current(), bytes);
    if (!KeepSnapshots(folder.file(), {{"2026-09-01 10:00:00", bytes}}).empty())
      state.SkipWithError("the snapshot was not kept");
  }
  SetPlatform(nullptr);
}
BENCHMARK(KeepASnapshot)->Args({200, 100})->Iterations(20)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
