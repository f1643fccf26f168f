// SPDX-License-Identifier: GPL-3.0-or-later
// Complete or absent: the new bytes go beside the file and are moved over it.
#include "store/safe_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr std::string_view kSavingEnding = ".saving";
constexpr std::size_t kLongestName = 255;

// A file descriptor that closes itself. Close() is for the writer, who must know whether it went
// well.
class Handle {
 public:
  explicit Handle(int number) : number_(number) {}
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  bool ok() const { return number_ >= 0; }
  int number() const { return number_; }
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

// A file that grows beyond the process's limit is an error of write, not the end of the program.
class IgnoreFileSizeSignal {
 public:
  IgnoreFileSizeSignal() {
    struct sigaction ignore = {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGXFSZ, &ignore, &before_);
  }
  ~IgnoreFileSizeSignal() { ::sigaction(SIGXFSZ, &before_, nullptr); }
  IgnoreFileSizeSignal(const IgnoreFileSizeSignal&) = delete;
  IgnoreFileSizeSignal& operator=(const IgnoreFileSizeSignal&) = delete;

 private:
  struct sigaction before_ = {};
};

[[noreturn]] void ThrowLastError() {
  throw RunTimeError{RunTimeErrorOf(errno)};
}

// The part up to and with the last slash; empty for a bare name.
std::string FolderPart(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

bool FolderExists(const std::string& path) {
  const std::string folder = FolderPart(path);
  struct stat status;
  return ::stat(folder.empty() ? "." : folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Where a chain of symbolic links ends, whether or not a file is there yet.
std::string FollowLinks(std::string path) {
  for (int step = 0; step < 40; ++step) {
    char target[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
    if (length <= 0 || static_cast<std::size_t>(length) == sizeof target) break;
    const std::string next(target, static_cast<std::size_t>(length));
    path = next.front() == '/' ? next : FolderPart(path) + next;
  }
  return path;
}

// A fixed name: the next save overwrites what a killed one left, and opening sweeps it.
std::string SavingName(const std::string& target) {
  const std::size_t folder = FolderPart(target).size();
  std::string name = target.substr(folder);
  if (name.size() + kSavingEnding.size() > kLongestName) name.resize(kLongestName - 15);
  return target.substr(0, folder) + name + std::string(kSavingEnding);
}

FileStamp StampFrom(const struct stat& status) {
  FileStamp stamp;
  stamp.device = status.st_dev;
  stamp.inode = status.st_ino;
  stamp.size = status.st_size;
  stamp.modified = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
  return stamp;
}

// Reads on to the end of the file, or to the limit and one byte more.
void ReadToEnd(int handle, std::string& bytes, std::size_t limit) {
  constexpr std::size_t kAtOnce = 1 << 16;
  for (;;) {
    const std::size_t had = bytes.size();
    if (had > limit) throw RunTimeError{kErrorDevice};
    // Room that was reserved is used up before more is asked for; the end is seen in what is left.
    bytes.resize(had < bytes.capacity() ? bytes.capacity() : had + kAtOnce);
    const ssize_t count = ::read(handle, bytes.data() + had, bytes.size() - had);
    bytes.resize(had + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count == 0) return;
    if (count < 0 && errno != EINTR) ThrowLastError();
  }
}

void WriteAll(int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(handle, bytes.data(), bytes.size());
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    if (count < 0 && errno != EINTR) ThrowLastError();
  }
}

// A file that its owner protected stays protected, even from a user who may do everything.
void RefuseProtected(const std::string& target, const struct stat& status) {
  if (!S_ISREG(status.st_mode)) throw RunTimeError{kErrorPathAccess};
  constexpr mode_t kAnyoneWrites = S_IWUSR | S_IWGRP | S_IWOTH;
  const bool writable =
      (status.st_mode & kAnyoneWrites) != 0 && ::access(target.c_str(), W_OK) == 0;
  if (!writable) throw RunTimeError{kErrorPermission};
}

std::string TailBehind(const std::string& target, std::size_t start) {
  const Handle file(::open(target.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.ok() || ::lseek(file.number(), static_cast<off_t>(start), SEEK_SET) < 0)
    ThrowLastError();
  std::string tail;
  ReadToEnd(file.number(), tail, kLargestFile);
  return tail;
}

void TakeOverOwnerAndMode(int handle, const struct stat& old) {
  // The owner first: a change of owner clears mode bits. Who may not give files away keeps them.
  if (::fchown(handle, old.st_uid, old.st_gid) != 0) errno = 0;
  if (::fchmod(handle, old.st_mode & 07777) == 0) return;
  // Some mounts know no modes; there a file written in place would have had none either.
  const bool no_modes = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
  if (!no_modes) ThrowLastError();
}

// Makes the rename itself last. A file system that cannot flush a folder says so; that is no fault.
void FlushFolder(const std::string& target) {
  const std::string folder = FolderPart(target);
  const Handle handle(
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.ok()) ::fsync(handle.number());
}

void WriteBeside(const std::string& saving, std::string_view bytes, std::string_view tail,
                 const struct stat* old) {
  ::unlink(saving.c_str());
  Handle file(::open(saving.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (!file.ok() && errno == ENOENT) throw RunTimeError{kErrorPathNotFound};
  if (!file.ok()) ThrowLastError();
  if (old) TakeOverOwnerAndMode(file.number(), *old);
  WriteAll(file.number(), bytes);
  WriteAll(file.number(), tail);
  if (::fsync(file.number()) != 0 || !file.Close()) ThrowLastError();
}

void Replace(const std::string& target, std::string_view bytes, OldTail keep) {
  if (target.empty()) throw RunTimeError{kErrorPathAccess};
  struct stat status;
  const bool exists = ::stat(target.c_str(), &status) == 0;
  std::string tail;
  if (exists) {
    RefuseProtected(target, status);
    const bool longer = static_cast<std::size_t>(status.st_size) > bytes.size();
    if (longer && keep == OldTail::kKeep) tail = TailBehind(target, bytes.size());
  }
  const std::string saving = SavingName(target);
  try {
    WriteBeside(saving, bytes, tail, exists ? &status : nullptr);
    if (::rename(saving.c_str(), target.c_str()) != 0) ThrowLastError();
  } catch (const RunTimeError&) {
    ::unlink(saving.c_str());
    throw;
  }
  FlushFolder(target);
}

int CopyUnderName(const std::string& path, const std::string& name) {
  const FileContents old = ReadWholeFile(path);
  if (old.error != 0) return EIO;
  Handle file(::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (!file.ok()) return errno;
  try {
    WriteAll(file.number(), old.bytes);
    if (::fsync(file.number()) != 0 || !file.Close()) ThrowLastError();
  } catch (const RunTimeError&) {
    const int error = errno;
    ::unlink(name.c_str());
    return error;
  }
  return 0;
}

}  // namespace

std::string CanonicalPath(const std::string& path) {
  // What is there the system resolves in one go.
  if (const std::unique_ptr<char, void (*)(void*)> there(::realpath(path.c_str(), nullptr), ::free);
      there)
    return there.get();
  std::error_code error;
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(path, error);
  return error ? path : canonical.string();
}

FileStamp StampOf(const std::string& path) {
  struct stat status;
  return ::stat(path.c_str(), &status) == 0 ? StampFrom(status) : FileStamp();
}

FileContents ReadWholeFile(const std::string& path, std::size_t limit) {
  FileContents contents;
  try {
    // Without O_NONBLOCK the opening of a named pipe would wait for ever.
    const Handle file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!file.ok() && errno == ENOENT && !FolderExists(path))
      throw RunTimeError{kErrorPathNotFound};
    if (!file.ok() || ::fstat(file.number(), &status) != 0) ThrowLastError();
    if (!S_ISREG(status.st_mode)) throw RunTimeError{kErrorPathAccess};
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > limit) throw RunTimeError{kErrorDevice};
    contents.stamp = StampFrom(status);
    contents.bytes.reserve(size + 1);
    ReadToEnd(file.number(), contents.bytes, limit);
  } catch (const RunTimeError& fault) {
    contents.error = fault.number;
  }
  return contents;
}

int ReplaceFile(const std::string& path, std::string_view bytes, OldTail tail) {
  const IgnoreFileSizeSignal ignore;
  try {
    Replace(FollowLinks(path), bytes, tail);
  } catch (const RunTimeError& fault) {
    return fault.number;
  }
  return 0;
}

void SweepLeftovers(const std::string& path) {
  const std::string saving = SavingName(FollowLinks(path));
  struct stat status;
  if (::lstat(saving.c_str(), &status) == 0 && S_ISREG(status.st_mode)) ::unlink(saving.c_str());
}

int KeepUnderName(const std::string& path, const std::string& name) {
  const IgnoreFileSizeSignal ignore;
  if (::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0) return 0;
  const bool no_links =
      errno == EPERM || errno == EXDEV || errno == EMLINK || errno == EOPNOTSUPP || errno == ENOSYS;
  return no_links ? CopyUnderName(path, name) : errno;
}

bool PathExists(const std::string& path) {
  struct stat status;
  return ::lstat(path.c_str(), &status) == 0;
}

}  // namespace tallyroll
