// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/appearance.h"

#include <QApplication>
#include <QFontInfo>
#include <QSettings>
#include <algorithm>

#include "desktop/style/desktop_wish.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

constexpr double kInterPoints = 9.75;
constexpr double kHighestContrast = 19.5;

QString ThemeKey() {
  return QStringLiteral("Appearance/Theme");
}
QString DensityKey() {
  return QStringLiteral("Appearance/Density");
}
QString WordsKey() {
  return QStringLiteral("Appearance/ToolbarWords");
}
// What the desktop said last, so that the first picture of the next run is right already.
QString WishKey() {
  return QStringLiteral("Appearance/DesktopWish");
}

// A number of the settings within 0 to `most`; what anybody wrote there by hand counts as 0.
int KeptChoice(const QString& key, int most) {
  const int kept = QSettings().value(key, 0).toInt();
  return kept >= 0 && kept <= most ? kept : 0;
}

constexpr Density kDensities[] = {Density::kNormal, Density::kCompact, Density::kRoomy};

// Whether a desktop or a user named what is shown. Otherwise the system takes the first that it has
// of a few; another of these goes back to whoever set it up.
bool IsChosen(const QFont& font) {
  if (font.family().isEmpty()) return false;
  const QString found = QFontInfo(font).family();
  if (found.startsWith(font.family(), Qt::CaseInsensitive)) return true;
  constexpr const char* kStandIns[] = {"DejaVu Sans", "Nimbus Sans", "Liberation Sans",
                                       "Bitstream Vera Sans"};
  return std::ranges::none_of(
      kStandIns, [&found](const char* name) { return found.startsWith(QLatin1String(name)); });
}

}  // namespace

QFont UsualFont(const QFont& given) {
  if (IsChosen(given)) return given;
  for (const char* name : {"Inter", "Noto Sans", "Open Sans"}) {
    QFont font{QString::fromLatin1(name)};
    if (QFontInfo(font).family() != QLatin1String(name)) continue;
    font.setPointSizeF(kInterPoints * std::max(given.pointSizeF(), 1.0) / 9);
    return font;
  }
  return given;
}

bool IsHighContrast(const QPalette& palette) {
  const auto contrast = [&palette](QPalette::ColorRole text, QPalette::ColorRole ground) {
    return Contrast(palette.color(text), palette.color(ground));
  };
  return std::min(contrast(QPalette::WindowText, QPalette::Window),
                  contrast(QPalette::Text, QPalette::Base)) >= kHighestContrast;
}

Appearance::Appearance(QApplication& application, bool dark)
    : QObject(&application),
      application_(application),
      desktop_(QApplication::palette()),
      font_(UsualFont(QApplication::font())),
      wish_(new DesktopWish(this)),
      wished_(static_cast<ColorWish>(KeptChoice(WishKey(), 2))),
      theme_(static_cast<Theme>(KeptChoice(ThemeKey(), 2))),
      density_(kDensities[KeptChoice(DensityKey(), 2)]),
      words_(QSettings().value(WordsKey(), true).toBool()),
      dark_run_(dark) {
  connect(wish_, &DesktopWish::Answered, this, [this](ColorWish wish) {
    if (wish == wished_) return;
    wished_ = wish;
    QSettings().setValue(WishKey(), static_cast<int>(wish));
    Apply();
  });
  Apply();
}

Appearance* Appearance::Instance() {
  return qApp ? qApp->findChild<Appearance*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void Appearance::FollowDesktop() {
  wish_->Ask();
}

Tokens Appearance::Wanted() const {
  if (dark_run_ || theme_ == Theme::kDark) return DarkTokens();
  if (theme_ == Theme::kLight) return LightTokens();
  if (IsHighContrast(desktop_)) return TokensOf(desktop_);
  if (wished_ == ColorWish::kDark) return DarkTokens();
  if (wished_ == ColorWish::kLight) return LightTokens();
  return desktop_.color(QPalette::Window).lightnessF() < 0.5F ? DarkTokens() : LightTokens();
}

// The lines of a list are chosen in a pale colour under dark words, a text in a strong one.
void Appearance::Apply() {
  const QFont font = FontAt(density_, font_);
  const Tokens tokens = Wanted();
  QApplication::setFont(font);
  auto* style = qobject_cast<ProgramStyle*>(QApplication::style());
  if (!style || style->measures().density() != density_)
    QApplication::setStyle(new ProgramStyle(Measures(density_, font)));
  // A new style forgets what single classes are written in.
  QApplication::setFont(FontFor(font, TextUse::kSmall), "QToolButton");
  QApplication::setFont(FontFor(font, TextUse::kSmall), "QTipLabel");
  const QPalette palette = PaletteOf(tokens);
  QApplication::setPalette(palette);
  QPalette list(palette);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    list.setColor(group, QPalette::Highlight, tokens.selection);
    list.setColor(group, QPalette::HighlightedText, tokens.text);
  }
  QApplication::setPalette(list, "QAbstractItemView");
}

void Appearance::SetTheme(Theme theme) {
  dark_run_ = false;
  theme_ = theme;
  QSettings().setValue(ThemeKey(), static_cast<int>(theme));
  Apply();
}

void Appearance::SetDensity(Density density) {
  density_ = density;
  const auto* place = std::find(std::begin(kDensities), std::end(kDensities), density);
  QSettings().setValue(DensityKey(), static_cast<int>(place - std::begin(kDensities)));
  Apply();
}

void Appearance::SetWordsInToolbar(bool shown) {
  words_ = shown;
  QSettings().setValue(WordsKey(), shown);
  Q_EMIT WordsChanged();
}

}  // namespace tallyroll
