// SPDX-License-Identifier: GPL-3.0-or-later
// Every window fits a screen of 1024 x 640: what is too large scrolls, and the buttons at the foot
// show.
#include <QAbstractButton>
#include <QApplication>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>

#include "desktop/basics/window_places.h"
#include "shell/portal_list.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

// The screen without the title and the borders of the window.
constexpr QSize kRoom(1024 - 16, 640 - 40);

class SmallScreen : public ClassDialogs {
 protected:
  SmallScreen() {
    MakePortal = MakePortalByName;
    Class& c = Current();
    for (int i = 1; i <= 14; ++i)
      AddGrade("The causes of the war, chapter " + std::to_string(i), i % 2 ? "T" : "Q");
    c.NumSummaries = 1;
    ReDim(c.Summaries, 1);
    c.Summaries[1] = {"First Quarter", "Q1", 1, 0, "", ""};
    OpenState = 15;
  }

  // The row of buttons at the foot, or the pages that hold it; all buttons where there is no such
  // row.
  QList<QAbstractButton*> FootButtons() {
    QLayout& whole = *dialog->layout();
    QLayoutItem& last = *whole.itemAt(whole.count() - 1);
    QList<QAbstractButton*> buttons;
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
      const bool in_row = last.layout() && last.layout()->indexOf(button) >= 0;
      const bool in_pages = last.widget() && last.widget()->isAncestorOf(button);
      if ((in_row || in_pages) && button->isVisible()) buttons << button;
    }
    if (!buttons.isEmpty()) return buttons;
    for (auto* button : dialog->findChildren<QPushButton*>())
      if (button->isVisible()) buttons << button;
    return buttons;
  }
};

TEST_F(SmallScreen, EveryPortalFitsAndShowsTheButtonsAtItsFoot) {
  int measured = 0;
  for (const std::string_view name : PortalNames()) {
    CurrentStudent = 1;
    const std::unique_ptr<Portal> portal = MakePortalByName(name);
    portal->Load();
    if (portal->Unloaded()) continue;
    dialog = std::make_unique<PortalDialog>(*portal);
    const QSize least = dialog->minimumSizeHint();
    EXPECT_LE(least.width(), kRoom.width()) << name;
    EXPECT_LE(least.height(), kRoom.height()) << name;
    dialog->resize(kRoom);
    dialog->show();
    EXPECT_EQ(dialog->size(), kRoom) << name;
    for (const QAbstractButton* button : FootButtons()) {
      const QRect place(button->mapTo(dialog.get(), QPoint(0, 0)), button->size());
      EXPECT_TRUE(dialog->rect().contains(place))
          << name << ": " << button->objectName().toStdString();
      EXPECT_GE(button->width(), button->minimumSizeHint().width()) << name;
    }
    dialog.reset();
    ++measured;
  }
  EXPECT_GE(measured, 30);
}

TEST_F(SmallScreen, APortalOpensWithinTheScreenItStandsOn) {
  const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
  for (const std::string_view name : PortalNames()) {
    CurrentStudent = 1;
    const std::unique_ptr<Portal> portal = MakePortalByName(name);
    portal->Load();
    if (portal->Unloaded()) continue;
    dialog = std::make_unique<PortalDialog>(*portal);
    const QSize size = dialog->size().expandedTo(dialog->minimumSizeHint());
    EXPECT_LE(size.height(), screen.height()) << name;
    EXPECT_LE(size.width(), std::max(screen.width(), dialog->minimumSizeHint().width())) << name;
    dialog.reset();
  }
}

TEST_F(SmallScreen, AWindowKeptFromALargerScreenIsCutToThisOne) {
  const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
  QWidget window;
  window.resize(3000, 2000);
  RestorePlace(window, QStringLiteral("NeverKept"));
  EXPECT_LE(window.width(), screen.width());
  EXPECT_LE(window.height(), screen.height());
}

TEST_F(SmallScreen, WhatGetsTheFocusByKeysComesIntoSight) {
  const std::unique_ptr<Portal> portal = MakePortalByName("frmEdit");
  CurrentStudent = 1;
  Open(*portal);
  dialog->resize(dialog->minimumSizeHint());
  dialog->focusWidget()->clearFocus();
  auto* body = dialog->findChild<QScrollArea*>();
  ASSERT_NE(body, nullptr);
  for (QLineEdit* field : dialog->findChildren<QLineEdit*>()) {
    if (!field->isVisible()) continue;
    field->setFocus(Qt::TabFocusReason);
    const QRect place(field->mapTo(body->viewport(), QPoint(0, 0)), field->size());
    EXPECT_TRUE(body->viewport()->rect().intersects(place)) << field->objectName().toStdString();
  }
  dialog.reset();
}

}  // namespace
}  // namespace tallyroll
