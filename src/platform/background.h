// SPDX-License-Identifier: GPL-3.0-or-later
// Work that waits for others, in a thread of its own, so that the screen stays alive.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace tallyroll {

// Runs something on the screen's thread soon, handed over by the surroundings. Null where there is
// no screen: the work then runs where it is started, and what it tells is told at once.
using ScreenPost = void (*)(std::function<void()> told);
extern ScreenPost PostToScreen;

class BackgroundWork {
 public:
  BackgroundWork() = default;
  ~BackgroundWork() { Stop(); }
  BackgroundWork(const BackgroundWork&) = delete;
  BackgroundWork& operator=(const BackgroundWork&) = delete;

  // Ends what was running, and begins. The work knows nothing of the program's state.
  void Start(std::function<void()> work);
  // Asks it to end, and waits for that; what it has still to tell is told no more.
  void Stop();
  // Asks it to end and goes on.
  void Cancel() { goes_on_ = false; }

  // Asked by the work, in its thread.
  bool GoesOn() const { return goes_on_; }
  // Said by the work; done on the screen's thread unless this object is gone or stopped by then.
  void Tell(std::function<void()> told);

 private:
  std::thread thread_;
  std::atomic<bool> goes_on_ = false;
  std::shared_ptr<int> listens_;  // as long as what is told is heard
};

}  // namespace tallyroll
