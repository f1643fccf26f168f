// SPDX-License-Identifier: GPL-3.0-or-later
// A chart on the screen, drawn as on paper in the colours of the palette. The pointer and the
// arrow keys tell what its points say; its context menu copies and saves the picture.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <string>
#include <vector>

#include "analysis/chart_drawing.h"
#include "desktop/basics/spoken_role.h"

namespace tallyroll {

class ChartWidget : public QWidget, public SpokenAs {
  Q_OBJECT

 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  // The chart is read in place and drawn anew when the revision has moved; null is no chart.
  void ShowChart(const Chart* chart, unsigned revision);
  // In one sentence, what will stand here; shown while the chart has no point.
  void SetEmptyText(const QString& text);
  // The spot that is told at the moment; null when none is.
  const ChartSpot* CurrentSpot() const;
  const std::vector<ChartSpot>& Spots();
  // The middle of a spot, in pixels of the widget.
  QPoint PlaceOf(const ChartSpot& spot) const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {160, 120}; }

  void CopyPicture();
  void SavePicture();

 Q_SIGNALS:
  void spotClicked();
  void spotDoubleClicked();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  ChartColors Colors() const;
  double PixelsATwip() const;
  ChartFrame FrameInTwips() const;
  bool IsEmpty() const { return !chart_ || chart_->Points() == 0; }
  void DrawIfChanged();
  int SpotAt(QPointF pixels) const;
  void GoTo(int spot, bool tell_beside);
  // The next spot of the same kind, or the first or last of another kind.
  int Beside(int step) const;
  int InOtherRow(int step) const;

  const Chart* chart_ = nullptr;
  unsigned revision_ = 0;
  bool stale_ = true;
  QPixmap picture_;
  std::vector<ChartSpot> spots_;
  int current_ = -1;
  QString empty_text_;
  std::string font_;  // the screen's, by which the words of a chart are written
};

}  // namespace tallyroll
