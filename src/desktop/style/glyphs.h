// SPDX-License-Identifier: GPL-3.0-or-later
// Signs of thin lines within a square of 16: on the buttons of windows and bars, of files and
// folders.
#pragma once

#include <QColor>
#include <QRectF>
#include <QStyle>

class QPainter;

namespace tallyroll {

bool HasGlyph(QStyle::StandardPixmap icon);

// An invalid ground leaves what lies within the lines as it is.
void DrawGlyph(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon,
               const QColor& color, const QColor& ground = QColor());

}  // namespace tallyroll
