// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of the Print Preview Portal, as they come from the keyboard.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QTest>

#include "desktop/portal/portal_dialog.h"
#include "printing/frmprintpre.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"
#include "tests/printing/report_test.h"

namespace tallyroll {
namespace {

class PreviewKeysTest : public ReportTest {
 protected:
  void Open(i16 code, int students) {
    EnrolMany(students);
    for (i16 s = 1; s <= students; ++s) Choice.students.push_back(s);
    LayOut(code);
    portal.Load();
    dialog.emplace(portal);
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }
  QWidget& Find(const char* name) { return *dialog->findChild<QWidget*>(QLatin1String(name)); }
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &*dialog,
                    static_cast<Qt::Key>(key), modifiers);
  }

  frmprintpre portal;
  std::optional<PortalDialog> dialog;
};

TEST_F(PreviewKeysTest, PageKeysTurnPagesWhereverTheFocusIs) {
  Open(19, 160);
  ASSERT_GE(Job.PageCount, 3);
  for (const char* name : {"one", "size", "pagenum", "picture1"}) {
    Find(name).setFocus();
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(portal.pagenum.ListIndex, 2) << name;
    EXPECT_EQ(static_cast<QComboBox&>(Find("pagenum")).currentIndex(), 2) << name;
    Press(Qt::Key_PageUp);
    EXPECT_EQ(portal.pagenum.ListIndex, 1) << name;
    Press(Qt::Key_PageUp);
  }
}

TEST_F(PreviewKeysTest, APageIsADocumentAmongToolsThatHaveNames) {
  Open(19, 3);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Find("picture1"))->role(),
            QAccessible::Document);
  const QStringList faults =
      SpokenFaults(*dialog) + FocusFaults(*dialog) + MnemonicFaults(*dialog) + TabFaults(*dialog);
  EXPECT_EQ(faults.join(u'\n').toStdString(), "");
}

TEST_F(PreviewKeysTest, ControlFFindsAStudentWhereverTheFocusIs) {
  Open(19, 160);
  for (const char* name : {"one", "size", "pagenum", "picture1"}) {
    screen.ExpectPortal("frmfind", [](PortalDriver& find) {
      find.Type("typed", "last260");
      find.Press("go");
    });
    Find(name).setFocus();
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(portal.pagenum.ListIndex, Job.PageCount - 1) << name;
    EXPECT_EQ(static_cast<QComboBox&>(Find("pagenum")).currentIndex(), Job.PageCount - 1) << name;
    Find("three").setFocus();
    Press(Qt::Key_F, Qt::AltModifier);  // back to the first page
    QTest::qWait(150);
    EXPECT_EQ(portal.pagenum.ListIndex, 0) << name;
  }
}

TEST_F(PreviewKeysTest, ControlWithPlusAndMinusZooms) {
  Open(19, 3);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(portal.size.ListIndex, 3);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(portal.size.ListIndex, 4);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(portal.size.ListIndex, 2);
}

TEST_F(PreviewKeysTest, TheFrameTakesTheListsAndTheirLabelsPlaceUntilEscape) {
  Open(13, 2);
  dialog->findChild<QAbstractButton*>(QStringLiteral("nine"))->click();
  EXPECT_TRUE(Find("Frame1").isVisible());
  for (const char* name : {"size", "size_label", "pagenum", "pagenum_label"})
    EXPECT_FALSE(Find(name).isVisible()) << name;
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find("Frame1").isVisible());
  EXPECT_TRUE(dialog->isVisible());
  for (const char* name : {"size", "size_label", "pagenum", "pagenum_label"})
    EXPECT_TRUE(Find(name).isVisible()) << name;
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

}  // namespace
}  // namespace tallyroll
