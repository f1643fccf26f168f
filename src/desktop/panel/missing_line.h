// SPDX-License-Identifier: GPL-3.0-or-later
// A missing mark in the side panel: its chip and the title of its grade.
#pragma once

#include <QAbstractButton>

#include "insight/student_glance.h"

namespace tallyroll {

class PanelChip;
class PanelWords;

class MissingLine : public QAbstractButton {
  Q_OBJECT

 public:
  explicit MissingLine(QWidget* parent = nullptr);

  void Show(const MissingMark& missing);
  int grade() const { return grade_; }
  QSize sizeHint() const override;

 Q_SIGNALS:
  // A double click or Enter; a click or the space bar presses the button.
  void Chosen();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PanelChip* chip_;
  PanelWords* title_;
  int grade_ = 0;
};

}  // namespace tallyroll
