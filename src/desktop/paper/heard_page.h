// SPDX-License-Identifier: GPL-3.0-or-later
// HeardPage: draws a page and keeps its words, for who hears the screen instead of seeing it.
#pragma once

#include <QString>
#include <vector>

#include "desktop/paper/qt_print_target.h"

namespace tallyroll {

class HeardPage : public QtPrintTarget {
 public:
  using QtPrintTarget::QtPrintTarget;

  // Line by line from above, each from left to right.
  QString Words() const;

  void DrawLetters(double x, double base, std::u16string_view text,
                   const LetterFont& font) override;
  void PrintUpwards(std::string_view text, double x, double y) override;
  void Cls() override;

 protected:
  void DrawTextAt(double x, double y, std::string_view text, double size) override;

 private:
  struct Piece {
    double x = 0, base = 0;
    QString text;
  };

  std::vector<Piece> pieces_;
};

}  // namespace tallyroll
