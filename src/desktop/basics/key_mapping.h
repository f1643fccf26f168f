// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of the screen to keys that Portals know.
#pragma once

#include <optional>

#include "platform/portal.h"

class QKeyEvent;

namespace tallyroll {

// A key that Portals ask for by name; nothing for any other.
std::optional<Key> KeyOf(const QKeyEvent& event);
// The character that a key types, 8 for Backspace; nothing when it types none that can be kept.
std::optional<unsigned char> CharacterOf(const QKeyEvent& event);

}  // namespace tallyroll
