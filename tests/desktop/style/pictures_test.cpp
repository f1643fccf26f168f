// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of every window, for the eye: TALLYROLL_PICTURES names the folder they go to, and
// TALLYROLL_PICTURE_CLASS the class they show. TALLYROLL_PICTURE_LOOK takes one look alone, and
// TALLYROLL_PICTURE_FORMS forms that are not built in yet. Without a folder there is nothing to do.
#include <QCalendarWidget>
#include <QDir>
#include <QTabWidget>

#include "desktop/style/appearance.h"
#include "shell/opened_class.h"
#include "tests/desktop/every_window.h"

namespace tallyroll {
namespace {

struct Look {
  const char* name;
  Theme theme;
  Density density;
};

constexpr Look kLooks[] = {{"light", Theme::kLight, Density::kNormal},
                           {"dark", Theme::kDark, Density::kNormal},
                           {"compact", Theme::kLight, Density::kCompact},
                           {"roomy", Theme::kLight, Density::kRoomy}};

class Pictures : public EveryWindow {
 protected:
  QString folder = qEnvironmentVariable("TALLYROLL_PICTURES");
  std::string file = qEnvironmentVariable("TALLYROLL_PICTURE_CLASS").toStdString();

  void Keep(QWidget& window, const QString& look, const QString& name) const {
    QDir(folder).mkpath(look);
    EXPECT_TRUE(window.grab().save(QStringLiteral("%1/%2/%3.png").arg(folder, look, name)));
  }
};

TEST_F(Pictures, OfEveryPortalInEveryLook) {
  if (folder.isEmpty()) GTEST_SKIP() << "TALLYROLL_PICTURES is not set";
  forms_folder = qEnvironmentVariable("TALLYROLL_PICTURE_FORMS");
  const QString only = qEnvironmentVariable("TALLYROLL_PICTURE_LOOK");
  ASSERT_TRUE(file.empty() || OpenClass(file));
  for (const Look& look : kLooks) {
    if (!only.isEmpty() && only != QLatin1String(look.name)) continue;
    Appearance::Instance()->SetTheme(look.theme);
    Appearance::Instance()->SetDensity(look.density);
    const QString sub = QString::fromLatin1(look.name);
    ForEach([&](const std::string& name, PortalDialog& dialog) {
      Keep(dialog, sub, QString::fromStdString(name));
      for (auto* tabs : dialog.findChildren<QTabWidget*>())
        for (int i = 1; i < tabs->count(); ++i) {
          tabs->setCurrentIndex(i);
          Keep(dialog, sub, QStringLiteral("%1-page%2").arg(QString::fromStdString(name)).arg(i));
        }
    });
    QCalendarWidget calendar;
    calendar.show();
    Keep(calendar, sub, QStringLiteral("calendar"));
  }
  Appearance::Instance()->SetTheme(Theme::kSystem);
  Appearance::Instance()->SetDensity(Density::kNormal);
}

}  // namespace
}  // namespace tallyroll
