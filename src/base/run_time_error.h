// SPDX-License-Identifier: GPL-3.0-or-later
// Run-time errors by the numbers that a teacher reads in "File Error: 61".
#pragma once

#include <string>

namespace tallyroll {

inline constexpr int kErrorOverflow = 6;         // a number beyond Currency or 16 bits
inline constexpr int kErrorSubscript = 9;        // an item beyond its list
inline constexpr int kErrorDivisionByZero = 11;  // a division by nothing
inline constexpr int kErrorTypeMismatch = 13;    // a text that is no number where one is needed
inline constexpr int kErrorFileNotFound = 53;
inline constexpr int kErrorDevice = 57;  // also a file whose descriptors contradict themselves
inline constexpr int kErrorDiskFull = 61;
inline constexpr int kErrorPastEnd = 62;
inline constexpr int kErrorPermission = 70;
inline constexpr int kErrorPathAccess = 75;
inline constexpr int kErrorPathNotFound = 76;

// Thrown inside a routine and caught in the same routine's handler; no routine lets it out.
struct RunTimeError {
  int number = 0;
};

// The number of a failed system call, from its errno value.
int RunTimeErrorOf(int system_error);

}  // namespace tallyroll
