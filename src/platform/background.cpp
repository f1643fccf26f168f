// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/background.h"

#include <utility>

namespace tallyroll {

ScreenPost PostToScreen = nullptr;

void BackgroundWork::Start(std::function<void()> work) {
  Stop();
  goes_on_ = true;
  listens_ = std::make_shared<int>();
  if (PostToScreen)
    thread_ = std::thread(std::move(work));
  else
    work();
}

void BackgroundWork::Stop() {
  goes_on_ = false;
  if (thread_.joinable()) thread_.join();
  listens_.reset();
}

void BackgroundWork::Tell(std::function<void()> told) {
  if (!PostToScreen) return told();
  const std::weak_ptr<int> listens = listens_;
  PostToScreen([listens, told = std::move(told)] {
    if (!listens.expired()) told();
  });
}

}  // namespace tallyroll
