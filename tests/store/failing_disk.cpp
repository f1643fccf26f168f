// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own definitions of some system calls go before those of the C library.
#include "tests/store/failing_disk.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

tallyroll::FailingDisk* failing = nullptr;

int Failed(int error) {
  errno = error;
  return -1;
}

bool IsInterrupted() {
  if (!failing || failing->interruptions <= 0) return false;
  --failing->interruptions;
  return true;
}

size_t AtMost(size_t count) {
  return failing && failing->most_bytes != 0 ? std::min(count, failing->most_bytes) : count;
}

}  // namespace

extern "C" int fsync(int handle) {
  if (failing && failing->flush_error != 0 && failing->good_flushes-- <= 0) {
    return Failed(failing->flush_error);
  }
  return static_cast<int>(syscall(SYS_fsync, handle));
}

extern "C" int rename(const char* from, const char* to) noexcept {
  if (failing && failing->rename_error != 0) return Failed(failing->rename_error);
  return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

extern "C" int linkat(int from_folder, const char* from, int to_folder, const char* to,
                      int flags) noexcept {
  if (failing && failing->link_error != 0) return Failed(failing->link_error);
  return static_cast<int>(syscall(SYS_linkat, from_folder, from, to_folder, to, flags));
}

extern "C" int fchown(int handle, uid_t owner, gid_t group) noexcept {
  if (failing && failing->owner_error != 0) return Failed(failing->owner_error);
  return static_cast<int>(syscall(SYS_fchown, handle, owner, group));
}

extern "C" int fchmod(int handle, mode_t mode) noexcept {
  if (failing && failing->mode_error != 0) return Failed(failing->mode_error);
  return static_cast<int>(syscall(SYS_fchmod, handle, mode));
}

extern "C" ssize_t read(int handle, void* bytes, size_t count) {
  if (IsInterrupted()) return Failed(EINTR);
  return syscall(SYS_read, handle, bytes, AtMost(count));
}

extern "C" ssize_t write(int handle, const void* bytes, size_t count) {
  if (IsInterrupted()) return Failed(EINTR);
  return syscall(SYS_write, handle, bytes, AtMost(count));
}

namespace tallyroll {

FailingDisk::FailingDisk() {
  failing = this;
}

FailingDisk::~FailingDisk() {
  failing = nullptr;
}

}  // namespace tallyroll
