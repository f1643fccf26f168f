// SPDX-License-Identifier: GPL-3.0-or-later
// Size and place of each window are kept between runs.
#pragma once

class QString;
class QWidget;

namespace tallyroll {

void RestorePlace(QWidget& window, const QString& name);
void SavePlace(const QWidget& window, const QString& name);

}  // namespace tallyroll
