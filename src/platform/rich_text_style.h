// SPDX-License-Identifier: GPL-3.0-or-later
// How parts of a rich text look, and how that is changed.
#pragma once

#include <functional>

#include "platform/rich_text.h"

namespace tallyroll {

// Every style within the range; for an empty one that of what is typed there.
std::vector<TextStyle> StylesIn(const RichText& text, std::size_t at, std::size_t count);
// What is typed at that place looks so.
TextStyle StyleAt(const RichText& text, std::size_t at);
TextAlign AlignAt(const RichText& text, std::size_t at);

// Changes the style of each unit of the range, and the marks of the empty paragraphs in it.
void Restyle(RichText& text, std::size_t at, std::size_t count,
             const std::function<void(TextStyle&)>& change);
// Changes each paragraph that the range touches.
void RestyleParagraphs(RichText& text, std::size_t at, std::size_t count,
                       const std::function<void(ParagraphStyle&)>& change);

}  // namespace tallyroll
