// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of the Print Preview Portal, as they come from the keyboard.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QTest>

#include "desktop/portal/portal_dialog.h"
#include "desktop/style/tokens.h"
#include "printing/frmprintpre.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"
#include "tests/desktop/style/looks.h"
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

TEST_F(PreviewKeysTest, TheFrameTakesTheListsPlaceUntilEscape) {
  Open(13, 2);
  dialog->findChild<QAbstractButton*>(QStringLiteral("nine"))->click();
  EXPECT_TRUE(Find("Frame1").isVisible());
  for (const char* name : {"size", "pagenum"}) EXPECT_FALSE(Find(name).isVisible()) << name;
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Find("Frame1").isVisible());
  EXPECT_TRUE(dialog->isVisible());
  for (const char* name : {"size", "pagenum"}) EXPECT_TRUE(Find(name).isVisible()) << name;
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(PreviewKeysTest, OneBarHoldsEveryToolInItsOrder) {
  Open(19, 3);
  int after = 0;
  const int middle = Find("seven").geometry().center().y();
  for (const char* name :
       {"one",     "two",   "size", "fitwidth",    "fitpage", "three",       "four",
        "pagenum", "five",  "six",  "Pagen_label", "Pagen",   "Pagel_label", "Pagel",
        "seven",   "eight", "nine", "ten",         "pdf",     "eleven",      "twelve"}) {
    const QRect place = Find(name).geometry();
    EXPECT_GE(place.left(), after) << name;
    EXPECT_NEAR(place.center().y(), middle, 1) << name;
    EXPECT_LE(place.height(), 46) << name;
    after = place.right();
  }
  EXPECT_LE(after, dialog->width());
}

// Its icon alone, or a short word below it, is what is seen: the name and the tip say all of it.
TEST_F(PreviewKeysTest, AToolIsNamedInFullWhateverStandsOnIt) {
  Open(19, 3);
  for (const auto& [name, whole] : {std::pair{"nine", "Save to Text File"},
                                    {"ten", "Save to HTML"},
                                    {"pdf", "Save as PDF"},
                                    {"six", "Last"}}) {
    QAccessibleInterface* tool = QAccessible::queryAccessibleInterface(&Find(name));
    ASSERT_NE(tool, nullptr);
    EXPECT_EQ(tool->text(QAccessible::Name).toStdString(), whole);
    EXPECT_EQ(Find(name).toolTip().toStdString(), whole);
  }
  const QFontMetrics metrics(Find("nine").font());
  EXPECT_LT(Find("nine").width(), metrics.horizontalAdvance(QStringLiteral("Save to Text File")));
}

TEST_F(PreviewKeysTest, PrintIsAsHighAsTheChoicesInItsRow) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    Open(19, 3);
    EXPECT_EQ(Find("seven").height(), Find("size").height()) << look.name;
    EXPECT_EQ(Find("seven").height(), Find("pagenum").height()) << look.name;
    dialog.reset();
  }
}

TEST_F(PreviewKeysTest, PrintIsTheOneThatIsFilled) {
  Open(19, 3);
  const auto ground = [this](const char* name) {
    const QImage picture = Find(name).grab().toImage();
    return picture.pixelColor(5, picture.height() / 2);
  };
  const Tokens t = TokensOf(QApplication::palette());
  EXPECT_EQ(ground("seven"), t.accent);
  EXPECT_EQ(ground("eight"), t.window);
}

}  // namespace
}  // namespace tallyroll
