// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/letter_message.h"

namespace tallyroll {

std::string LetterMessage(const RichText& letter) {
  std::string message;
  for (const char character : Utf8FromUtf16(PlainText(letter))) {
    if (character == '\n') message += '\r';
    message += character;
  }
  return message;
}

}  // namespace tallyroll
