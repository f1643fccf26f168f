// SPDX-License-Identifier: GPL-3.0-or-later
// Letters on a printer or into a PDF, one after the other.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "letters/page/letter_pages.h"
#include "platform/surroundings.h"

namespace tallyroll {

// Draws each letter on sheets of its own and ends the job. `progress` is told of each letter,
// from 1, before it is drawn. False when it was cancelled (the job is dropped) or came to nothing.
bool PrintLetters(PrintTarget& printer, int count,
                  const std::function<RichText(int letter)>& letter,
                  const std::function<void(int letter)>& progress = {});

// Some pages of one letter, and the end of the job.
bool PrintLetterPages(PrintTarget& printer, const std::vector<LetterPage>& pages,
                      const PrintRange& range);

}  // namespace tallyroll
