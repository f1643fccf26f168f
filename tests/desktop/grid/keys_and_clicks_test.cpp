// SPDX-License-Identifier: GPL-3.0-or-later
// Where keys and clicks lead in the Portals, by real events.
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <functional>

#include "attendance/frmAtsum.h"
#include "attendance/frmEatt.h"
#include "averages/portals/frmdropgrade.h"
#include "averages/portals/frmpoints.h"
#include "averages/portals/frmweights.h"
#include "grades/frmEmarks.h"
#include "grades/frmMarks.h"
#include "grades/frmcategories.h"
#include "shell/frmWizard.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

// A box in front of the window: the button of the mouse is up again when it is answered.
class BoxesInFront : public HeadlessSurroundings {
 public:
  BoxAnswer MessageBox(const MessageRequest& request) override {
    if (window && QApplication::mouseButtons() != Qt::NoButton)
      QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(1, 1));
    return HeadlessSurroundings::MessageBox(request);
  }
  QWindow* window = nullptr;
};

class KeysAndClicks : public ClassDialogs {
 protected:
  KeysAndClicks() {
    SetPlatform(&boxes);
    AddGrade("First", "T");
    AddGrade("Second", "Q");
  }
  ~KeysAndClicks() override {
    dialog.reset();
    EXPECT_TRUE(boxes.Complaints().empty());
  }

  // The one Portal on the screen.
  template <typename P>
  P& Show(const std::function<void(P&)>& prepare = [](P&) {}) {
    dialog.reset();
    auto made = std::make_unique<P>();
    P& portal = *made;
    portal_ = std::move(made);
    prepare(portal);
    Open(portal);
    dialog->resize(1000, 740);  // nothing scrolls
    boxes.window = dialog->windowHandle();
    return portal;
  }
  void Key(Qt::Key key) { QTest::keyClick(dialog->focusWidget(), key); }
  void Type(const char* text) {
    QTest::keyClicks(dialog->focusWidget(), QString::fromLatin1(text));
  }
  template <typename W>
  void Click(const char* name) {
    auto& widget = Find<W>(name);
    ClickAt(widget.mapTo(dialog.get(), QPoint(8, widget.height() / 2)));
  }
  QPoint LinePlace(const char* list, int line) {
    auto& widget = Find<QListWidget>(list);
    return widget.viewport()->mapTo(dialog.get(),
                                    widget.visualItemRect(widget.item(line)).center());
  }
  BoxesInFront boxes;

 private:
  std::unique_ptr<Portal> portal_;
};

TEST_F(KeysAndClicks, ReturnGoesThroughTheHeaderDownToTheMarks) {
  auto& marks = Show<frmMarks>();
  Type("Essay");
  const char* const boxes_in_order[] = {"title",    "code",    "mvalue",    "dropyn",
                                        "testdate", "lowpass", "ttypelist", "Grid1"};
  for (const char* box : boxes_in_order) {
    EXPECT_EQ(Focused(), box);
    Key(Qt::Key_Return);
  }
  EXPECT_EQ(marks.title.Text, "Essay");
  EXPECT_EQ(marks.dropyn.Text, "N");
  EXPECT_EQ(marks.Grid1.Row, 2) << "in the marks Return goes on downward";
  EXPECT_FALSE(marks.Unloaded());
}

TEST_F(KeysAndClicks, EnterInTheFillFills) {
  auto& marks = Show<frmMarks>();
  Find<QAbstractButton>("fill").click();
  Find<QRadioButton>("Option5").setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Space);
  Key(Qt::Key_Tab);
  ASSERT_EQ(Focused(), "Text1");
  Type("77");
  Key(Qt::Key_Return);
  EXPECT_EQ(marks.Grid1.TextMatrix(40, 2), "77");
  EXPECT_FALSE(marks.fillframe.Visible);
  EXPECT_EQ(Focused(), "Grid1");
}

TEST_F(KeysAndClicks, AClickBelowTheLastStudentKeepsTheCellInWork) {
  Current().NumStudents = 3;
  auto& marks = Show<frmMarks>();
  ClickAt(PlaceOf(2, 2).center());
  Type("8");
  ClickAt(PlaceOf(3, 2).center() + QPoint(0, 3 * PlaceOf(3, 2).height()));
  EXPECT_EQ(marks.Grid1.Row, 2);
  Type("5");
  EXPECT_EQ(marks.Grid1.TextMatrix(2, 2), "85");
}

TEST_F(KeysAndClicks, AClickedTitleLeadsToItsMarksAndAWalkedOneDoesNot) {
  CurrentStudent = 0;
  auto& edit = Show<frmEmarks>();
  ASSERT_EQ(Focused(), "list1");
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Focused(), "list1");
  EXPECT_EQ(edit.title.Text, "Second");
  ClickAt(LinePlace("list1", 0));
  EXPECT_EQ(edit.title.Text, "First");
  EXPECT_EQ(Focused(), "Grid1");
  Type("9");
  EXPECT_EQ(edit.Grid1.TextMatrix(1, 2), "9");
}

TEST_F(KeysAndClicks, ARefusedTitleLeadsToWhatIsMissing) {
  CurrentStudent = 1;
  auto& edit = Show<frmEmarks>();
  Find<QLineEdit>("Title").setFocus(Qt::TabFocusReason);
  Find<QLineEdit>("Title").selectAll();
  Key(Qt::Key_Delete);
  boxes.ExpectBox(
      "You must fill in the TITLE and CODE of the grading instrument, and a GRADE for each "
      "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between "
      "student names.");
  ClickAt(LinePlace("list1", 1));
  EXPECT_EQ(Focused(), "Title");
  EXPECT_EQ(edit.list1.ListIndex, 0);
}

TEST_F(KeysAndClicks, KeysWalkThroughTheCategoriesAndReturnOrAClickTakesOne) {
  Show<frmcategories>();
  Key(Qt::Key_Up);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Focused(), "listcat");
  Key(Qt::Key_Home);
  Key(Qt::Key_Up);
  ClickAt(LinePlace("listcat", 0));
  EXPECT_EQ(Focused(), "catdesc");
}

TEST_F(KeysAndClicks, EnterInAGridOfYesAndNoGoesOnDownward) {
  auto& drop = Show<frmdropgrade>();
  Find<GridWidget>("grdgrade").setFocus();
  Type("x");
  Key(Qt::Key_Return);
  Type("x");
  Key(Qt::Key_Return);
  EXPECT_EQ(drop.grdgrade.TextMatrix(1, 3), "Y");
  EXPECT_EQ(drop.grdgrade.TextMatrix(2, 3), "Y");
  EXPECT_EQ(drop.grdgrade.Row, 2);
  EXPECT_FALSE(drop.Unloaded());
  auto& points = Show<frmpoints>();
  Find<GridWidget>("grdgrade").setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(points.grdgrade.Row, 2);
  EXPECT_FALSE(points.Unloaded());
}

TEST_F(KeysAndClicks, DigitsAfterARefusedTotalReplaceTheCell) {
  auto& weights = Show<frmweights>();
  Type("5");
  boxes.ExpectBox("The weights, excluding 'Extra Credit', must equal 100");
  Find<QAbstractButton>("exit").click();
  EXPECT_EQ(Focused(), "grdgrade");
  Type("40");
  EXPECT_EQ(weights.grdgrade.TextMatrix(1, 3), "40");
}

TEST_F(KeysAndClicks, DigitsReplaceAWeightThatAButtonWrote) {
  auto& weights = Show<frmweights>();
  Type("5");
  Find<QAbstractButton>("equal").click();
  Find<GridWidget>("grdgrade").setFocus(Qt::TabFocusReason);
  Type("4");
  EXPECT_EQ(weights.grdgrade.TextMatrix(1, 3), "4");
}

TEST_F(KeysAndClicks, TheOptionThatIsOnKeepsWhatWasTyped) {
  auto& summary = Show<frmAtsum>();
  Click<QRadioButton>("Hand");
  Find<QLineEdit>("Title").setFocus(Qt::TabFocusReason);
  Type("Quarter");
  grid().setFocus(Qt::TabFocusReason);
  Type("3");
  Click<QRadioButton>("Hand");
  EXPECT_EQ(summary.Grid1.TextMatrix(1, 2), "3");
  EXPECT_EQ(summary.Title.Text, "Quarter");
  Click<QRadioButton>("Summary");
  Find<QAbstractButton>("ok").click();
  ASSERT_EQ(summary.Grid1.TextMatrix(1, 2), "0");
  Click<QRadioButton>("Summary");
  EXPECT_EQ(summary.Grid1.TextMatrix(1, 2), "0");
}

TEST_F(KeysAndClicks, OneClickRemindsOnceOfAPeriod) {
  Class& c = Current();
  c.NumSummaries = 2;
  ReDim(c.Summaries, 2);
  c.Summaries[1] = {"First Quarter", "Q1", 1, 0, "", ""};
  c.Summaries[2] = {"Second Quarter", "Q2", 1, 0, "", ""};
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& s = c.Students[static_cast<std::size_t>(i)];
    ReDim(s.SummaryAbsent, 2);
    ReDim(s.SummaryLate, 2);
    ReDim(s.SummaryDetail, 2);
    for (std::size_t k = 1; k <= 2; ++k) {
      s.SummaryAbsent[k] = "1";
      s.SummaryLate[k] = "1";
    }
  }
  auto& edit = Show<frmEatt>();
  ClickAt(LinePlace("list1", 0));
  Find<QLineEdit>("Title").setFocus(Qt::TabFocusReason);
  Find<QLineEdit>("Title").selectAll();
  Key(Qt::Key_Delete);
  boxes.ExpectBox(
      "You must fill in the TITLE and CODE of the attendance period, and the ATTENDANCE for each "
      "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between "
      "student names.");
  ClickAt(LinePlace("list1", 1));
  EXPECT_EQ(boxes.boxes.size(), 1u);
  EXPECT_EQ(Focused(), "Title");
  EXPECT_EQ(edit.list1.ListIndex, 0);
  EXPECT_EQ(Find<QListWidget>("list1").currentRow(), 0);
}

TEST_F(KeysAndClicks, ATermDateIsOneFieldWithAnArrowThatShowsNoDay) {
  auto& wizard = Show<frmWizard>([](frmWizard& made) { made.Step = 3; });
  auto& arrow = Find<QDateEdit>("termstart");
  ASSERT_TRUE(arrow.isVisible());
  EXPECT_FALSE(arrow.findChild<QLineEdit*>()->isVisible());
  EXPECT_EQ(Find<QLineEdit>("tempstart").text(), QString());
  arrow.setFocus(Qt::TabFocusReason);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_1, Qt::Key_PageUp}) Key(key);
  EXPECT_EQ(wizard.tempstart.Text, "");
  Find<QLineEdit>("tempstart").setFocus(Qt::TabFocusReason);
  Type("10/5/2026");
  arrow.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(arrow.date(), QDate(2026, 10, 5));
  Key(Qt::Key_F4);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(wizard.tempstart.Text, "10/5/2026");
}

}  // namespace
}  // namespace tallyroll
