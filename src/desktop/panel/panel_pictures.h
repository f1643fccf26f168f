// SPDX-License-Identifier: GPL-3.0-or-later
// The two small pictures of the side panel. What they draw is told in words as well.
#pragma once

#include <QWidget>

#include "desktop/basics/spoken_role.h"
#include "insight/grade_glance.h"
#include "insight/student_glance.h"

namespace tallyroll {

// All percents of a student, from 40 up, with the line that passes.
class PercentLine : public QWidget, public SpokenAs {
 public:
  explicit PercentLine(QWidget* parent = nullptr);

  // The point of `grade` is larger.
  void Show(const StudentGlance& student, int grade);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF PlaceOf(std::size_t i, int percent) const;
  void PaintPassing(QPainter& painter) const;
  void PaintPoints(QPainter& painter) const;

  std::vector<GlancePoint> line_;
  int grade_ = 0;
};

// The marks of a grade by tens of percent, with their counts; the failing part of a bar is red.
class TenBars : public QWidget, public SpokenAs {
 public:
  explicit TenBars(QWidget* parent = nullptr);

  void Show(const GradeGlance& grade);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect BarOf(std::size_t ten, const QRect& room) const;
  void PaintBar(QPainter& painter, std::size_t ten, const QRect& room) const;

  std::array<MarksInTen, kTens> tens_{};
  int own_ = -1;
};

}  // namespace tallyroll
