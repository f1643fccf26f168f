// SPDX-License-Identifier: GPL-3.0-or-later
// A report as a text file: columns are characters, and there are no pages.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

class TextReport {
 public:
  // The first column is 1. What reaches that column already is parted from it by one blank.
  void Tab(int column);
  // The same for a text that begins with a bar, which parts it from what it touches.
  void Bar(int column);
  void Put(std::string_view text) { text_ += text; }
  void End(std::string_view text = {});
  // `text` alone on a line.
  void Line(std::string_view text) { End(text); }
  // As many of the character, with a line end.
  void Row(int count, char character) {
    End(std::string(static_cast<std::size_t>(count), character));
  }
  // Words, wrapped at 80 characters; the text's own line ends stay.
  void Paragraph(std::string_view text);

  // How many characters the open line has.
  int Column() const { return static_cast<int>(text_.size() - line_start_); }

  // All lines, each closed by a carriage return and a line feed.
  const std::string& text() const { return text_; }

 private:
  std::string text_;
  std::size_t line_start_ = 0;
};

}  // namespace tallyroll
