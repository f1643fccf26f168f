// SPDX-License-Identifier: GPL-3.0-or-later
// What a widget gets from the style beside its drawing: the type of its words, a calendar's days.
#pragma once

#include "desktop/style/measures.h"

class QWidget;

namespace tallyroll {

// Called when a widget comes under the style, and again whenever the look has changed.
void PolishWidget(QWidget& widget, const Measures& measures);

}  // namespace tallyroll
