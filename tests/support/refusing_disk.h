// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that is full and a folder that may not be written, whoever runs the tests.
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <utility>

namespace tallyroll {

// The largest file that this process may write, for as long as it lives.
class SmallFiles {
 public:
  explicit SmallFiles(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallFiles() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallFiles(const SmallFiles&) = delete;
  SmallFiles& operator=(const SmallFiles&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

// Takes the right to write a folder away for as long as it lives, from the superuser too.
class ReadOnlyFolder {
 public:
  explicit ReadOnlyFolder(std::string folder) : folder_(std::move(folder)), user_(geteuid()) {
    refuses_ = chmod(folder_.c_str(), 0555) == 0 && (user_ != 0 || seteuid(kNobody) == 0) &&
               faccessat(AT_FDCWD, folder_.c_str(), W_OK, AT_EACCESS) == -1;
  }
  ~ReadOnlyFolder() {
    if (geteuid() != user_) refuses_ = seteuid(user_) == 0;
    chmod(folder_.c_str(), 0755);
  }
  ReadOnlyFolder(const ReadOnlyFolder&) = delete;
  ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

  // Whether it came to that.
  bool Refuses() const { return refuses_; }

 private:
  static constexpr uid_t kNobody = 65534;

  std::string folder_;
  uid_t user_;
  bool refuses_ = false;
};

}  // namespace tallyroll
