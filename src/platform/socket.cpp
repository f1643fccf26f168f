// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/socket.h"

namespace tallyroll {

SocketMaker MakeSocket = nullptr;

}  // namespace tallyroll
