// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/appearance_menu.h"

#include <QActionGroup>
#include <QMenu>
#include <functional>

#include "desktop/style/appearance.h"

namespace tallyroll {
namespace {

QAction* AddChoice(QMenu& menu, QActionGroup* group, const QString& caption, const QString& status,
                   bool chosen, const std::function<void()>& choose) {
  QAction* action = menu.addAction(caption);
  action->setCheckable(true);
  action->setChecked(chosen);
  action->setStatusTip(status);
  action->setActionGroup(group);
  // Queued: the menu that was pressed must not be made anew while it closes.
  QObject::connect(action, &QAction::triggered, &menu, choose, Qt::QueuedConnection);
  return action;
}

void AddThemes(QMenu& menu, Appearance& appearance) {
  auto* group = new QActionGroup(&menu);
  const auto add = [&](Theme theme, const QString& caption, const QString& status) {
    AddChoice(menu, group, caption, status, appearance.theme() == theme,
              [&appearance, theme] { appearance.SetTheme(theme); });
  };
  add(Theme::kSystem, QObject::tr("As the &Desktop"), QObject::tr("Light or dark as the desktop"));
  add(Theme::kLight, QObject::tr("&Light"), QObject::tr("Dark text on a light ground"));
  add(Theme::kDark, QObject::tr("Dar&k"), QObject::tr("Light text on a dark ground"));
}

void AddDensities(QMenu& menu, Appearance& appearance) {
  auto* group = new QActionGroup(&menu);
  const auto add = [&](Density density, const QString& caption, const QString& status) {
    AddChoice(menu, group, caption, status, appearance.density() == density,
              [&appearance, density] { appearance.SetDensity(density); });
  };
  add(Density::kCompact, QObject::tr("&Compact"), QObject::tr("More on the screen, smaller"));
  add(Density::kNormal, QObject::tr("&Normal"), QObject::tr("The usual size"));
  add(Density::kRoomy, QObject::tr("&Roomy"), QObject::tr("Less on the screen, larger"));
}

void Fill(QMenu& menu) {
  Appearance* appearance = Appearance::Instance();
  if (!menu.isEmpty() || appearance == nullptr) return;
  AddThemes(menu, *appearance);
  menu.addSeparator();
  AddDensities(menu, *appearance);
  menu.addSeparator();
  AddChoice(menu, nullptr, QObject::tr("&Words in the Toolbar"),
            QObject::tr("Words below the icons of the toolbar"), appearance->WordsInToolbar(),
            [appearance] { appearance->SetWordsInToolbar(!appearance->WordsInToolbar()); });
}

}  // namespace

QMenu* MakeDensityMenu(QWidget* parent) {
  auto* menu = new QMenu(parent);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] {
    menu->clear();
    if (Appearance* appearance = Appearance::Instance()) AddDensities(*menu, *appearance);
  });
  return menu;
}

// Filled when it drops down: a start that nobody looks at the menu in shall not wait for it.
void AddAppearanceMenu(QMenu& menu) {
  menu.addSeparator();
  QMenu* choices = menu.addMenu(QObject::tr("A&ppearance"));
  choices->menuAction()->setObjectName(QStringLiteral("mnuAppearance"));
  choices->menuAction()->setStatusTip(QObject::tr("Light or dark, small or large"));
  QObject::connect(choices, &QMenu::aboutToShow, choices, [choices] {
    choices->clear();
    Fill(*choices);
  });
}

}  // namespace tallyroll
