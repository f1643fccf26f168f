// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>

namespace tallyroll {

// Does something with the modal window that comes up in front.
template <typename W>
void WithNextWindow(std::function<void(W&)> act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* window = qobject_cast<W*>(QApplication::activeModalWidget());
    ASSERT_NE(window, nullptr);
    act(*window);
  });
}

}  // namespace tallyroll
