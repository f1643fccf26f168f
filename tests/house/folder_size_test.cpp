// SPDX-License-Identifier: GPL-3.0-or-later
// A folder is read by looking it over; beyond 30 sources nobody does, and what belongs together is
// no longer found. Then it wants rooms.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/house/source_files.h"

namespace tallyroll {
namespace {

constexpr int kMostSources = 30;

// The folders that hold too many, with their number. A header goes with its source.
std::map<std::string, int> TooFull(const std::vector<SourceFile>& files) {
  std::map<std::string, int> sources;
  for (const SourceFile& file : files)
    if (file.path.ends_with(".cpp")) ++sources[std::string(FolderOf(file.path))];
  std::erase_if(sources, [](const auto& folder) { return folder.second <= kMostSources; });
  return sources;
}

TEST(FolderSize, NoFolderHoldsMoreThanThirtySources) {
  for (const char* below : {"src", "tests", "bench", "fuzz"})
    EXPECT_EQ(TooFull(SourceFiles(below)), (std::map<std::string, int>())) << below;
}

TEST(FolderSize, CountsTheSourcesOfEachRoom) {
  std::vector<SourceFile> files;
  for (int i = 0; i < 31; ++i) {
    files.push_back({"printing/page/a" + std::string(1, static_cast<char>('0' + i)) + ".cpp", ""});
    files.push_back({"printing/reports/b" + std::string(1, static_cast<char>('0' + i)) + ".h", ""});
  }
  EXPECT_EQ(TooFull(files), (std::map<std::string, int>{{"printing/page", 31}}));
  files.erase(files.begin());
  EXPECT_TRUE(TooFull(files).empty());
}

}  // namespace
}  // namespace tallyroll
