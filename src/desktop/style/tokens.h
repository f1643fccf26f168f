// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of colours that everything on the screen is drawn with, and the sizes of type.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace tallyroll {

struct Tokens {
  QColor window;   // ground of windows and bars, and what lies beyond a sheet
  QColor surface;  // cells, fields, lists
  QColor raised;   // buttons, menus, cards
  QColor header;   // heads of grids, days without school, a chip without a colour
  QColor zebra;    // pinned columns
  QColor total;    // totals, and figures that are only shown
  QColor text, muted, off;
  QColor line;         // rules
  QColor grid_line;    // between cells
  QColor strong_line;  // below a head, beside pinned columns, every fifth row
  QColor border;       // fields, buttons, ticks, thumbs
  QColor accent, accent_hover, accent_pressed, on_accent;
  QColor focus;  // the ring of what has the focus; links; the code of the current column
  QColor accent_soft;
  QColor selection;
  QColor hover, pressed;
  QColor danger, danger_soft;
  QColor warning, warning_soft;
  QColor success, success_soft;
  QColor tooltip, on_tooltip;
  QColor desk;  // what a sheet of paper lies on
  bool dark = false;
};

const Tokens& LightTokens();
const Tokens& DarkTokens();

// The table that a palette stands for: one of the two above for ours, and one derived from its own
// colours for any other, so that a desktop's high contrast stays what it is.
Tokens TokensOf(const QPalette& palette);

// Complete in all three groups.
QPalette PaletteOf(const Tokens& tokens);

// 1 to 21.
double Contrast(const QColor& one, const QColor& other);

// `share` 0 is `one`, 1 is `other`.
QColor Mix(const QColor& one, const QColor& other, double share);

// What a text is for decides its size beside the usual one, and its weight.
enum class TextUse { kDisplay, kTitle, kName, kHeading, kText, kCell, kSmall, kChip };

QFont FontFor(const QFont& usual, TextUse use);

}  // namespace tallyroll
