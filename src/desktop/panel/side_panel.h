// SPDX-License-Identifier: GPL-3.0-or-later
// The side panel of a class window: the student and the grade of the current cell at a glance. It
// shows and points; it changes nothing.
#pragma once

#include <QScrollArea>
#include <array>

#include "insight/class_glance.h"
#include "insight/grade_glance.h"
#include "insight/student_glance.h"

class QToolButton;
class QVBoxLayout;

namespace tallyroll {

class MissingLine;
class PanelChip;
class PanelDisc;
class PanelFigure;
class PanelWords;
class PercentLine;
class TenBars;

class SidePanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit SidePanel(QWidget* parent = nullptr);

  // What it tells of a student without one and of a grade without one is a sentence.
  void Show(const StudentGlance& student, const GradeGlance& grade, const RankInClass& rank);
  // Whether the place of the student in the class is told; others may look on. Kept between runs.
  static bool TellsRank();
  // Gives the focus to the first thing in it that can be pressed.
  void FocusFirst();

  QSize sizeHint() const override;

 Q_SIGNALS:
  void GradePointed(int grade);  // a click on a missing mark
  void GradeChosen(int grade);   // a double click
  void MethodAsked();            // a class without a method
  void RankSwitched();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QWidget* MakeStudent();
  QWidget* MakeMissing();
  QWidget* MakeGrade();
  void ShowStudent(const StudentGlance& student, int grade, const RankInClass& rank);
  void ShowAverage(const StudentGlance& student, const RankInClass& rank);
  void ShowMissing(const StudentGlance& student);
  void ShowGrade(const GradeGlance& grade);

  static constexpr std::size_t kMissingLines = 4;

  PanelWords* nothing_;
  QWidget *student_, *averages_, *missing_, *grade_;
  QFrame* rule_;
  PanelDisc* disc_;
  PanelWords *name_, *id_, *error_, *no_method_;
  QToolButton* make_up_;
  PanelFigure *average_, *final_, *rank_;
  PanelChip* final_chip_;
  PercentLine* percents_;
  PanelWords *missing_count_, *more_missing_, *attendance_;
  std::array<MissingLine*, kMissingLines> missing_lines_;
  PanelWords *title_, *facts_, *counts_;
  PanelFigure *mark_, *class_average_, *median_, *to_pass_;
  TenBars* bars_;
};

}  // namespace tallyroll
