// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that is drawn on a print target, as the bytes of a PNG file.
#pragma once

#include <functional>
#include <string>

#include "platform/print_target.h"

namespace tallyroll {

// Width and height in twips; empty when the picture cannot be made.
std::string PngPicture(double width, double height, int dots_per_inch,
                       const std::function<void(PrintTarget&)>& draw);

}  // namespace tallyroll
