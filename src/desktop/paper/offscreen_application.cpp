// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/offscreen_application.h"

#include <QHashSeed>

namespace tallyroll {
namespace {

// Remarks on the session, which a program without a screen does not need.
void Ignore(QtMsgType /*type*/, const QMessageLogContext& /*where*/, const QString& /*text*/) {}

// Qt keeps both for as long as the application lives.
int argument_count = 1;
char program_name[] = "tallyroll-cli";
char* arguments[] = {program_name, nullptr};

}  // namespace

OffscreenApplication::OffscreenApplication() {
  if (QCoreApplication::instance()) return;
  // Otherwise the fonts would stand in a PDF in another order each time.
  QHashSeed::setDeterministicGlobalSeed();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  handler_before_ = qInstallMessageHandler(Ignore);
  application_.emplace(argument_count, arguments);
}

OffscreenApplication::~OffscreenApplication() {
  if (!application_) return;
  application_.reset();
  qInstallMessageHandler(handler_before_);
}

}  // namespace tallyroll
