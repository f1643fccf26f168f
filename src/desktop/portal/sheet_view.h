// SPDX-License-Identifier: GPL-3.0-or-later
// A sheet of paper on the screen: white in every palette, as large as the paper at its zoom.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "platform/controls.h"

namespace tallyroll {

class SheetView : public QWidget {
  Q_OBJECT

 public:
  explicit SheetView(QWidget* parent = nullptr);

  // Draws the sheet anew when it has changed since the last time, and only then; as large as fits
  // `room` where the box asks for that.
  void ShowSheet(const PictureBox& box, const QSize& room);
  // The words of the sheet, for who hears the screen.
  const QString& Words() const { return words_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Look {
    unsigned revision = 0;
    double zoom = 0, width = 0, height = 0;

    friend bool operator==(const Look&, const Look&) = default;
  };
  Look LookOf(const PictureBox& box, const QSize& room) const;
  QPixmap Draw(const PictureBox& box, double zoom);

  Look shown_;
  QPixmap sheet_;
  QString words_;
  bool drawing_ = false;
};

}  // namespace tallyroll
