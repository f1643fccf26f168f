// SPDX-License-Identifier: GPL-3.0-or-later
// A socket whose server is the test.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/socket.h"

namespace tallyroll {

class ScriptedSocket : public Socket {
 public:
  void Connect(const std::string& to, int at) override {
    host = to;
    port = at;
    ++connections;
    open = true;
    sent.clear();
  }
  void SendData(std::string_view bytes) override {
    if (open) sent.emplace_back(bytes);
  }
  std::string GetData() override { return std::exchange(received, {}); }
  void Close() override {
    open = false;
    received.clear();
  }

  // The server says something.
  void Say(std::string_view text) {
    if (!open) return;
    received += text;
    data_arrival();
  }
  void Fail(int number, const std::string& description) { error(number, description); }
  // What was sent since it was asked last.
  std::string Sent() {
    std::string all;
    for (const std::string& piece : std::exchange(sent, {})) all += piece;
    return all;
  }

  std::string host;
  int port = 0;
  int connections = 0;
  bool open = false;
  std::string received;
  std::vector<std::string> sent;
};

}  // namespace tallyroll
