// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "desktop/style/appearance.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Tallyroll"));
  QApplication::setApplicationName(QStringLiteral("Tallyroll"));
  QApplication::setCursorFlashTime(0);
  // Each run has settings of its own.
  const QTemporaryDir home;
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
  // Windows look as they do in the program.
  const tallyroll::Appearance appearance(application);
  return RUN_ALL_TESTS();
}
