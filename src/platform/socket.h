// SPDX-License-Identifier: GPL-3.0-or-later
// A connection to a server that speaks in lines of text. What comes is told by events; nothing
// waits.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tallyroll {

inline constexpr int kSocketClosedByServer = 10054;
inline constexpr int kSocketHostNotFound = 11001;
inline constexpr int kSocketNoNetwork = 11004;

class Socket {
 public:
  virtual ~Socket() = default;

  // Ends what was there before.
  virtual void Connect(const std::string& host, int port) = 0;
  virtual void SendData(std::string_view bytes) = 0;
  // All that was received and not taken yet.
  virtual std::string GetData() = 0;
  // No event of what was there comes afterwards.
  virtual void Close() = 0;

  std::function<void()> data_arrival;
  std::function<void(int number, const std::string& description)> error;
};

// Handed over by the surroundings.
using SocketMaker = std::unique_ptr<Socket> (*)();
extern SocketMaker MakeSocket;

}  // namespace tallyroll
