// SPDX-License-Identifier: GPL-3.0-or-later
// The first start: the sample class is offered, and five steps point at what is used every day.
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QMainWindow;
class QPushButton;

namespace tallyroll {

class TourMark;

// Whether neither this version nor one before it ever kept settings here, and the tour was not
// offered yet. Asked before the settings are loaded.
bool IsFirstStart();

// Stands over the frame and takes nothing away from it: keys and mouse reach everything else.
// Escape leaves it at any step.
class Tour : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kSteps = 5;

  // Offers the sample class; from here on no start is the first.
  explicit Tour(QMainWindow& frame);

  // 0 while the sample is offered.
  int Step() const { return step_; }
  // What the step points at; null when that is not on the screen.
  QWidget* Target() const { return target_; }

 Q_SIGNALS:
  void SampleWanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Begin();
  void ShowStep(int step);
  void Leave();
  void PlaceIt();
  QWidget* TargetOf(int step) const;

  QMainWindow& frame_;
  TourMark* mark_;  // the frame around the target
  QLabel* title_;
  QLabel* text_;
  QPushButton* back_;
  QPushButton* next_;
  QPushButton* leave_;
  QPointer<QWidget> target_;
  QPointer<QWidget> before_;  // had the focus when the sample was offered
  bool beginning_ = false;    // the sample is about to open
  int step_ = 0;
};

}  // namespace tallyroll
