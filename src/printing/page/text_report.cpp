// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/text_report.h"

#include "base/line_reader.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLineWidth = 80;

}  // namespace

void TextReport::Tab(int column) {
  const int before = column - 1;
  if (Column() >= before && Column() > 0)
    text_ += ' ';
  else
    text_.append(static_cast<std::size_t>(before - Column()), ' ');
}

void TextReport::Bar(int column) {
  if (Column() != column - 1) Tab(column);
}

void TextReport::End(std::string_view text) {
  text_ += text;
  text_ += "\r\n";
  line_start_ = text_.size();
}

void TextReport::Paragraph(std::string_view text) {
  LineReader lines(text);
  while (auto line = lines.Next()) {
    while (line->size() > kLineWidth) {
      const std::size_t blank = line->rfind(' ', kLineWidth);
      const bool none = blank == std::string_view::npos || blank == 0;
      End(line->substr(0, none ? kLineWidth : blank));
      line->remove_prefix(none ? kLineWidth : blank + 1);
    }
    End(*line);
  }
}

}  // namespace tallyroll
