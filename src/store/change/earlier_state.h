// SPDX-License-Identifier: GPL-3.0-or-later
// An earlier state of the class in work, as the bytes of a class file, and what of it is taken
// back.
#pragma once

#include <string>
#include <string_view>

#include "store/records.h"

namespace tallyroll {

// Reads such bytes into a record that is fit to be looked at. Returns 0 or a run-time error number.
int ReadState(std::string_view bytes, Class& out);

// The same, and what opening a class file makes of its records.
int ReadAsOpened(std::string_view bytes, Class& out);

// Makes the class in work what it was, as opening such a file would. Its file, its slot and its
// password stay. Returns 0, or an error number with nothing changed.
int PutState(std::string_view bytes);

// One student of the state `then`, by the place there: all that is told of the student, and each
// mark of a grade that the class still has. Who was deleted since comes back, without a seat.
// Answers why it cannot be done; empty when it was.
std::string TakeBackStudent(const Class& then, std::size_t student, Class& now);

// One grade, by its place there, with the mark of each student who is still in the class. One that
// was deleted since comes back to its place.
std::string TakeBackGrade(const Class& then, std::size_t grade, Class& now);

}  // namespace tallyroll
