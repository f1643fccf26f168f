// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/qt_socket.h"

#include "desktop/basics/text_conversion.h"
#include "desktop/platform/qt_surroundings.h"

namespace tallyroll {
namespace {

// Each connection has a socket of its own: what is still on its way from an earlier one finds it
// gone. Events come from the event loop, never from within a call, so that a handler may show a
// box.
class QtSocket : public Socket {
 public:
  ~QtSocket() override { Drop(); }

  void Connect(const std::string& host, int port) override {
    Drop();
    socket_ = new QTcpSocket;
    QObject::connect(
        socket_, &QTcpSocket::readyRead, socket_, [this] { Arrived(); }, Qt::QueuedConnection);
    QObject::connect(
        socket_, &QTcpSocket::errorOccurred, socket_,
        [this](QAbstractSocket::SocketError which) { Failed(which); }, Qt::QueuedConnection);
    socket_->connectToHost(FromText(host), static_cast<quint16>(port));
  }

  void SendData(std::string_view bytes) override {
    if (socket_) socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  }

  std::string GetData() override {
    return socket_ ? socket_->readAll().toStdString() : std::string();
  }

  void Close() override { Drop(); }

 private:
  // What was sent is still passed on.
  void Drop() {
    if (!socket_) return;
    socket_->disconnect();
    socket_->disconnectFromHost();
    socket_->deleteLater();
    socket_ = nullptr;
  }

  void Arrived() {
    if (!socket_ || socket_->bytesAvailable() == 0) return;
    if (data_arrival) data_arrival();
    ShowOpenPortals();
  }

  void Failed(QAbstractSocket::SocketError which) {
    if (!socket_) return;
    const std::string description = ToText(socket_->errorString()).value_or("");
    if (error) error(SocketErrorNumber(which), description);
    ShowOpenPortals();
  }

  QPointer<QTcpSocket> socket_;
};

}  // namespace

std::unique_ptr<Socket> MakeQtSocket() {
  return std::make_unique<QtSocket>();
}

int SocketErrorNumber(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::HostNotFoundError:
      return kSocketHostNotFound;
    case QAbstractSocket::NetworkError:
      return kSocketNoNetwork;
    case QAbstractSocket::RemoteHostClosedError:
      return kSocketClosedByServer;
    case QAbstractSocket::ConnectionRefusedError:
      return 10061;
    case QAbstractSocket::SocketTimeoutError:
      return 10060;
    case QAbstractSocket::SocketAccessError:
      return 10013;
    case QAbstractSocket::SocketResourceError:
      return 10024;
    default:
      return 10050 + static_cast<int>(error);
  }
}

}  // namespace tallyroll
