// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/long_work.h"

#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr double kADayInSeconds = 24 * 60 * 60;
constexpr double kNotLongYet = 0.3 / kADayInSeconds;
constexpr double kBetweenPictures = 0.05 / kADayInSeconds;

}  // namespace

MakeProgressScreen NewProgressScreen = nullptr;

LongWork::LongWork(std::string_view what, int all) : around_(innermost_), what_(what), all_(all) {
  innermost_ = this;
  if (NewProgressScreen) begun_ = told_ = Platform().Now();
}

LongWork::~LongWork() {
  innermost_ = around_;
}

bool LongWork::Step() {
  return Tell(++done_, all_);
}

bool LongWork::Tell(int done, int all) {
  if (!NewProgressScreen || cancelled_) return !cancelled_;
  if (around_) {
    cancelled_ = !around_->Tell(around_->done_ * all + done, around_->all_ * all);
    return !cancelled_;
  }
  const double now = Platform().Now();
  if (!screen_ && now - begun_ > kNotLongYet) {
    screen_ = NewProgressScreen(what_);
    told_ = 0;
  }
  if (!screen_ || now - told_ < kBetweenPictures) return true;
  told_ = now;
  cancelled_ = !screen_->Show(done, all);
  if (cancelled_) screen_.reset();
  return !cancelled_;
}

}  // namespace tallyroll
