// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes as the logic asks for them.
#pragma once

#include "platform/surroundings.h"

class QWidget;

namespace tallyroll {

BoxAnswer ShowMessageBox(const MessageRequest& request, QWidget* parent);

}  // namespace tallyroll
