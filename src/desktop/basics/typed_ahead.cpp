// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/typed_ahead.h"

#include <QKeyEvent>

#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

constexpr int kRestOfTyping = 1200;  // milliseconds after which a name begins anew

}  // namespace

bool TypedAhead::Take(const QKeyEvent& event, int place) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const bool rested = since_.isValid() && since_.hasExpired(kRestOfTyping);
  if (rested || place != place_) typed_.clear();
  const bool takes_back = event.key() == Qt::Key_Backspace && !typed_.empty();
  const QString text = event.text();
  const bool letter = text.size() == 1 && text[0].isPrint() && !text[0].isSpace();
  const auto typed = letter ? ToText(text) : std::nullopt;
  if (!takes_back && !typed) return false;
  if (takes_back)
    typed_.pop_back();
  else
    typed_ += *typed;
  since_.start();
  place_ = place;
  return true;
}

}  // namespace tallyroll
