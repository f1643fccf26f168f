// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the side panel and the status line true to the class and its current cell. It follows when
// the keys rest: a held-down arrow never waits for it.
#pragma once

#include <QTimer>
#include <string>

#include "insight/class_glance.h"

namespace tallyroll {

class Form1;
class SidePanel;
class StatusLine;

class PanelFollower : public QObject {
 public:
  PanelFollower(Form1& form, SidePanel& panel, StatusLine& line, QObject* parent);

  // Called whenever the class window shows what it says now.
  void Follow();
  // The class is about to go.
  void LetGo();

 private:
  // What the panel hangs on.
  struct State {
    int refills = -1;
    int row = -1;
    int col = -1;
    bool panel = false;
    std::string caption = {};

    friend bool operator==(const State&, const State&) = default;
  };

  State Now() const;
  void Refresh();

  Form1* form_;
  SidePanel& panel_;
  StatusLine& line_;
  QTimer rest_;
  State seen_;     // what is shown
  State awaited_;  // what will be, once the keys rest
  ClassGlance class_;
};

}  // namespace tallyroll
