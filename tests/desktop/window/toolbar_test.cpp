// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar of a class window, and its icons.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMainWindow>
#include <QMap>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QToolButton>

#include "desktop/basics/palette_icon.h"
#include "desktop/style/appearance.h"
#include "desktop/window/toolbar_view.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class ToolbarTest : public testing::Test {
 protected:
  QAction* Action(const char* key) { return view.findChild<QAction*>(QString::fromLatin1(key)); }
  QToolButton* Button(const char* key) {
    return qobject_cast<QToolButton*>(view.widgetForAction(Action(key)));
  }

  std::vector<ToolButton> buttons = {
      {"New", "New Class"}, {"Save", "Save this Class"}, {}, {"Help", "Help"}};
  ToolbarView view{buttons, nullptr};
};

TEST_F(ToolbarTest, ShowsEachButtonWithItsTipAndName) {
  ASSERT_NE(Button("Save"), nullptr);
  EXPECT_EQ(Button("Save")->toolTip(), QStringLiteral("Save this Class"));
  EXPECT_EQ(Button("Save")->accessibleName(), QStringLiteral("Save this Class"));
  EXPECT_FALSE(Button("Save")->icon().isNull());
  EXPECT_EQ(view.actions().size(), 4);
  EXPECT_TRUE(view.actions()[2]->isSeparator());
}

TEST_F(ToolbarTest, FollowsWhatIsEnabled) {
  buttons[1].enabled = false;
  EXPECT_TRUE(Button("Save")->isEnabled());
  view.Sync();
  EXPECT_FALSE(Button("Save")->isEnabled());
  EXPECT_TRUE(Button("Help")->isEnabled());
  buttons[1].enabled = true;
  view.Sync();
  EXPECT_TRUE(Button("Save")->isEnabled());
}

TEST_F(ToolbarTest, ADisabledButtonTellsWhy) {
  buttons[1].enabled = false;
  view.Sync();
  EXPECT_EQ(Button("Save")->toolTip(),
            QStringLiteral("Save this Class\nThis class has no student yet."));
  EXPECT_EQ(Button("Save")->accessibleName(), QStringLiteral("Save this Class"));
  buttons[1].enabled = true;
  view.Sync();
  EXPECT_EQ(Button("Save")->toolTip(), QStringLiteral("Save this Class"));
}

TEST(ToolbarWords, StandBelowTheIconsWhereThereIsRoomAndTheyAreWanted) {
  const Form1 form;
  QWidget window;
  ToolbarView bar(form.Toolbar2, &window);
  const auto words_at = [&](int width, int height) {
    window.resize(width, height);
    bar.resize(width, 60);
    window.show();
    QCoreApplication::processEvents();
    return bar.toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
  };
  EXPECT_TRUE(words_at(1100, 700));
  EXPECT_FALSE(words_at(1000, 700));
  EXPECT_FALSE(words_at(1100, 500));
  Appearance::Instance()->SetWordsInToolbar(false);
  EXPECT_FALSE(words_at(1100, 700));
  Appearance::Instance()->SetWordsInToolbar(true);
  EXPECT_TRUE(words_at(1100, 700));
}

TEST(ToolbarWords, ExitAndHelpStandAtTheFarEnd) {
  const Form1 form;
  QWidget window;
  window.resize(1300, 700);
  ToolbarView bar(form.Toolbar2, &window);
  bar.resize(1300, 60);
  window.show();
  QCoreApplication::processEvents();
  const auto place = [&bar](const char* key) {
    auto* action = bar.findChild<QAction*>(QString::fromLatin1(key));
    return bar.widgetForAction(action)->geometry();
  };
  EXPECT_GT(place("Help").right(), 1280);
  EXPECT_LT(place("Exit").right(), place("Help").left() + 1);
  EXPECT_GT(place("Exit").left() - place("Graph").right(), 100);
}

TEST_F(ToolbarTest, TellsWhichButtonWasPressed) {
  QSignalSpy pressed(&view, &ToolbarView::Pressed);
  Button("Help")->click();
  EXPECT_EQ(pressed.count(), 0);
  Settle();
  ASSERT_EQ(pressed.count(), 1);
  EXPECT_EQ(pressed[0][0].toString(), QStringLiteral("Help"));
}

TEST_F(ToolbarTest, ButtonsTakeTheFocusByKey) {
  view.show();
  buttons[0].enabled = false;
  view.Sync();
  view.FocusFirst();
  EXPECT_EQ(view.focusWidget(), Button("Save"));
}

TEST_F(ToolbarTest, DrawsItsIconsAnewForAnotherPalette) {
  const QImage light = Button("Save")->icon().pixmap(24).toImage();
  view.setPalette(PaletteOf(DarkTokens()));
  EXPECT_NE(Button("Save")->icon().pixmap(24).toImage(), light);
}

// The mean lightness of what is drawn, 0 to 255.
int Lightness(const QPixmap& pixmap) {
  const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
  int sum = 0, count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.alpha() < 200) continue;
      sum += colour.lightness();
      ++count;
    }
  }
  return count > 0 ? sum / count : -1;
}

TEST_F(FrameTest, EveryButtonHasAnIconThatCanBeSeenInLightAndDark) {
  const Form1 form;
  int icons = 0;
  for (const ToolButton& button : form.Toolbar2) {
    if (button.key.empty()) continue;
    SCOPED_TRACE(button.key);
    const QString key = QString::fromStdString(button.key);
    EXPECT_TRUE(QSvgRenderer(QStringLiteral(":/icons/%1.svg").arg(key)).isValid());
    const QPalette light(Qt::black, Qt::white);
    const int on_light = Lightness(PaletteIcon(key, light).pixmap(48));
    const int on_dark = Lightness(PaletteIcon(key, PaletteOf(DarkTokens())).pixmap(48));
    EXPECT_GE(on_light, 0);
    EXPECT_LT(on_light, 128);
    EXPECT_GT(on_dark, 170);
    const int off =
        Lightness(PaletteIcon(key, PaletteOf(DarkTokens())).pixmap(48, 48, QIcon::Disabled));
    EXPECT_LT(off, on_dark - 30);
    ++icons;
  }
  EXPECT_EQ(icons, 15);
}

TEST(PaletteIcon, NoTwoPicturesAreAlike) {
  const QPalette light(Qt::black, Qt::white);
  QMap<QString, QImage> drawn;
  for (const QFileInfo& file :
       QDir(QStringLiteral(":/icons")).entryInfoList({QStringLiteral("*.svg")})) {
    const QImage picture = PaletteIcon(file.completeBaseName(), light).pixmap(48).toImage();
    EXPECT_EQ(drawn.key(picture).toStdString(), "") << file.fileName().toStdString();
    drawn[file.completeBaseName()] = picture;
  }
  EXPECT_GE(drawn.size(), 30);
}

TEST(PaletteIcon, IsEmptyForANameWithoutAnIcon) {
  EXPECT_TRUE(PaletteIcon(QStringLiteral("NoSuchButton"), QPalette()).isNull());
}

TEST(ProgramIcon, TravelsInsideTheProgram) {
  EXPECT_TRUE(QSvgRenderer(QStringLiteral(":/icons/tallyroll.svg")).isValid());
}

TEST(ToolbarInAWindow, TheWordsFollowTheHeightAtOnce) {
  const std::vector<ToolButton> buttons = {{"New", "New Class"}};
  QMainWindow window;
  auto* view = new ToolbarView(buttons, &window);
  window.addToolBar(view);
  window.resize(1200, 700);
  window.show();
  Settle();
  EXPECT_EQ(view->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  window.resize(1200, 400);
  Settle();
  EXPECT_EQ(view->toolButtonStyle(), Qt::ToolButtonIconOnly);
  window.resize(1200, 700);
  Settle();
  EXPECT_EQ(view->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

}  // namespace
}  // namespace tallyroll
