// SPDX-License-Identifier: GPL-3.0-or-later
// What the teacher chooses for the look takes effect at once and is kept.
#include "desktop/style/appearance.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLineEdit>
#include <QSettings>
#include <QToolButton>

#include "desktop/style/desktop_wish.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

class AppearanceTest : public testing::Test {
 protected:
  ~AppearanceTest() override {
    look.SetTheme(Theme::kSystem);
    look.SetDensity(Density::kNormal);
    look.SetWordsInToolbar(true);
  }
  static QColor Ground() { return QApplication::palette().color(QPalette::Window); }

  QLineEdit field;
  Appearance& look = *Appearance::Instance();
};

TEST_F(AppearanceTest, TheThemeChangesWhatIsOnTheScreenAlready) {
  field.show();
  look.SetTheme(Theme::kDark);
  EXPECT_EQ(Ground(), DarkTokens().window);
  QCoreApplication::processEvents();
  EXPECT_EQ(field.palette().color(QPalette::Base), DarkTokens().surface);
  look.SetTheme(Theme::kLight);
  EXPECT_EQ(Ground(), LightTokens().window);
  QCoreApplication::processEvents();
  EXPECT_EQ(field.palette().color(QPalette::Base), LightTokens().surface);
}

TEST_F(AppearanceTest, DensityMovesFontAndHeightsTogether) {
  field.show();
  look.SetDensity(Density::kCompact);
  const int compact = field.sizeHint().height();
  QCoreApplication::processEvents();
  const double small = QFontInfo(field.font()).pointSizeF();
  look.SetDensity(Density::kRoomy);
  EXPECT_GT(field.sizeHint().height(), compact);
  QCoreApplication::processEvents();
  EXPECT_GT(QFontInfo(field.font()).pointSizeF(), small);
}

TEST_F(AppearanceTest, ToolsAreWrittenSmallAtEveryDensity) {
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    look.SetDensity(density);
    const QToolButton tool;
    tool.ensurePolished();
    EXPECT_NEAR(tool.font().pointSizeF(), 0.88 * QApplication::font().pointSizeF(), 0.05)
        << static_cast<int>(density);
  }
}

TEST_F(AppearanceTest, TheNextRunFindsWhatWasChosen) {
  look.SetTheme(Theme::kDark);
  look.SetDensity(Density::kRoomy);
  look.SetWordsInToolbar(false);
  const Appearance next(*qApp);
  EXPECT_EQ(next.theme(), Theme::kDark);
  EXPECT_EQ(next.density(), Density::kRoomy);
  EXPECT_FALSE(next.WordsInToolbar());
}

TEST_F(AppearanceTest, AChoiceThatNobodyOffersCountsAsTheUsualOne) {
  QSettings().setValue(QStringLiteral("Appearance/Theme"), 77);
  QSettings().setValue(QStringLiteral("Appearance/Density"), -1);
  const Appearance next(*qApp);
  EXPECT_EQ(next.theme(), Theme::kSystem);
  EXPECT_EQ(next.density(), Density::kNormal);
}

TEST_F(AppearanceTest, TheCommandLineIsDarkForThisRunAlone) {
  {
    const Appearance dark(*qApp, true);
    EXPECT_EQ(Ground(), DarkTokens().window);
  }
  EXPECT_EQ(Appearance(*qApp).theme(), Theme::kSystem);
}

TEST_F(AppearanceTest, ListsChooseTheirLinesInAPaleColour) {
  look.SetTheme(Theme::kLight);
  const QPalette list = QApplication::palette("QAbstractItemView");
  EXPECT_EQ(list.color(QPalette::Highlight), LightTokens().selection);
  EXPECT_EQ(list.color(QPalette::HighlightedText), LightTokens().text);
  EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), LightTokens().accent);
}

TEST(DesktopWish, IsTheNumberOfAColourScheme) {
  EXPECT_EQ(WishOf(QVariant(1U)), ColorWish::kDark);
  EXPECT_EQ(WishOf(QVariant(2U)), ColorWish::kLight);
  EXPECT_EQ(WishOf(QVariant(0U)), ColorWish::kNone);
  EXPECT_EQ(WishOf(QVariant()), ColorWish::kNone);
}

TEST(HighContrast, IsBlackOnWhiteThroughout) {
  QPalette palette(Qt::black, Qt::white);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Window, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  EXPECT_TRUE(IsHighContrast(palette));
  palette.setColor(QPalette::Window, QColor(0xEF, 0xEF, 0xEF));
  EXPECT_FALSE(IsHighContrast(palette));
}

TEST(UsualFont, ThatNobodyChoseIsInterALittleLarger) {
  QFont given(QStringLiteral("Sans Serif"));
  given.setPointSizeF(12);
  const QString found = QFontInfo(given).family();
  if (!found.startsWith(QStringLiteral("DejaVu")) && !found.startsWith(QStringLiteral("Nimbus")) &&
      !found.startsWith(QStringLiteral("Liberation")))
    GTEST_SKIP() << "this machine shows " << found.toStdString();
  if (!QFontDatabase::hasFamily(QStringLiteral("Inter"))) GTEST_SKIP() << "no Inter here";
  const QFont usual = UsualFont(given);
  EXPECT_EQ(usual.family(), QStringLiteral("Inter"));
  EXPECT_DOUBLE_EQ(usual.pointSizeF(), 13);  // 9.75 for 9
}

TEST(UsualFont, ThatADesktopNamesStays) {
  QFont given(QStringLiteral("Liberation Sans"));
  given.setPointSizeF(11);
  const QFont usual = UsualFont(given);
  EXPECT_EQ(usual.family(), QStringLiteral("Liberation Sans"));
  EXPECT_DOUBLE_EQ(usual.pointSizeF(), 11);
}

}  // namespace
}  // namespace tallyroll
