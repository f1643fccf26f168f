// SPDX-License-Identifier: GPL-3.0-or-later
// How long a message stands on a status bar.
#pragma once

#include <QTimer>
#include <functional>

namespace tallyroll {

// Only the time in which it can be seen counts: a Portal or another class window may stand before
// it.
class MessageMoment : public QTimer {
 public:
  MessageMoment(std::function<bool()> in_front, std::function<void()> over, QObject* parent);

  // `told` counts the messages: each begins a moment of its own.
  void Follow(int told);

 private:
  void CountSecond();

  std::function<bool()> in_front_;
  std::function<void()> over_;
  int told_ = 0;
  int seconds_ = 0;
};

}  // namespace tallyroll
