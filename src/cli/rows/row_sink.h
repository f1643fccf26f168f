// SPDX-License-Identifier: GPL-3.0-or-later
// Where rows go: a block at a time, and in the order of the files however many jobs make them.
#pragma once

#include <cstring>
#include <functional>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace tallyroll {

class RowSink {
 public:
  explicit RowSink(std::ostream& out);

  // The rows of the next file follow. `wait` returns when their turn to be written has come; false:
  // it will never come.
  void BeginFile(std::function<bool()> wait);
  // A row, put together of its parts.
  void AddRow(std::string_view head, std::string_view middle, std::string_view end) {
    if (used_ + head.size() + middle.size() + end.size() > text_.size())
      MakeRoom(head.size() + middle.size() + end.size());
    Put(head);
    Put(middle);
    Put(end);
    if (used_ >= most_) WriteOut();
  }
  // The rows of the file are whole; what another job writes may follow.
  void EndFile();
  // Nobody takes rows any more.
  bool closed() const { return closed_; }

 private:
  static constexpr std::size_t kBlock = std::size_t{1} << 16;
  // Until its turn a job keeps that much, then it waits.
  static constexpr std::size_t kMostKept = std::size_t{1} << 20;

  void Put(std::string_view part) {
    std::memcpy(text_.data() + used_, part.data(), part.size());
    used_ += part.size();
  }
  void MakeRoom(std::size_t size);
  void WriteOut();

  std::ostream& out_;
  std::function<bool()> wait_;  // null once the turn has come
  std::vector<char> text_;  // stays from file to file: memory of its own for each would cost more
  std::size_t used_ = 0;
  std::size_t most_ = kMostKept;
  bool closed_ = false;
};

}  // namespace tallyroll
