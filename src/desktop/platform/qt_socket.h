// SPDX-License-Identifier: GPL-3.0-or-later
// A Socket by Qt.
#pragma once

#include <QPointer>
#include <QTcpSocket>

#include "platform/socket.h"

namespace tallyroll {

std::unique_ptr<Socket> MakeQtSocket();

// The number under which a Portal is told of an error.
int SocketErrorNumber(QAbstractSocket::SocketError error);

}  // namespace tallyroll
