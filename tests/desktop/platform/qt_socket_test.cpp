// SPDX-License-Identifier: GPL-3.0-or-later
// The socket of the E-mail Portal against a server in this process.
#include "desktop/platform/qt_socket.h"

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTest>
#include <memory>

namespace tallyroll {
namespace {

class QtSocketTest : public testing::Test {
 protected:
  QtSocketTest() : socket(MakeQtSocket()) {
    server.listen(QHostAddress::LocalHost);
    socket->data_arrival = [this] { received += socket->GetData(); };
    socket->error = [this](int number, const std::string&) { errors.push_back(number); };
  }
  // The server's end of the next connection.
  std::unique_ptr<QTcpSocket> Connect() {
    socket->Connect("127.0.0.1", server.serverPort());
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.hasPendingConnections(); }));
    return std::unique_ptr<QTcpSocket>(server.nextPendingConnection());
  }

  QTcpServer server;
  std::unique_ptr<Socket> socket;
  std::string received;
  std::vector<int> errors;
};

TEST_F(QtSocketTest, SaysAndHears) {
  const auto end = Connect();
  end->write("220 hi\r\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return received == "220 hi\r\n"; }));
  socket->SendData("HELO a\r\n");
  QByteArray heard;
  EXPECT_TRUE(QTest::qWaitFor([&] { return (heard += end->readAll()) == "HELO a\r\n"; }));
  EXPECT_TRUE(errors.empty());
}

TEST_F(QtSocketTest, AServerThatHangsUpIsTold) {
  const auto end = Connect();
  end->write("421 bye\r\n");
  end->disconnectFromHost();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !errors.empty(); }));
  EXPECT_EQ(received, "421 bye\r\n");
  EXPECT_EQ(errors, std::vector<int>{kSocketClosedByServer});
}

TEST_F(QtSocketTest, NobodyThereIsTold) {
  const int port = server.serverPort();
  server.close();
  socket->Connect("127.0.0.1", port);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !errors.empty(); }));
  EXPECT_EQ(errors, std::vector<int>{10061});
}

TEST_F(QtSocketTest, NothingComesFromAConnectionThatWasLeft) {
  const auto first = Connect();
  first->write("220 first\r\n");
  first->flush();
  const auto second = Connect();
  second->write("220 second\r\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return received == "220 second\r\n"; }));
  socket->Close();
  second->write("more");
  second->disconnectFromHost();
  QTest::qWait(50);
  EXPECT_EQ(received, "220 second\r\n");
  EXPECT_TRUE(errors.empty());
}

TEST(SocketErrorNumber, ThePortalKnowsTwoOfThem) {
  EXPECT_EQ(SocketErrorNumber(QAbstractSocket::HostNotFoundError), 11001);
  EXPECT_EQ(SocketErrorNumber(QAbstractSocket::NetworkError), 11004);
}

}  // namespace
}  // namespace tallyroll
