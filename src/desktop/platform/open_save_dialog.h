// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog in which the user picks a file to open or a name to save under.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/surroundings.h"

class QWidget;

namespace tallyroll {

std::optional<std::string> ShowFileDialog(const FileDialogRequest& request, QWidget* parent);

// "Data Files (*.tyr)|*.TYR" to "Data Files (*.tyr *.TYR)": one filter for each pair, in both
// cases of the letters, since names here tell them apart and the files of other systems do not.
QStringList FiltersOf(const QString& filter);

}  // namespace tallyroll
