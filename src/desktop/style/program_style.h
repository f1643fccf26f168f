// SPDX-License-Identifier: GPL-3.0-or-later
// The one style of every window. It draws the controls in the colours of the table that their
// palette stands for; what it does not draw is the toolkit's.
#pragma once

#include <QProxyStyle>

#include "desktop/style/measures.h"

namespace tallyroll {

class ProgramStyle : public QProxyStyle {
  Q_OBJECT

 public:
  explicit ProgramStyle(const Measures& measures = {});

  const Measures& measures() const { return measures_; }

  void polish(QWidget* widget) override;
  void unpolish(QWidget* widget) override;
  void polish(QApplication* application) override;
  void unpolish(QApplication* application) override;
  void polish(QPalette& palette) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int layoutSpacing(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                    Qt::Orientation orientation, const QStyleOption* option,
                    const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
  QPixmap standardPixmap(StandardPixmap icon, const QStyleOption* option,
                         const QWidget* widget) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Measures measures_;
  bool alt_is_held_ = false;
};

// Those of the application's style; of the usual font where the toolkit draws.
Measures ScreenMeasures();

}  // namespace tallyroll
