// SPDX-License-Identifier: GPL-3.0-or-later
// How the program looks: its style and its dark palette.
#include "desktop/basics/appearance.h"

#include <QApplication>

#include "desktop/basics/palette_icon.h"
#include "desktop/basics/program_style.h"

namespace tallyroll {

QPalette DarkPalette() {
  const QColor window(0x2b, 0x2d, 0x30), base(0x1e, 0x1f, 0x22), text(0xe6, 0xe6, 0xe6);
  const QColor grey(0x8a, 0x8d, 0x91), blue(0x2f, 0x6f, 0xb5);
  QPalette palette(text, QColor(0x3a, 0x3d, 0x41), QColor(0x55, 0x58, 0x5c),
                   QColor(0x18, 0x19, 0x1b), QColor(0x24, 0x26, 0x29), text, Qt::white, base,
                   window);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3d, 0x41));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, grey);
  palette.setColor(QPalette::Highlight, blue);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(QLatin1StringView(kAccentOnDark)));
  palette.setColor(QPalette::LinkVisited, QColor(0xb9, 0xa3, 0xf0));
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, grey);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a, 0x4d, 0x51));
  return palette;
}

void SetAppearance(QApplication& application, bool dark) {
  application.setStyle(new ProgramStyle);
  if (dark) application.setPalette(DarkPalette());
}

}  // namespace tallyroll
