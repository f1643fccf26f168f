// SPDX-License-Identifier: GPL-3.0-or-later
// The first page beside the options of the Printer Portal, in its window.
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>

#include "desktop/paper/qt_print_target.h"
#include "desktop/portal/sheet_view.h"
#include "printing/frmprintall.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

constexpr QSize kWide(1000, 560), kNarrow(700, 560);
constexpr int kLongerThanTheRest = 400;  // milliseconds

// A printer with a sheet in it, which counts how often it was asked for.
class CountedPrinter : public HeadlessSurroundings {
 public:
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override {
    ++asked;
    const Sheet sheet = WholeSheet(QPageSize(QPageSize::Letter));
    return std::make_unique<QtPrintTarget>(landscape ? Turned(sheet) : sheet);
  }
  int asked = 0;
};

class FirstPagePane : public ClassDialogs {
 protected:
  FirstPagePane() {
    SetPlatform(&printer);
    AddGrade("Quiz", "Q");
    OpenState = 1;
    Open(portal);
    dialog->resize(kWide);
    before = printer.asked;
  }
  ~FirstPagePane() override { dialog.reset(); }
  QWidget& pane() { return Find<QGroupBox>("firstframe"); }
  SheetView& sheet() { return *Find<QScrollArea>("firstpage").findChild<SheetView*>(); }
  static void Rest() { QTest::qWait(kLongerThanTheRest); }
  void ShowTab(int tab) {
    Find<QTabWidget>("TabStrip1").setCurrentIndex(tab);
    QCoreApplication::processEvents();
  }

  // How often a page was laid out since the window opened.
  int LaidOut() const { return printer.asked - before; }

  CountedPrinter printer;
  frmprintall portal;
  int before = 0;
};

TEST_F(FirstPagePane, IsLaidOutOnceTheChoicesRest) {
  Find<QRadioButton>("allgrades").setFocus();
  // As quick as a hand that holds a key: nothing else is heard in between.
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(LaidOut(), 0) << i;
  }
  Rest();
  EXPECT_EQ(LaidOut(), 1);
  Rest();
  EXPECT_EQ(LaidOut(), 1);
}

TEST_F(FirstPagePane, ShowsThePageOfTheReportThatIsChosen) {
  Rest();
  const QImage grades = sheet().grab().toImage();
  EXPECT_NEAR(1.0 * sheet().height() / sheet().width(), 11 / 8.5, 0.02);
  Find<QRadioButton>("allatt").click();
  Rest();
  EXPECT_NEAR(1.0 * sheet().height() / sheet().width(), 8.5 / 11, 0.02);
  Find<QRadioButton>("allgrades").click();
  Rest();
  EXPECT_EQ(sheet().grab().toImage(), grades);
  int dark = 0;
  for (int y = 0; y < grades.height(); ++y)
    for (int x = 0; x < grades.width(); ++x) dark += grades.pixelColor(x, y).lightness() < 200;
  EXPECT_GT(dark, 20);
}

TEST_F(FirstPagePane, AMutedLineSaysWhatMustBeChosenFirst) {
  Find<QRadioButton>("onegrade").click();
  Rest();
  EXPECT_FALSE(Find<QScrollArea>("firstpage").isVisible());
  EXPECT_TRUE(Find<QLabel>("firsttold").isVisible());
  EXPECT_EQ(Find<QLabel>("firsttold").text(),
            QStringLiteral("Choose the TITLE of the evaluation item you wish to print."));
  Find<QRadioButton>("missing").click();
  Rest();
  EXPECT_EQ(Find<QLabel>("firsttold").text(),
            QStringLiteral("No student of this class is missing any Grades."));
  Find<QRadioButton>("allgrades").click();
  Rest();
  EXPECT_TRUE(Find<QScrollArea>("firstpage").isVisible());
  EXPECT_FALSE(Find<QLabel>("firsttold").isVisible());
}

TEST_F(FirstPagePane, StandsAsideInANarrowWindow) {
  EXPECT_TRUE(pane().isVisible());
  dialog->resize(kNarrow);
  QCoreApplication::processEvents();
  EXPECT_FALSE(pane().isVisible());
  Rest();
  EXPECT_EQ(LaidOut(), 0);
  dialog->resize(kWide);
  Rest();
  EXPECT_TRUE(pane().isVisible());
  EXPECT_EQ(LaidOut(), 1);
}

TEST_F(FirstPagePane, NeverComesWhereTheStudentsStand) {
  ShowTab(1);
  EXPECT_FALSE(pane().isVisible());
  dialog->resize(kNarrow);
  QCoreApplication::processEvents();
  dialog->resize(kWide);
  Rest();
  EXPECT_FALSE(pane().isVisible());
  EXPECT_EQ(LaidOut(), 0);
  ShowTab(0);
  Rest();
  EXPECT_TRUE(pane().isVisible());
  EXPECT_EQ(LaidOut(), 1);
}

TEST_F(FirstPagePane, NeverComesBackFromANarrowWindowIntoAnotherTab) {
  dialog->resize(kNarrow);
  QCoreApplication::processEvents();
  ShowTab(1);
  dialog->resize(kWide);
  QCoreApplication::processEvents();
  EXPECT_FALSE(pane().isVisible());
  EXPECT_TRUE(Find<QGroupBox>("nameframe").isVisible());
}

TEST_F(FirstPagePane, ThePageGrowsWithTheWindow) {
  Rest();
  const int height = sheet().height();
  dialog->resize(kWide + QSize(300, 200));
  Rest();
  EXPECT_GT(sheet().height(), height + 100);
  EXPECT_EQ(LaidOut(), 1);  // drawn larger, not laid out anew
}

}  // namespace
}  // namespace tallyroll
