// SPDX-License-Identifier: GPL-3.0-or-later
// Says at the field that a character typed or pasted cannot be kept.
#pragma once

#include <QString>

class QWidget;

namespace tallyroll {

QString RefusedCharacterText(const QString& character);
void ShowRefusedCharacter(QWidget& field, const QString& character);

}  // namespace tallyroll
