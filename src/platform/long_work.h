// SPDX-License-Identifier: GPL-3.0-or-later
// Work that may take long on the screen's thread: it tells how far it has come, and can be
// cancelled.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tallyroll {

// A window in front of all others, which goes with its object.
class ProgressScreen {
 public:
  virtual ~ProgressScreen() = default;
  // False once the user has cancelled.
  virtual bool Show(int done, int all) = 0;
};

// Handed over by the surroundings; null where there is no screen.
using MakeProgressScreen = std::unique_ptr<ProgressScreen> (*)(std::string_view what);
extern MakeProgressScreen NewProgressScreen;

// Exists as long as the work. What is over within 0.3 seconds shows nothing.
class LongWork {
 public:
  // `what` is done, of which there are `all`. A work that begins within another is the next step of
  // that one: it has no window of its own, and a Cancel ends both.
  LongWork(std::string_view what, int all);
  ~LongWork();
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

  // One more is done. False once the work was cancelled: it then ends with nothing half done.
  bool Step();
  bool Cancelled() const { return cancelled_; }
  int Done() const { return done_; }

 private:
  bool Tell(int done, int all);

  static inline LongWork* innermost_ = nullptr;  // of those that go on

  LongWork* around_;  // the work that this is a step of; null for none
  std::string what_;
  int all_;
  int done_ = 0;
  bool cancelled_ = false;
  double begun_ = 0, told_ = 0;
  std::unique_ptr<ProgressScreen> screen_;
};

}  // namespace tallyroll
