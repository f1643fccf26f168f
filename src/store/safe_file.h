// SPDX-License-Identifier: GPL-3.0-or-later
// Files read and written whole. Nothing here throws; errors are run-time error numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tallyroll {

inline constexpr std::size_t kLargestFile = std::size_t{1} << 30;

// What tells that a file is still the one that was read.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = -1;     // -1: there is no file
  std::int64_t modified = 0;  // in nanoseconds

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// The one name of a file behind links and other spellings; the path itself where there is none.
std::string CanonicalPath(const std::string& path);

FileStamp StampOf(const std::string& path);

struct FileContents {
  int error = 0;
  std::string bytes;
  FileStamp stamp;
};

// Reads a file. 53 when there is none, 76 when its folder is missing, 75 for what is no plain
// file, 70 when it may not be read, 57 beyond `limit`.
FileContents ReadWholeFile(const std::string& path, std::size_t limit = kLargestFile);

// Whether a file that is longer than its new content keeps its last bytes behind it.
enum class OldTail { kKeep, kDrop };

// Writes a file completely or not at all: beside it, flushed to the disk, and moved over it. What
// is on the disk then is what writing over the old bytes in place would give. The target of a
// symbolic link is replaced, not the link; permissions stay, and the owner where that is allowed.
// A file that is write-protected is refused with 70. Returns 0 or the error number.
int ReplaceFile(const std::string& path, std::string_view bytes, OldTail tail);

// Removes what a save that was killed has left beside the file.
void SweepLeftovers(const std::string& path);

// A second name for a file: a link, or a copy where the file system has no links. Never goes over
// a file that is there. Returns 0 or a system error number.
int KeepUnderName(const std::string& path, const std::string& name);

// Whether anything stands at the path, be it a broken link.
bool PathExists(const std::string& path);

}  // namespace tallyroll
