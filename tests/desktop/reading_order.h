// SPDX-License-Identifier: GPL-3.0-or-later
// The order in which the eye goes through a layout: row by row, in each from the left.
#pragma once

#include <vector>

class QLayout;
class QLayoutItem;

namespace tallyroll {

std::vector<QLayoutItem*> ItemsInReadingOrder(QLayout& layout);

}  // namespace tallyroll
