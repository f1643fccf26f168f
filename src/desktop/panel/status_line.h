// SPDX-License-Identifier: GPL-3.0-or-later
// The status bar of a class window: what a press would do or what was done at the left, the class
// at the right.
#pragma once

#include <QWidget>
#include <array>

class QLabel;
class QMenu;
class QToolButton;

namespace tallyroll {

struct ClassGlance;

class StatusLine : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  // What the button of the density drops down.
  void TakeDensities(QMenu* menu);
  void ShowMessage(const QString& text);
  // `name` stands for a class without a description.
  void ShowClass(const ClassGlance& glance, const QString& name);
  void ShowChanged(bool changed);
  void ShowPanel(bool shown);

 Q_SIGNALS:
  void PanelPressed();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void FitFacts();
  QToolButton* AddTool(const QString& name, const QString& said);
  void DrawIcons();

  QLabel* message_;
  std::array<QLabel*, 5> facts_;  // class, students, grades, method, average
  QLabel* changed_;
  QToolButton* density_;
  QToolButton* panel_;
};

}  // namespace tallyroll
