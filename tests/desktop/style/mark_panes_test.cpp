// SPDX-License-Identifier: GPL-3.0-or-later
// The Portals in which marks are typed: the sheet in full height beside one pane, all of it in
// sight on a small screen, and on a smaller one the pane alone scrolls.
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "desktop/portal/scrolling_body.h"
#include "desktop/style/appearance.h"
#include "grades/frmEMarksS.h"
#include "grades/frmEmarks.h"
#include "grades/frmMarks.h"
#include "insight/frmexplain.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

// A screen of 1024 x 640 without the title and the borders of the window.
constexpr QSize kSmallest(1024 - 16, 640 - 40);

class MarkPanes : public ClassDialogs {
 protected:
  MarkPanes() {
    for (int i = 1; i <= 14; ++i) AddGrade("Chapter " + std::to_string(i), i % 2 ? "T" : "Q");
  }
  ~MarkPanes() override { dialog.reset(); }

  void Resize(const QSize& size) {
    dialog->resize(size);
    QCoreApplication::processEvents();
  }
  bool Scrolls() {
    const auto& body = Find<ScrollingBody>("");
    return body.verticalScrollBar()->maximum() > 0 || body.horizontalScrollBar()->maximum() > 0;
  }
  bool InSight(const QWidget& widget) {
    const QRect place(widget.mapTo(dialog.get(), QPoint(0, 0)), widget.size());
    return widget.isVisible() && !widget.visibleRegion().isEmpty() &&
           widget.visibleRegion().boundingRect().size() == widget.size() &&
           dialog->rect().contains(place);
  }
  void ExpectEveryButtonInSight() {
    for (const auto* button : dialog->findChildren<QPushButton*>()) {
      if (!button->isVisible()) continue;
      EXPECT_TRUE(InSight(*button)) << button->text().toStdString();
    }
  }
  int FullHeight() {
    const QMargins margins = dialog->layout()->contentsMargins();
    return dialog->height() - margins.top() - margins.bottom();
  }
};

TEST_F(MarkPanes, EnteringShowsAllOfItOnASmallScreen) {
  frmMarks portal;
  Open(portal);
  Resize(kSmallest);
  EXPECT_FALSE(Scrolls());
  EXPECT_EQ(grid().height(), FullHeight());
  ExpectEveryButtonInSight();
  EXPECT_TRUE(InSight(Find<QLineEdit>("title")));
  EXPECT_TRUE(InSight(Find<QComboBox>("ttypelist")));
  EXPECT_TRUE(InSight(Find<QLabel>("progress")));
}

TEST_F(MarkPanes, EditingShowsAllOfItOnASmallScreen) {
  CurrentStudent = 1;
  frmEmarks portal;
  Open(portal);
  Resize(kSmallest);
  EXPECT_FALSE(Scrolls());
  EXPECT_EQ(grid().height(), FullHeight());
  ExpectEveryButtonInSight();
  EXPECT_TRUE(InSight(Find<QComboBox>("ttypelist")));
}

TEST_F(MarkPanes, WhereThereIsRoomTheListOfTitlesHasFiveLines) {
  CurrentStudent = 1;
  frmEmarks portal;
  Open(portal);
  Resize({1008, 700});
  auto& list = Find<QListWidget>("list1");
  EXPECT_GE(list.viewport()->height(), 5 * list.sizeHintForRow(0));
}

TEST_F(MarkPanes, OnALowerScreenThePaneAloneScrolls) {
  CurrentStudent = 1;
  frmEmarks portal;
  Open(portal);
  Resize({1008, 420});
  EXPECT_TRUE(Scrolls());
  EXPECT_EQ(grid().height(), FullHeight());
  ExpectEveryButtonInSight();
  EXPECT_FALSE(InSight(Find<QComboBox>("ttypelist")));
  Find<QComboBox>("ttypelist").setFocus(Qt::TabFocusReason);
  QCoreApplication::processEvents();
  EXPECT_TRUE(InSight(Find<QComboBox>("ttypelist")));
}

TEST_F(MarkPanes, TheBarOfThePaneCoversNoField) {
  CurrentStudent = 1;
  frmEmarks portal;
  Open(portal);
  Resize({1008, 420});
  const auto& body = Find<ScrollingBody>("");
  EXPECT_GT(body.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(body.horizontalScrollBar()->maximum(), 0);
}

TEST_F(MarkPanes, FieldsAndKeysEndOnOneLineWithABarAndWithout) {
  CurrentStudent = 1;
  frmEmarks portal;
  Open(portal);
  const auto right = [this](const char* name) {
    const auto& widget = Find<QWidget>(name);
    return widget.mapTo(dialog.get(), QPoint(widget.width(), 0)).x();
  };
  for (const int height : {700, 420}) {
    Resize({1008, height});
    EXPECT_EQ(Scrolls(), height == 420);
    EXPECT_EQ(right("Title"), right("Command4")) << height;
    EXPECT_EQ(right("list1"), right("cancel")) << height;
  }
}

TEST_F(MarkPanes, TheFillStandsInThePlaceOfTheKeysAndOfTheWayOut) {
  frmMarks portal;
  Open(portal);
  Resize(kSmallest);
  const QRect sheet = grid().geometry();
  QTest::mouseClick(&Find<QPushButton>("fill"), Qt::LeftButton);
  EXPECT_TRUE(InSight(Find<QRadioButton>("Option1")));
  EXPECT_TRUE(InSight(Find<QRadioButton>("Option5")));
  EXPECT_TRUE(InSight(Find<QPushButton>("Command5")));
  EXPECT_FALSE(Find<QPushButton>("exit").isVisible());
  EXPECT_EQ(grid().geometry(), sheet);
  QTest::keyClick(&Find<QRadioButton>("Option1"), Qt::Key_Return);
  EXPECT_FALSE(Find<QRadioButton>("Option1").isVisible());
  EXPECT_TRUE(InSight(Find<QPushButton>("exit")));
  EXPECT_EQ(portal.Grid1.TextMatrix(1, 2), "ABS");
}

TEST_F(MarkPanes, EnterInTheFillPressesTheButtonThatStandsOut) {
  frmMarks portal;
  Open(portal);
  const auto& ok = Find<QPushButton>("Command5");
  const auto& way_out = Find<QPushButton>("exit");
  EXPECT_TRUE(way_out.isDefault());
  QTest::mouseClick(&Find<QPushButton>("fill"), Qt::LeftButton);
  EXPECT_TRUE(ok.isDefault());
  EXPECT_FALSE(way_out.isDefault());
  QTest::mouseClick(&Find<QPushButton>("Command6"), Qt::LeftButton);
  EXPECT_TRUE(way_out.isDefault());
  EXPECT_FALSE(ok.isDefault());
}

TEST_F(MarkPanes, TheWaysToFillStandOneBelowTheOther) {
  frmMarks portal;
  Open(portal);
  QTest::mouseClick(&Find<QPushButton>("fill"), Qt::LeftButton);
  QCoreApplication::processEvents();
  const auto middle = [this](const char* name) {
    const auto& option = Find<QRadioButton>(name);
    return option.mapTo(dialog.get(), option.rect().center()).y();
  };
  const int step = middle("Option2") - middle("Option1");
  EXPECT_EQ(middle("Option4") - middle("Option3"), step);
  // Half of what the field is higher than a row of options.
  EXPECT_LE(middle("Option5") - middle("Option4"), step + 2);
}

TEST_F(MarkPanes, WhyAMarkMayBeASlipIsReadWhole) {
  frmMarks portal;
  Open(portal);
  Resize({1000, kSmallest.height()});
  grid().setFocus();
  for (const char* mark : {"18", "9.5", "200"}) {
    QTest::keyClicks(&grid(), QString::fromLatin1(mark));
    QTest::keyClick(&grid(), Qt::Key_Return);
  }
  QTest::keyClick(&grid(), Qt::Key_Up);
  QCoreApplication::processEvents();
  EXPECT_EQ(Find<QLabel>("progress").text(),
            QStringLiteral("3 of 40 entered, average 75.83, 1 to look at"));
  auto& doubt = Find<QLabel>("doubt");
  EXPECT_EQ(doubt.text(), QStringLiteral("200 is above the maximum of 100"));
  EXPECT_GE(doubt.width(), doubt.sizeHint().width());
  // Where there is no room for all of it, it says that there is more.
  const QImage whole = doubt.grab().toImage();
  doubt.setFixedWidth(doubt.sizeHint().width() / 2);
  EXPECT_NE(doubt.grab().toImage(), whole.copy(doubt.rect()));
}

TEST_F(MarkPanes, TheKeysOfMarksStandInColumns) {
  const auto columns_are_one = [this](std::initializer_list<const char*> column) {
    const auto& first = Find<QPushButton>(*column.begin());
    for (const char* name : column) {
      const auto& key = Find<QPushButton>(name);
      EXPECT_EQ(key.x(), first.x()) << name;
      EXPECT_EQ(key.width(), first.width()) << name;
    }
  };
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    Appearance::Instance()->SetDensity(density);
    CurrentStudent = 1;
    frmEmarks by_title;
    Open(by_title);
    columns_are_one({"Command1", "nextempty"});
    columns_are_one({"Command2", "pastemarks"});
    columns_are_one({"Command3", "undomark"});
    columns_are_one({"Command4", "redomark"});
    dialog.reset();
    frmEMarksS by_student;
    Open(by_student);
    columns_are_one({"Command1", "Command3", "nextempty", "undomark"});
    columns_are_one({"Command2", "Command4", "pastemarks", "redomark"});
    dialog.reset();
  }
  Appearance::Instance()->SetDensity(Density::kNormal);
}

TEST_F(MarkPanes, ASentenceStandsForTheFieldsUntilATitleIsChosen) {
  CurrentStudent = 0;
  frmEmarks portal;
  Open(portal);
  EXPECT_TRUE(Find<QLabel>("choose").isVisible());
  EXPECT_FALSE(Find<QLineEdit>("Title").isVisible());
  EXPECT_EQ(Focused(), "list1");
  auto& list = Find<QListWidget>("list1");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(1)).center());
  EXPECT_FALSE(Find<QLabel>("choose").isVisible());
  EXPECT_TRUE(Find<QLineEdit>("Title").isVisible());
  EXPECT_EQ(Find<QLineEdit>("Title").text(), QStringLiteral("Chapter 2"));
  EXPECT_EQ(Focused(), "Grid1");
}

TEST_F(MarkPanes, TheListOfStudentsHasItsTitleOnOneLineAndTheKeysBelowIt) {
  frmEMarksS portal;
  Open(portal);
  Resize({720, 600});
  const auto top = [this](const QWidget& widget) {
    return widget.mapTo(dialog.get(), QPoint(0, 0)).y();
  };
  const auto& list = Find<QListWidget>("lstName");
  EXPECT_EQ(top(Find<QLabel>("pick")), top(Find<QLabel>("namecaption")));
  EXPECT_GT(top(Find<QPushButton>("nextempty")), top(list) + list.height());
  EXPECT_EQ(Find<GridWidget>("grdgrade").width(), Find<GridWidget>("grdgrade").WholeWidth());
  ExpectEveryButtonInSight();
}

TEST_F(MarkPanes, WordsThatMayWrapDoNotMakeAWindowScroll) {
  Class& c = Current();
  c.Method = 0;
  for (std::size_t i = 1; i <= 14; ++i) c.Weights[i] = Currency::FromWhole(i == 1 ? 35 : 5);
  frmexplain portal;
  Open(portal);
  EXPECT_GT(portal.grdgrade.Rows(), 14);
  Resize({1190, 720});
  EXPECT_FALSE(Scrolls());
  Resize(kSmallest);
  EXPECT_EQ(Find<ScrollingBody>("").horizontalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace tallyroll
