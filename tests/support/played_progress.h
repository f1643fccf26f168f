// SPDX-License-Identifier: GPL-3.0-or-later
// A progress window whose user presses Cancel when a script says so.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless.h"
#include "platform/long_work.h"

namespace tallyroll {

// Every look at its clock finds a second gone, so that all work is long.
class TickingScreen : public HeadlessSurroundings {
 public:
  double Now() override { return now += 1.0 / (24 * 60 * 60); }
};

class PlayedProgress {
 public:
  // Cancel is pressed as soon as `cancel_at` of that work are done; 0 never.
  explicit PlayedProgress(std::string cancelled_work = "", int cancel_at = 0) {
    cancelled_work_ = std::move(cancelled_work);
    cancel_at_ = cancel_at;
    shown.clear();
    NewProgressScreen = [](std::string_view what) -> std::unique_ptr<ProgressScreen> {
      shown.emplace_back(what);
      return std::make_unique<Window>(what == cancelled_work_ ? cancel_at_ : 0);
    };
  }
  ~PlayedProgress() { NewProgressScreen = nullptr; }
  PlayedProgress(const PlayedProgress&) = delete;
  PlayedProgress& operator=(const PlayedProgress&) = delete;

  static inline std::vector<std::string> shown;  // the works that got a window
  static inline int done = 0, all = 0;           // what the last one was told last

 private:
  class Window : public ProgressScreen {
   public:
    explicit Window(int cancel_at) : at_(cancel_at) {}
    bool Show(int now_done, int of_all) override {
      done = now_done;
      all = of_all;
      return at_ == 0 || now_done < at_;
    }

   private:
    int at_;
  };
  static inline std::string cancelled_work_;
  static inline int cancel_at_ = 0;
};

}  // namespace tallyroll
