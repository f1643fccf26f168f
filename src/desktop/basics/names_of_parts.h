// SPDX-License-Identifier: GPL-3.0-or-later
// Names for what the toolkit builds within a control and leaves without one: a screen reader comes
// to these parts as well.
#pragma once

#include <QObjectList>

namespace tallyroll {

// Of the objects of a form, whose labels are among them.
void NameParts(const QObjectList& objects);

}  // namespace tallyroll
