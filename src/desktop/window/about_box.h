// SPDX-License-Identifier: GPL-3.0-or-later
// What this program is.
#pragma once

class QWidget;

namespace tallyroll {

void ShowAboutBox(QWidget* parent);

}  // namespace tallyroll
