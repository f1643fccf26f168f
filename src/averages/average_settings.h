// SPDX-License-Identifier: GPL-3.0-or-later
// The saved form of how an average is made.
#pragma once

#include <string>

#include "grades/type_totals.h"

namespace tallyroll {

// The boxes of the weights Portals.
struct DropBoxes {
  bool labs = false;
  bool dropyn = false;
  bool redist = false;
  bool droptype = false;
};

// AverageSettings: the method, the four boxes as 1 and 0, and the drop flags of the 26 types.
std::string AverageSettingsText(i16 method, const DropBoxes& boxes, const TypeSums& type_weights);

// The question after which settings go into the class file.
bool AskToSaveSettings(std::string_view text, std::string_view title);
// Offers to save the final grades as a grade while there are some that no grade of the class keeps
// yet. True: the teacher wants it.
bool WantsAveragesSaved();
// Raises Changed and saves the class.
void SaveChangedClass();

}  // namespace tallyroll
