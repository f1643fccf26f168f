// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/message_moment.h"

#include <QApplication>
#include <utility>

namespace tallyroll {
namespace {

constexpr int kSecond = 1000;
constexpr int kLongEnough = 8;  // to read a long sentence without haste

}  // namespace

MessageMoment::MessageMoment(std::function<bool()> in_front, std::function<void()> over,
                             QObject* parent)
    : QTimer(parent), in_front_(std::move(in_front)), over_(std::move(over)) {
  setObjectName(QStringLiteral("MessageMoment"));
  setInterval(kSecond);
  callOnTimeout(this, [this] { CountSecond(); });
}

void MessageMoment::Follow(int told) {
  if (told == told_) return;
  told_ = told;
  seconds_ = 0;
  start();
}

void MessageMoment::CountSecond() {
  if (QApplication::activeModalWidget() != nullptr || !in_front_()) {
    seconds_ = 0;
    return;
  }
  if (++seconds_ < kLongEnough) return;
  stop();
  over_();
}

}  // namespace tallyroll
