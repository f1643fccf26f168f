// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of every Portal. TALLYROLL_PICTURE_PORTALS takes some alone, TALLYROLL_PICTURE_FORMS
// forms that are not built in yet, TALLYROLL_PICTURE_OTHER a class to compare with.
#include "tests/desktop/style/pictures.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QComboBox>
#include <QListWidget>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include "desktop/grid/grid_widget.h"
#include "desktop/paper/qt_print_target.h"
#include "printing/print_run.h"
#include "printing/reports/reports.h"
#include "shell/opened_class.h"
#include "tests/desktop/every_window.h"

namespace tallyroll {
namespace {

// Reports stand on a sheet of letter paper, in the fonts that they are printed in.
class PaperScreen : public HeadlessSurroundings {
 public:
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override {
    const Sheet sheet = WholeSheet(QPageSize(QPageSize::Letter));
    return std::make_unique<QtPrintTarget>(landscape ? Turned(sheet) : sheet);
  }
};

class Pictures : public EveryWindow {
 protected:
  Pictures() { SetPlatform(&paper); }
  ~Pictures() override { dialog.reset(); }

  // What the preview shows: the averages of the class, or its grades while it has none.
  static void LayOutReport() {
    ResetPrinting();
    Job.PrintFlag = kPrintRuns;
    Job.PrintTab = HasAverages() ? 4 : 1;
    Job.ReportCode = HasAverages() ? 11 : 1;
    Job.PrintTitle = "First Term";
    tallyroll::LayOutReport();
  }

  // A sheet beside options is drawn a moment after them.
  static void AwaitSheet(const std::string& name) {
    if (name.starts_with("frmprintall")) QTest::qWait(400);
  }

  // Marks as they are typed, of which one may be a slip.
  void TypeMarks(const QString& look) {
    auto& sheet = Find<GridWidget>("Grid1");
    sheet.setFocus();
    for (const char* mark : {"18", "9.5", "200", "CUT"}) {
      QTest::keyClicks(&sheet, QString::fromLatin1(mark));
      QTest::keyClick(&sheet, Qt::Key_Return);
    }
    QTest::keyClick(&sheet, Qt::Key_Up);
    QTest::keyClick(&sheet, Qt::Key_Up);
    QCoreApplication::processEvents();
    Keep(*dialog, look, QStringLiteral("frmMarks-typed"));
  }

  void Click(const char* button) {
    auto* found = dialog->findChild<QAbstractButton*>(QString::fromLatin1(button));
    ASSERT_NE(found, nullptr) << button;
    found->click();
    QCoreApplication::processEvents();
  }

  // Walks the frames of frmcompare with every class of the list and its second grade.
  void Compare(const QString& look) {
    auto& files = Find<QListWidget>("Listfiles");
    for (int i = 0; i < files.count(); ++i) files.item(i)->setCheckState(Qt::Checked);
    Keep(*dialog, look, QStringLiteral("frmcompare-1"));
    Click("continue1");
    for (auto* combo : dialog->findChildren<QComboBox*>()) {
      if (!combo->isVisible() || combo->count() < 3) continue;
      combo->setCurrentIndex(2);
      Q_EMIT combo->activated(2);
    }
    Keep(*dialog, look, QStringLiteral("frmcompare-2"));
    Click("continue2");
    Keep(*dialog, look, QStringLiteral("frmcompare-3"));
    Click("continue3");
    Keep(*dialog, look, QStringLiteral("frmcompare-4"));
  }

  // The further pages of a form that shows them one after another.
  void TurnPages(const std::string& name, const QString& look) {
    // The logic would turn back as soon as the focus moves.
    if (dialog->focusWidget()) dialog->focusWidget()->clearFocus();
    for (auto* stack : dialog->findChildren<QStackedWidget*>()) {
      const bool of_tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
      if (of_tabs || !stack->isVisible()) continue;
      for (int page = 0; page < stack->count(); ++page) {
        if (page == stack->currentIndex()) continue;
        stack->setCurrentIndex(page);
        QCoreApplication::processEvents();
        Keep(*dialog, look,
             QStringLiteral("%1-%2%3")
                 .arg(QString::fromStdString(name), stack->objectName())
                 .arg(page));
      }
    }
  }

  void Further(const std::string& name, const QString& look) {
    if (name == "frmcompare") return Compare(look);
    if (name == "frmAtsum") {
      Click("Summary");
      Keep(*dialog, look, QStringLiteral("frmAtsum-range"));
    }
    if (name == "frmMarks") TypeMarks(look);
    for (const char* list : {"lstName", "lsttitles", "list1", "List1"}) {
      auto* found = dialog->findChild<QListWidget*>(QString::fromLatin1(list));
      if (!found || !found->isVisible() || found->count() == 0 || found->currentRow() >= 0)
        continue;
      found->setCurrentRow(0);
      QCoreApplication::processEvents();
      Keep(*dialog, look, QString::fromStdString(name) + QLatin1String("-chosen"));
    }
    TurnPages(name, look);
  }

  PaperScreen paper;
};

TEST_F(Pictures, OfEveryPortalInEveryLook) {
  if (PictureFolder().isEmpty()) GTEST_SKIP() << "TALLYROLL_PICTURES is not set";
  forms_folder = qEnvironmentVariable("TALLYROLL_PICTURE_FORMS");
  const std::string file = PictureClass();
  ASSERT_TRUE(file.empty() || OpenClass(file));
  const std::string other = qEnvironmentVariable("TALLYROLL_PICTURE_OTHER").toStdString();
  if (!other.empty()) {
    CurrentClass = 2;
    ASSERT_TRUE(OpenClass(other));
    for (const std::size_t slot : {1, 2}) Classes[slot].SlotState = 10;  // what is compared
    CurrentClass = 1;
  }
  const QString only = qEnvironmentVariable("TALLYROLL_PICTURE_PORTALS");
  LayOutReport();
  ForEachLook([&](const QString& look) {
    ForEach([&](const std::string& name, PortalDialog& window) {
      if (!only.isEmpty() && !only.split(u',').contains(QString::fromStdString(name))) return;
      AwaitSheet(name);
      Keep(window, look, QString::fromStdString(name));
      for (auto* tabs : window.findChildren<QTabWidget*>())
        for (int i = 1; i < tabs->count(); ++i) {
          tabs->setCurrentIndex(i);
          AwaitSheet(name);
          Keep(window, look, QStringLiteral("%1-page%2").arg(QString::fromStdString(name)).arg(i));
        }
      Further(name, look);
    });
    QCalendarWidget calendar;
    calendar.show();
    Keep(calendar, look, QStringLiteral("calendar"));
  });
}

}  // namespace
}  // namespace tallyroll
