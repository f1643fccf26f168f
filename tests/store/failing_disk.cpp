// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own definitions of three system calls go before those of the C library.
#include "tests/store/failing_disk.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

tallyroll::FailingDisk* failing = nullptr;

int Failed(int error) {
  errno = error;
  return -1;
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

namespace tallyroll {

FailingDisk::FailingDisk() {
  failing = this;
}

FailingDisk::~FailingDisk() {
  failing = nullptr;
}

}  // namespace tallyroll
