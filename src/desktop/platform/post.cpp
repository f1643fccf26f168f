// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/post.h"

#include <QCoreApplication>
#include <utility>

#include "desktop/platform/qt_surroundings.h"
#include "platform/background.h"
#ifdef TALLYROLL_POST
#include "post/curl_mail_sender.h"
#endif

namespace tallyroll {
namespace {

// The event loop takes it when it comes to it.
void PostToEventLoop(std::function<void()> told) {
  QMetaObject::invokeMethod(
      qApp,
      [told = std::move(told)] {
        told();
        ShowOpenPortals();
      },
      Qt::QueuedConnection);
}

}  // namespace

void PreparePost() {
  PostToScreen = PostToEventLoop;
#ifdef TALLYROLL_POST
  MakeMailSender = MakeCurlMailSender;
#endif
}

}  // namespace tallyroll
