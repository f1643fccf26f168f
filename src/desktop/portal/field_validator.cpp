// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/field_validator.h"

#include <algorithm>

#include "desktop/basics/refused_character.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {

FieldValidator::FieldValidator(QLineEdit& field)
    : QValidator(&field), field_(field), known_(field.text()) {
  field.setValidator(this);
  connect(&field, &QLineEdit::textChanged, this, &FieldValidator::SetKnownText);
  connect(&field, &QLineEdit::inputRejected, this, [this] {
    if (!lacking_.isEmpty()) ShowRefusedCharacter(field_, lacking_);
    lacking_.clear();
  });
}

QValidator::State FieldValidator::validate(QString& text, int& cursor) const {
  lacking_ = LackingCharacter(text);
  if (!lacking_.isEmpty()) return Invalid;
  if (max_length_ == 0 || text == known_) return Acceptable;
  // A text that is longer already may shrink and be changed, but not grow.
  const qsizetype limit = std::max<qsizetype>({max_length_, 0, known_.size()});
  if (text.size() <= limit) return Acceptable;
  // What came in last stands before the cursor; of a paste, what fits is kept.
  const qsizetype excess = std::min(text.size() - limit, qsizetype{cursor});
  QString cut = text;
  cut.remove(cursor - excess, excess);
  if (cut == known_) return Invalid;
  cursor -= static_cast<int>(excess);
  text = cut;
  return Acceptable;
}

}  // namespace tallyroll
