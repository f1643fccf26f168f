// SPDX-License-Identifier: GPL-3.0-or-later
// Rich text files (RTF) in. The reader takes what a letter holds and names the rest; of the words
// it loses none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace tallyroll {

struct RtfReading {
  RichText text;
  // What the letter cannot hold, a line each, such as "3 pictures were left out".
  std::vector<std::string> left_out;
  // Why these bytes are no rich text, or where they end too early; `text` then is what was read.
  std::string error;
};

RtfReading ReadRtf(std::string_view bytes);

}  // namespace tallyroll
