// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/average_settings.h"

#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {

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

void SaveChangedClass() {
  Current().Changed = kTrue;
  ClassWindow().mnusave();
}

}  // namespace tallyroll
