// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QPalette>
#include <QProxyStyle>

namespace tallyroll {

// The toolkit's style with boxes and rings to tick that stand out from their ground, light or dark,
// and on a dark ground with borders and window buttons that do so too.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;

 private:
  QPalette Outlined(const QPalette& palette) const;
  template <typename Option>
  bool DrawOutlined(PrimitiveElement element, const QStyleOption& option, QPainter* painter,
                    const QWidget* widget) const;

  mutable QHash<qint64, QPalette> outlined_;  // by the key of the palette it was made of
};

}  // namespace tallyroll
