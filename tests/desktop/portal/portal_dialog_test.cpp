// SPDX-License-Identifier: GPL-3.0-or-later
// What the binder passes on, when, and what it keeps to itself.
#include "desktop/portal/portal_dialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimer>
#include <QWindow>

#include "desktop/grid/grid_widget.h"
#include "tests/desktop/portal/everything_portal.h"

namespace tallyroll {
namespace {

TEST_F(EverythingTest, CaptionsThatTheStructLeavesEmptyAreTheForms) {
  portal.ok.Caption = "&Go";
  Open();
  EXPECT_EQ(portal.Caption, "Every control");
  EXPECT_EQ(portal.note.Caption, "A note");
  EXPECT_EQ(portal.choice.Caption, "Choice");
  EXPECT_EQ(portal.tick.Caption, "&Tick");
  EXPECT_EQ(portal.two.Caption, "T&wo");
  EXPECT_EQ(portal.tabs.Tabs, (Lines{"Tab 1", "Tab 2"}));
  EXPECT_EQ(Find<QPushButton>("ok").text(), QStringLiteral("&Go"));
}

TEST_F(EverythingTest, ThePlaceInTheFormIsNoPlaceOnTheScreen) {
  const PortalDialog fresh(portal, EverythingForm());
  EXPECT_FALSE(fresh.testAttribute(Qt::WA_Moved));
}

TEST_F(EverythingTest, OpeningRaisesNoEvent) {
  portal.first.Text = "Smith";
  portal.tick.Value = portal.two.Value = true;
  portal.pick.ListIndex = 2;
  portal.list.ListIndex = 1;
  portal.tabs.Selected = 1;
  Open();
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(EverythingTest, TypingRaisesChangeForEachCharacter) {
  Open();
  QTest::keyClicks(&Find<QLineEdit>("first"), QStringLiteral("ab"));
  EXPECT_EQ(Events(), (Lines{"first change", "first change"}));
  EXPECT_EQ(portal.first.Text, "ab");
}

TEST_F(EverythingTest, WhatAHandlerSetsShowsAndRaisesNoEvent) {
  portal.when = [this](const std::string& line) {
    if (line != "other click") return;
    portal.first.Text = "set";
    portal.tick.Value = true;
    portal.one.Value = true;
    portal.pick.ListIndex = 1;
    portal.list.ListIndex = 2;
    portal.tabs.Selected = 1;
    portal.pages.Current = 1;
    portal.day.Value = 46267;
    portal.note.Caption = "Changed";
    portal.choice.Caption = "Changed too";
    portal.Caption = "New title";
  };
  Open();
  Focus("other");
  QTest::mouseClick(&Find<QPushButton>("other"), Qt::LeftButton);
  EXPECT_EQ(Events(), Lines{"other click"});
  EXPECT_EQ(Find<QLineEdit>("first").text(), QStringLiteral("set"));
  EXPECT_TRUE(Find<QCheckBox>("tick").isChecked());
  EXPECT_TRUE(Find<QRadioButton>("one").isChecked());
  EXPECT_EQ(Find<QStackedWidget>("pages").currentIndex(), 1);
  EXPECT_EQ(Find<QLabel>("note").text(), QStringLiteral("Changed"));
  EXPECT_EQ(Find<QGroupBox>("choice").title(), QStringLiteral("Changed too"));
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("New title"));
}

TEST_F(EverythingTest, EnabledAndVisibleFollowTheControl) {
  portal.when = [this](const std::string& line) {
    if (line != "other click") return;
    portal.first.Enabled = false;
    portal.choice.Enabled = false;
    portal.tick.Visible = false;
    portal.cancel.Visible = true;
  };
  portal.cancel.Visible = false;
  Open();
  EXPECT_TRUE(Find<QPushButton>("cancel").isHidden());
  QTest::mouseClick(&Find<QPushButton>("other"), Qt::LeftButton);
  EXPECT_FALSE(Find<QLineEdit>("first").isEnabled());
  EXPECT_FALSE(Find<QRadioButton>("one").isEnabled());
  EXPECT_FALSE(Find<QRadioButton>("one").testAttribute(Qt::WA_ForceDisabled));
  EXPECT_TRUE(Find<QCheckBox>("tick").isHidden());
  EXPECT_TRUE(Find<QPushButton>("cancel").isVisible());
}

TEST_F(EverythingTest, DisablingTheFieldWithTheFocusRaisesNoFocusEvent) {
  portal.when = [this](const std::string& line) {
    if (line == "first change") portal.first.Enabled = false;
  };
  Open();
  Focus("first");
  QTest::keyClicks(&Find<QLineEdit>("first"), QStringLiteral("x"));
  EXPECT_EQ(Events(), Lines{"first change"});
}

TEST_F(EverythingTest, TabLeavesOneFieldAndEntersTheNext) {
  Open();
  Focus("first");
  QTest::keyClick(&Find<QLineEdit>("first"), Qt::Key_Tab);
  EXPECT_EQ(Events(), (Lines{"first lost", "second got"}));
}

TEST_F(EverythingTest, ABoxInFrontDoesNotLeaveTheField) {
  Open();
  Focus("first");
  QDialog box(dialog.get());
  QTimer::singleShot(0, &box, &QDialog::accept);
  box.exec();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(EverythingTest, AMnemonicLeavesTheFieldBeforeTheClickAndPressesAtOnce) {
  Open();
  Focus("first");
  QTest::keyClick(&Find<QLineEdit>("first"), Qt::Key_H, Qt::AltModifier);
  EXPECT_EQ(Events(), (Lines{"first lost", "other click"}));
}

TEST_F(EverythingTest, EnterLeavesTheFieldAndPressesTheDefaultButton) {
  Open();
  Focus("first");
  QTest::keyClick(&Find<QLineEdit>("first"), Qt::Key_Return);
  EXPECT_EQ(Events(), (Lines{"first lost", "ok click"}));
}

TEST_F(EverythingTest, EnterPressesTheButtonWithTheFocus) {
  Open();
  Focus("cancel");
  QTest::keyClick(&Find<QPushButton>("cancel"), Qt::Key_Return);
  EXPECT_EQ(Events(), Lines{"cancel click"});
}

TEST_F(EverythingTest, AFieldThatMustBeMendedStopsThePress) {
  portal.first.Text = "wrong";
  portal.when = [this](const std::string& line) {
    if (line == "second lost") portal.SetFocusAndSelect(portal.first);
  };
  Open();
  Focus("second");
  QTest::keyClick(&Find<QLineEdit>("second"), Qt::Key_Return);
  // The key itself goes first, as the field hears of it before the button.
  EXPECT_EQ(portal.log.back(), "first got");
  EXPECT_EQ(std::count(portal.log.begin(), portal.log.end(), "ok click"), 0);
  EXPECT_TRUE(Find<QLineEdit>("first").hasFocus());
  EXPECT_EQ(Find<QLineEdit>("first").selectedText(), QStringLiteral("wrong"));
}

// A box in front for a moment, as a message has it.
void ShowABox(QWidget* parent) {
  QDialog box(parent);
  QTimer::singleShot(0, &box, &QDialog::accept);
  box.exec();
}

// A press that comes from the window system, so that it moves the focus first.
void PressInWindow(QWidget& widget, const QPoint& place) {
  QWidget* window = widget.window();
  const QPoint in_window = widget.mapTo(window, place);
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, in_window);
  QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, in_window);
}

TEST_F(EverythingTest, ABoxOnLeavingAFieldStopsThePressOnAButton) {
  portal.when = [this](const std::string& line) {
    if (line == "first lost") ShowABox(dialog.get());
  };
  Open();
  Focus("first");
  PressInWindow(Find<QPushButton>("other"), Find<QPushButton>("other").rect().center());
  EXPECT_EQ(Events(), (Lines{"first lost", "other got"}));
}

TEST_F(EverythingTest, ABoxOnLeavingAFieldStopsThePressOnAList) {
  portal.when = [this](const std::string& line) {
    if (line == "first lost") ShowABox(dialog.get());
  };
  Open();
  Focus("first");
  auto& list = Find<QListWidget>("list");
  PressInWindow(*list.viewport(), list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(Events(), (Lines{"first lost", "list got"}));
  EXPECT_EQ(portal.list.ListIndex, -1);
}

TEST_F(EverythingTest, ABoxOnLeavingAFieldStopsThePressOnAGrid) {
  portal.when = [this](const std::string& line) {
    if (line == "first lost") ShowABox(dialog.get());
  };
  Open();
  Focus("first");
  auto& grid = Find<GridWidget>("grid");
  PressInWindow(*grid.viewport(), grid.CellRect(2, 1).center());
  EXPECT_EQ(Events(), (Lines{"first lost", "grid got"}));
  EXPECT_EQ(portal.grid.Row, 1);
}

TEST_F(EverythingTest, ItHearsOfNoFocusWhileItIsTakenDown) {
  Open();
  const QObject* falling = dialog.get();
  bool still_heard = true;
  QObject::connect(&Find<QLineEdit>("first"), &QObject::destroyed, qApp,
                   [&] { still_heard = QObject::disconnect(qApp, nullptr, falling, nullptr); });
  dialog.reset();
  EXPECT_FALSE(still_heard);
}

TEST_F(EverythingTest, AHandlerGivesTheFocusWhenItIsDone) {
  portal.when = [this](const std::string& line) {
    if (line == "other click") portal.SetFocus(portal.second);
  };
  Open();
  Focus("other");
  QTest::mouseClick(&Find<QPushButton>("other"), Qt::LeftButton);
  EXPECT_TRUE(Find<QLineEdit>("second").hasFocus());
  EXPECT_EQ(Events(), (Lines{"other click", "other lost", "second got"}));
}

TEST_F(EverythingTest, AFocusAskedForWhileLoadingIsGivenAsItOpens) {
  portal.second.Text = "abc";
  portal.SetFocusAndSelect(portal.second);
  Open();
  EXPECT_TRUE(Find<QLineEdit>("second").hasFocus());
  EXPECT_EQ(Find<QLineEdit>("second").selectedText(), QStringLiteral("abc"));
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(EverythingTest, KeysComeBeforeTheFieldHandlesThem) {
  Open();
  Focus("second");
  QTest::keyClick(&Find<QLineEdit>("second"), Qt::Key_A);
  EXPECT_EQ(Events(), (Lines{"second press a", "second change"}));
  QTest::keyClick(&Find<QLineEdit>("second"), Qt::Key_Backspace);
  EXPECT_EQ(Events(), (Lines{"second press back", "second change"}));
  QTest::keyClick(&Find<QLineEdit>("second"), Qt::Key_Up);
  EXPECT_EQ(Events(), Lines{"second key 0"});
}

TEST_F(EverythingTest, AKeyThatIsUsedUpDoesNotReachTheField) {
  portal.use_up_keys = true;
  Open();
  Focus("second");
  QTest::keyClick(&Find<QLineEdit>("second"), Qt::Key_A);
  EXPECT_EQ(Events(), Lines{"second press a"});
  EXPECT_EQ(portal.second.Text, "");
}

TEST_F(EverythingTest, EscapeAsksThePortalToLeave) {
  portal.refuse_to_go = true;
  Open();
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_EQ(Events(), Lines{"query unload"});
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EverythingTest, TheCloseBoxAsksThePortalToLeave) {
  portal.refuse_to_go = true;
  Open();
  EXPECT_FALSE(dialog->close());
  EXPECT_EQ(Events(), Lines{"query unload"});
  portal.refuse_to_go = false;
  EXPECT_TRUE(dialog->close());
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(EverythingTest, UnloadEndsItWhenTheHandlerIsDone) {
  portal.when = [this](const std::string& line) {
    if (line != "other click") return;
    portal.Unload();
    EXPECT_TRUE(dialog->isVisible());
  };
  Open();
  QTest::mouseClick(&Find<QPushButton>("other"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(EverythingTest, NothingIsPassedOnAfterClosing) {
  Open();
  Focus("first");
  dialog->close();
  Events();
  Find<QPushButton>("ok").click();
  QTest::keyClicks(&Find<QLineEdit>("first"), QStringLiteral("x"));
  dialog.reset();
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(EverythingTest, F1AsksForTheTopicOfThePortal) {
  portal.HelpContext = 152;
  Open();
  QTest::keyClick(&Find<QLineEdit>("first"), Qt::Key_F1);
  EXPECT_EQ(surroundings.help_shown, 152);
}

TEST_F(EverythingTest, APortalMayShowAnother) {
  EverythingPortal inner;
  portal.when = [&](const std::string& line) {
    if (line != "other click") return;
    PortalDialog shown(inner, EverythingForm(), dialog.get());
    QTimer::singleShot(0, &shown, [&shown] {
      QTest::keyClicks(shown.findChild<QLineEdit*>(QStringLiteral("first")), QStringLiteral("in"));
      shown.close();
    });
    shown.RunModal();
    portal.second.Text = inner.first.Text;
  };
  Open();
  Focus("other");
  QTest::mouseClick(&Find<QPushButton>("other"), Qt::LeftButton);
  EXPECT_EQ(Events(), Lines{"other click"});
  EXPECT_EQ(inner.log.back(), "query unload");
  EXPECT_EQ(Find<QLineEdit>("second").text(), QStringLiteral("in"));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EverythingTest, SizeAndPlaceAreKeptBetweenRuns) {
  const auto run = [this](const QSize& resize) {
    EverythingPortal one;
    PortalDialog shown(one, EverythingForm());
    QSize size;
    QTimer::singleShot(0, &shown, [&] {
      if (resize.isValid()) shown.resize(resize);
      size = shown.size();
      shown.close();
    });
    shown.RunModal();
    return size;
  };
  const QSize wanted = run(QSize(700, 760));
  EXPECT_EQ(run(QSize()), wanted);
}

// A Portal of one field, shown by forms that are right and wrong.
struct OneFieldPortal : Portal {
  OneFieldPortal() : Portal("frmOneField") {}
  void Declare(ControlTable& table) override { table.Add("first", first); }
  TextBox first;
};

QStringList ComplaintsOf(const char* form) {
  OneFieldPortal portal;
  const PortalDialog dialog(portal, QStringLiteral(":/test/forms/%1.ui").arg(QLatin1String(form)));
  return dialog.Complaints();
}

TEST(PortalForm, AFormThatFitsRaisesNoComplaint) {
  EXPECT_EQ(ComplaintsOf("good"), QStringList());
}

TEST(PortalForm, AMisspeltNameIsRefusedOnBothSides) {
  EXPECT_EQ(ComplaintsOf("misspelt_name"),
            QStringList({QStringLiteral("first is declared once and stands 0 times in the form"),
                         QStringLiteral("frist stands in the form and is not declared")}));
}

TEST(PortalForm, ANameGivenTwiceIsRefused) {
  EXPECT_EQ(ComplaintsOf("name_twice"),
            QStringList({QStringLiteral("the name first is given twice"),
                         QStringLiteral("first is declared once and stands 2 times in the form")}));
}

TEST(PortalForm, AMisspeltPropertyIsRefused) {
  EXPECT_EQ(ComplaintsOf("misspelt_property"),
            QStringList(QStringLiteral("first has no property readOnyl")));
}

TEST(PortalForm, AnUnknownClassIsRefused) {
  EXPECT_TRUE(ComplaintsOf("unknown_class")
                  .contains(QStringLiteral("first: the class QLineEditt is unknown")));
}

TEST(PortalForm, AWidgetOfTheWrongKindIsRefused) {
  EXPECT_EQ(ComplaintsOf("wrong_class"),
            QStringList(QStringLiteral("first cannot be shown by a QComboBox")));
}

TEST(PortalForm, AnInputThatIsNotDeclaredIsRefused) {
  EXPECT_EQ(ComplaintsOf("undeclared_input"),
            QStringList(QStringLiteral("extra stands in the form and is not declared")));
}

TEST(PortalForm, AMissingFormIsRefused) {
  EXPECT_FALSE(ComplaintsOf("no_such_form").isEmpty());
}

struct OneButtonPortal : OneFieldPortal {
  void Declare(ControlTable& table) override {
    OneFieldPortal::Declare(table);
    table.Add("ok", ok).Click([this] { ++pressed; });
  }
  CommandButton ok;
  int pressed = 0;
};

TEST(PortalForm, WithoutADefaultButtonEnterInAFieldPressesNothing) {
  OneButtonPortal portal;
  PortalDialog dialog(portal, QStringLiteral(":/test/forms/no_default.ui"));
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("first")), Qt::Key_Return);
  EXPECT_EQ(portal.pressed, 0);
}

}  // namespace
}  // namespace tallyroll
