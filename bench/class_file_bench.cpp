// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving a class of 200 students, 100 grades and 300 days beside a bare read and write
// of the same file. The flush to the disk is left out on both sides: it measures the disk.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/big_class.h"
#include "platform/headless.h"
#include "store/class_defaults.h"
#include "store/class_file.h"

extern "C" int fsync(int) {
  return 0;
}
extern "C" int fdatasync(int) {
  return 0;
}

namespace tallyroll {
namespace {

std::string BigClassBytes() {
  std::string bytes;
  SerializeClass(BigClass(200, 100, 300), bytes);
  return bytes;
}

// A folder with the class file in it, gone with the object.
struct Folder {
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyroll-bench-XXXXXX").string();
    path = mkdtemp(name.data());
    file = path + "/big.TYR";
  }
  ~Folder() { std::filesystem::remove_all(path); }
  std::string path;
  std::string file;
};

void WriteBare(const std::string& path, const std::string& bytes) {
  const int out = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  benchmark::DoNotOptimize(write(out, bytes.data(), bytes.size()));
  close(out);
}

void ReadBare(benchmark::State& state) {
  const Folder folder;
  WriteBare(folder.file, BigClassBytes());
  for (auto _ : state) {
    const int in = open(folder.file.c_str(), O_RDONLY);
    struct stat about;
    fstat(in, &about);
    std::string bytes(static_cast<std::size_t>(about.st_size), '\0');
    benchmark::DoNotOptimize(read(in, bytes.data(), bytes.size()));
    close(in);
  }
}
BENCHMARK(ReadBare)->Unit(benchmark::kMicrosecond);

void OpenClass(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  const Folder folder;
  WriteBare(folder.file, BigClassBytes());
  for (auto _ : state) {
    state.PauseTiming();
    ResetClassSlot();
    state.ResumeTiming();
    Current().FileName = folder.file;
    ReadClassFile();
  }
  if (Current().NumStudents != 200 || !screen.boxes.empty())
    state.SkipWithError("the class did not open");
  SetPlatform(nullptr);
}
BENCHMARK(OpenClass)->Unit(benchmark::kMicrosecond);

void WriteBareFile(benchmark::State& state) {
  const Folder folder;
  const std::string bytes = BigClassBytes();
  for (auto _ : state) WriteBare(folder.file, bytes);
}
BENCHMARK(WriteBareFile)->Unit(benchmark::kMicrosecond);

void SaveClass(benchmark::State& state) {
  HeadlessSurroundings screen;
  SetPlatform(&screen);
  ResetStore();
  const Folder folder;
  Current() = BigClass(200, 100, 300);
  Current().FileName = folder.file;
  for (auto _ : state) WriteClassFile();
  if (FileErrorCode != 0 || !screen.boxes.empty()) state.SkipWithError("the class was not saved");
  SetPlatform(nullptr);
}
BENCHMARK(SaveClass)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
