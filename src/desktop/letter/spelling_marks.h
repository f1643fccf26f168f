// SPDX-License-Identifier: GPL-3.0-or-later
// Underlines in a document what the dictionary does not know.
#pragma once

#include <QSyntaxHighlighter>

#include "desktop/letter/spelling.h"

namespace tallyroll {

class SpellingMarks : public QSyntaxHighlighter {
  Q_OBJECT

 public:
  SpellingMarks(QTextDocument& document, Spelling& spelling)
      : QSyntaxHighlighter(&document), spelling_(spelling) {}

  Spelling& spelling() const { return spelling_; }

 protected:
  void highlightBlock(const QString& text) override;

 private:
  Spelling& spelling_;
};

}  // namespace tallyroll
