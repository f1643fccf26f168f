// SPDX-License-Identifier: GPL-3.0-or-later
// What a form says before any Portal stands behind it.
#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QVariant>
#include <map>
#include <string>

#include "desktop/portal/form_loader.h"

namespace tallyroll {

// By the name of the widget; "" is the title of the window.
using Texts = std::map<std::string, std::string>;

inline Texts TextsOf(const std::string& portal) {
  QDialog dialog;
  const LoadedForm form = Forms().Load(FormFile(portal), dialog);
  EXPECT_TRUE(form.complaints.isEmpty()) << portal;
  Texts texts{{"", dialog.windowTitle().toStdString()}};
  for (const QObject* object : form.objects)
    for (const char* property : {"text", "title"})
      if (const std::string text = object->property(property).toString().toStdString();
          !text.empty())
        texts[object->objectName().toStdString()] = text;
  return texts;
}

}  // namespace tallyroll
