// SPDX-License-Identifier: GPL-3.0-or-later
// How large and how far apart things are. All of it grows with the font, so a desktop's larger type
// scales the whole screen.
#pragma once

#include <QFont>

namespace tallyroll {

// How much stands on a screen: the teacher's choice.
enum class Density { kCompact, kNormal, kRoomy };

class Measures {
 public:
  Measures() = default;
  // `font` is the usual one at the normal density.
  Measures(Density density, const QFont& font);

  // Pixels for a length that was chosen beside a font of 13 pixels.
  int Px(double length) const;
  // Of a button, a field.
  int Control() const { return Px(Of(26, 30, 36)); }
  int ListLine() const { return Px(Of(23, 26, 30)); }
  int MenuLine() const { return Px(Of(24, 27, 32)); }
  int Tab() const { return Px(Of(34, 40, 46)); }
  // From the edge of a field, a choice or a figure to its words: they begin below each other.
  int BesideWords() const { return Px(8); }
  // Of a row with a tick or an option.
  int TickRow() const { return Px(Of(23, 26, 31)); }

  Density density() const { return density_; }

 private:
  double Of(double compact, double normal, double roomy) const;

  Density density_ = Density::kNormal;
  double scale_ = 1;
};

// The usual font at that density.
QFont FontAt(Density density, const QFont& normal);

}  // namespace tallyroll
