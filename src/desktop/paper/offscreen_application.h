// SPDX-License-Identifier: GPL-3.0-or-later
// What Qt needs to know fonts, for a program that has no screen.
#pragma once

#include <QGuiApplication>
#include <optional>

namespace tallyroll {

// Does nothing where there is an application already.
class OffscreenApplication {
 public:
  OffscreenApplication();
  ~OffscreenApplication();
  OffscreenApplication(const OffscreenApplication&) = delete;
  OffscreenApplication& operator=(const OffscreenApplication&) = delete;

 private:
  std::optional<QGuiApplication> application_;
  QtMessageHandler handler_before_ = nullptr;
};

}  // namespace tallyroll
