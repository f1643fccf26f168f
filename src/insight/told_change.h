// SPDX-License-Identifier: GPL-3.0-or-later
// One change of a class in words, and taken back.
#pragma once

#include <string>
#include <string_view>

#include "store/change/named_changes.h"

namespace tallyroll {

// A field as a teacher calls it; its own name where it has no better one.
std::string_view WordsOfField(std::string_view field);

// Puts into the class in work what stood before the change: a mark, or what is told of a student.
// Answers why it cannot be done; empty when it was.
std::string TakeBackChange(const NamedChange& change);

}  // namespace tallyroll
