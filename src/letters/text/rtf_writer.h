// SPDX-License-Identifier: GPL-3.0-or-later
// Rich text files (RTF) out: plain ASCII, which every word processor of the last thirty years
// reads.
#pragma once

#include <string>

#include "platform/rich_text.h"

namespace tallyroll {

// Reading it gives the same letter back.
std::string WriteRtf(const RichText& text);

}  // namespace tallyroll
