// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold for every Portal and its form.
#pragma once

#include <QStringList>

#include "platform/portal.h"

namespace tallyroll {

// All complaints about a Portal that is made and not loaded, and its form.
QStringList CheckPortalForm(Portal& portal, const QString& form_file);

}  // namespace tallyroll
