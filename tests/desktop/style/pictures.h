// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures for the eye: TALLYROLL_PICTURES names the folder they go to, and TALLYROLL_PICTURE_CLASS
// the class they show. TALLYROLL_PICTURE_LOOK takes one look alone. Without a folder there is
// nothing to do.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QWidget>
#include <functional>
#include <string>

#include "tests/desktop/style/looks.h"

namespace tallyroll {

inline QString PictureFolder() {
  return qEnvironmentVariable("TALLYROLL_PICTURES");
}

inline std::string PictureClass() {
  return qEnvironmentVariable("TALLYROLL_PICTURE_CLASS").toStdString();
}

inline void Keep(QWidget& window, const QString& look, const QString& name) {
  const QString folder = PictureFolder();
  QDir(folder).mkpath(look);
  EXPECT_TRUE(window.grab().save(QStringLiteral("%1/%2/%3.png").arg(folder, look, name)));
}

// In each look that is wanted, with its name.
inline void ForEachLook(const std::function<void(const QString&)>& take) {
  const QString only = qEnvironmentVariable("TALLYROLL_PICTURE_LOOK");
  for (const Look& look : kLooks) {
    const QString name = QString::fromLatin1(look.name);
    if (!only.isEmpty() && only != name) continue;
    const WornLook worn(look);
    take(name);
  }
}

}  // namespace tallyroll
