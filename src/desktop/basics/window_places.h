// SPDX-License-Identifier: GPL-3.0-or-later
// Size and place of each window are kept between runs, within the screen.
#pragma once

class QString;
class QWidget;

namespace tallyroll {

// Makes a window that is larger than the screen's free area as large as that.
void KeepOnScreen(QWidget& window);

void RestorePlace(QWidget& window, const QString& name);
void SavePlace(const QWidget& window, const QString& name);

}  // namespace tallyroll
