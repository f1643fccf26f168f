// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace tallyroll {

// The toolkit's style with boxes and rings to tick that stand out from their ground, light or dark.
class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace tallyroll
