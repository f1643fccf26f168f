// SPDX-License-Identifier: GPL-3.0-or-later
// The password of a class file: a lock against curious eyes, no protection of the contents.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tallyroll {

// The bits that this program turns over. Another list would not match passwords already stored.
inline constexpr std::array<int, 3> kPasswordBits = {1, 3, 6};

// Turns the given bits of every character over; the list ends at a number above 7. Done twice, it
// gives the text back.
std::string ScramblePassword(std::string_view text, std::span<const int> bits = kPasswordBits);

// Whether what the teacher entered is the stored, scrambled password. Nothing entered never is.
bool PasswordMatches(std::string_view entry, std::string_view stored);

}  // namespace tallyroll
