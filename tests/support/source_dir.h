// SPDX-License-Identifier: GPL-3.0-or-later
// Where the checkout lies that the tests were built from. One file knows the path, so that a
// compiler cache serves every checkout.
#pragma once

#include <string>

namespace tallyroll {

std::string SourceDir();

}  // namespace tallyroll
