// SPDX-License-Identifier: GPL-3.0-or-later
// LetterVl.Let and Roundoff.rnd, in which earlier versions kept what now stands in the class file.
#pragma once

#include <string_view>

#include "store/records.h"

namespace tallyroll {

// Letter values 1 to 13 from the records of LetterVl.Let. Returns 0, or 62 when records are
// missing; those that are there have been taken.
int ParseLetterFile(std::string_view bytes, Class& c);

// Scale 1 from the records of Roundoff.rnd, and puts it in force.
int ParseRoundFile(std::string_view bytes, Class& c);

// Both, from the folder of the converted current class, when the settings of the version that
// wrote it say so. A side file that is absent means the program's defaults.
void ReadSideFiles();

}  // namespace tallyroll
