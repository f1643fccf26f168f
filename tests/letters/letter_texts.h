// SPDX-License-Identifier: GPL-3.0-or-later
// Letters as tests write and look at them.
#pragma once

#include <string>

#include "platform/rich_text.h"

namespace tallyroll {

// The words of a letter in UTF-8, a line a paragraph.
inline std::string WordsOf(const RichText& text) {
  return Utf8FromUtf16(PlainText(text));
}

// Each run as "[bi:text]" with a letter for what it is besides plain: b, i, u, s, ^ and _.
inline std::string RunsOf(const Paragraph& paragraph) {
  std::string shown;
  for (const TextRun& run : paragraph.runs) {
    const TextStyle& style = run.style;
    shown += "[";
    if (style.bold) shown += "b";
    if (style.italic) shown += "i";
    if (style.underline) shown += "u";
    if (style.strike) shown += "s";
    if (style.place == TextPlace::kSuper) shown += "^";
    if (style.place == TextPlace::kSub) shown += "_";
    shown += ":" + Utf8FromUtf16(run.text) + "]";
  }
  return shown;
}

}  // namespace tallyroll
