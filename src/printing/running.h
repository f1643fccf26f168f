// SPDX-License-Identifier: GPL-3.0-or-later
// Holds off, as long as it lives, what must not begin while events are let through.
#pragma once

namespace tallyroll {

class Running {
 public:
  explicit Running(bool& flag) : flag_(flag) { flag_ = true; }
  ~Running() { flag_ = false; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  bool& flag_;
};

}  // namespace tallyroll
