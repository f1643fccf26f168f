// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/refused_character.h"

#include <QToolTip>
#include <QWidget>

namespace tallyroll {

QString RefusedCharacterText(const QString& character) {
  return QStringLiteral("The character \"%1\" cannot be stored in a class file.").arg(character);
}

void ShowRefusedCharacter(QWidget& field, const QString& character) {
  // As plain text: a pasted "<" must not turn the note into markup.
  const QString text = RefusedCharacterText(character).toHtmlEscaped();
  QToolTip::showText(field.mapToGlobal(QPoint(0, field.height())), text, &field);
}

}  // namespace tallyroll
