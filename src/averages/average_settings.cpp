// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/average_settings.h"

#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

bool HasUnsavedAverages() {
  const Class& c = Current();
  return (c.AverageWork2 >= 1 && (c.Method == 1 || c.Method == 3)) ||
         (c.AverageWork1 >= 1 && c.Method != 1);
}

}  // namespace

std::string AverageSettingsText(i16 method, const DropBoxes& boxes, const TypeSums& type_weights) {
  std::string text = PlainNumberText(method);
  for (const bool box : {boxes.labs, boxes.dropyn, boxes.redist, boxes.droptype})
    text += box ? ",1" : ",0";
  for (std::size_t t = 1; t <= kGradeTypes; ++t) text += "," + PlainNumberText(type_weights[t]);
  return text;
}

bool AskToSaveSettings(std::string_view text, std::string_view title) {
  return Ask(text, BoxButtons::kYesNo, BoxIcon::kQuestion, title) == BoxAnswer::kYes;
}

bool WantsAveragesSaved() {
  return HasUnsavedAverages() &&
         Ask("Save Rounded Averaged Grades? (Recommended)", BoxButtons::kYesNo, BoxIcon::kQuestion,
             "Save File") == BoxAnswer::kYes;
}

void SaveChangedClass() {
  Current().Changed = kTrue;
  ClassWindow().mnusave();
}

}  // namespace tallyroll
