// SPDX-License-Identifier: GPL-3.0-or-later
// The two lists of the Student Portal by real keys and clicks: several lines at a time.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "roster/chosen_students.h"
#include "roster/frmstudents.h"
#include "shell/program.h"
#include "tests/support/enrol_student.h"

namespace tallyroll {
namespace {

class StudentLists : public testing::Test {
 protected:
  StudentLists() {
    ResetProgram();
    SetPlatform(&surroundings);
    CurrentClass = 1;
    for (const char* name : {"Adams", "Berg", "Cho", "Diaz", "Ewing", "Fox"})
      EnrolStudent(name, "A", name);
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    dialog->show();
    if (!QTest::qWaitForWindowActive(dialog.get())) ADD_FAILURE() << "no window";
  }
  ~StudentLists() override {
    dialog.reset();
    SetPlatform(nullptr);
    ResetProgram();
  }
  QListWidget& List(const char* name) {
    return *dialog->findChild<QListWidget*>(QLatin1String(name));
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(dialog->focusWidget(), key, modifiers);
  }
  // A mnemonic presses its button and lets it go a little later.
  void Mnemonic(Qt::Key key) {
    Key(key, Qt::AltModifier);
    QTest::qWait(150);
  }
  QStringList Lines(const char* name) {
    QStringList lines;
    for (int row = 0; row < List(name).count(); ++row)
      lines << List(name).item(row)->text().trimmed().section(QLatin1Char(','), 0, 0);
    return lines;
  }
  static QStringList Names(const char* joined) {
    return QString::fromLatin1(joined).split(QLatin1Char(' '), Qt::SkipEmptyParts);
  }

  HeadlessSurroundings surroundings;
  frmstudents portal;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(StudentLists, TheArrowsStandInTheMiddleOfTheLists) {
  const auto& enter = *dialog->findChild<QPushButton*>(QLatin1String("enter"));
  const auto& remove = *dialog->findChild<QPushButton*>(QLatin1String("remove"));
  const int middle = (enter.geometry().top() + remove.geometry().bottom()) / 2;
  EXPECT_NEAR(middle, List("orglist").geometry().center().y(), 2);
}

TEST_F(StudentLists, ShiftMarksARunOfLines) {
  EXPECT_TRUE(List("orglist").hasFocus());
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Mnemonic(Qt::Key_E);
  EXPECT_EQ(Lines("printlist"), Names("Berg Cho Diaz"));
  EXPECT_EQ(Lines("orglist"), Names("Adams Ewing Fox"));
}

TEST_F(StudentLists, ControlMarksSingleLines) {
  Key(Qt::Key_Home);
  Key(Qt::Key_Down, Qt::ControlModifier);
  Key(Qt::Key_Down, Qt::ControlModifier);
  Key(Qt::Key_Space, Qt::ControlModifier);
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Space, Qt::ControlModifier);
  Mnemonic(Qt::Key_E);
  EXPECT_EQ(Lines("printlist"), Names("Adams Cho Fox"));
  EXPECT_EQ(Lines("orglist"), Names("Berg Diaz Ewing"));
}

TEST_F(StudentLists, EveryLineIsMarkedAndGoesBack) {
  Key(Qt::Key_A, Qt::ControlModifier);
  Mnemonic(Qt::Key_E);
  EXPECT_EQ(Lines("orglist"), Names(""));
  EXPECT_EQ(Lines("printlist").size(), 6);
  List("printlist").setFocus(Qt::TabFocusReason);
  Key(Qt::Key_End);
  Key(Qt::Key_Up, Qt::ShiftModifier);
  Mnemonic(Qt::Key_R);
  EXPECT_EQ(Lines("orglist"), Names("Ewing Fox"));
  EXPECT_EQ(Lines("printlist"), Names("Adams Berg Cho Diaz"));
  Mnemonic(Qt::Key_C);
  EXPECT_EQ(Lines("orglist").size(), 6);
  Mnemonic(Qt::Key_S);
  EXPECT_EQ(Lines("printlist").size(), 6);
}

TEST_F(StudentLists, OneKeyMovesOneAfterTheOther) {
  Key(Qt::Key_Home);
  for (int i = 0; i < 3; ++i) Mnemonic(Qt::Key_E);
  EXPECT_EQ(Lines("printlist"), Names("Adams Berg Cho"));
  EXPECT_TRUE(List("orglist").hasFocus());
}

TEST_F(StudentLists, ADoubleClickMovesItsLineAlone) {
  Key(Qt::Key_A, Qt::ControlModifier);
  QListWidget& list = List("orglist");
  const QPoint at = list.visualItemRect(list.item(3)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(Lines("printlist"), Names("Diaz"));
}

TEST_F(StudentLists, EndLeadsToTheLastLineThoughNoneIsTheCurrentOne) {
  Key(Qt::Key_End);
  EXPECT_EQ(List("orglist").currentRow(), 5);
  EXPECT_EQ(portal.orglist.ListIndex, 5);
}

TEST_F(StudentLists, LeavingKeepsWhoWasChosen) {
  Key(Qt::Key_End);
  Mnemonic(Qt::Key_E);
  Key(Qt::Key_Escape);
  EXPECT_EQ(ChosenStudents(), std::vector<i16>{6});
}

}  // namespace
}  // namespace tallyroll
