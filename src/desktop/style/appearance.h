// SPDX-License-Identifier: GPL-3.0-or-later
// How the program looks: style, palette and fonts, as the teacher and the desktop want them.
#pragma once

#include <QObject>

#include "desktop/style/measures.h"
#include "desktop/style/tokens.h"

class QApplication;

namespace tallyroll {

class DesktopWish;

// What a desktop says of light and dark.
enum class ColorWish { kNone, kDark, kLight };

// Which colours: the desktop's wish, or the teacher's own.
enum class Theme { kSystem, kLight, kDark };

// One for the program. What the teacher chooses is kept between runs and takes effect at once.
class Appearance : public QObject {
  Q_OBJECT

 public:
  // `dark` is the wish of the command line, for this run alone.
  explicit Appearance(QApplication& application, bool dark = false);

  // The program's; null before there is one.
  static Appearance* Instance();

  // Asks the desktop, and follows it from then on. Called once the window stands.
  void FollowDesktop();

  Theme theme() const { return theme_; }
  Density density() const { return density_; }
  bool WordsInToolbar() const { return words_; }
  void SetTheme(Theme theme);
  void SetDensity(Density density);
  void SetWordsInToolbar(bool shown);

 Q_SIGNALS:
  void WordsChanged();

 private:
  void Apply();
  Tokens Wanted() const;

  QApplication& application_;
  QPalette desktop_;  // as the platform gave it
  QFont font_;        // the usual one at the normal density
  DesktopWish* wish_;
  ColorWish wished_ = ColorWish::kNone;
  Theme theme_ = Theme::kSystem;
  Density density_ = Density::kNormal;
  bool words_ = true;
  bool dark_run_ = false;
};

// The desktop's font; where the toolkit would fall back to one for terminals, the best that is
// installed.
QFont UsualFont(const QFont& given);

// Black on white or the like, to the last step: the desktop wants it so.
bool IsHighContrast(const QPalette& palette);

}  // namespace tallyroll
