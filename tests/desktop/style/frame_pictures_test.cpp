// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the frame and of what comes up over it: start page, class, menus, tour, boxes, help.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "desktop/basics/palette_icon.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/platform/message_box.h"
#include "desktop/platform/progress_window.h"
#include "desktop/window/about_box.h"
#include "desktop/window/class_window_view.h"
#include "desktop/window/help_window.h"
#include "desktop/window/start_page.h"
#include "desktop/window/tour.h"
#include "shell/data_folder.h"
#include "tests/desktop/style/pictures.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

class FramePictures : public FrameTest {
 protected:
  static constexpr int kLongerThanKeysRest = 150;  // milliseconds: the panel follows by then

  // As a first start leaves it: the sample lies in the teacher's folder, and was opened before.
  FramePictures() {
    QApplication::setWindowIcon(PaletteIcon(QStringLiteral("tallyroll"), QPalette(Qt::white)));
    QSettings().remove(QStringLiteral("Panel"));
    DataFolder = folder;
    if (!PictureClass().empty()) std::filesystem::copy_file(PictureClass(), SamplePath());
  }
  ~FramePictures() override { QApplication::setWindowIcon(QIcon()); }

  void OpenSample() {
    FrameForm->OpenRecent(SamplePath());
    window->Sync();
    Settle();
    ASSERT_NE(window->Current(), nullptr);
  }
  void CloseSample() {
    EXPECT_TRUE(FrameForm->CloseWindow(*ClassWindows[1]));
    Settle();
    window->Sync();
    Settle();
  }
  // With a failing mark chosen, and the panel beside it.
  void KeepClass(const QString& look) {
    constexpr int kRow = 8, kColumn = 4;
    window->Current()->findChild<GridWidget*>()->MoveTo(kRow, kColumn);
    QTest::qWait(kLongerThanKeysRest);
    Keep(*window, look, QStringLiteral("class"));
    window->resize(1000, 500);
    QTest::qWait(kLongerThanKeysRest);
    Keep(*window, look, QStringLiteral("class-small"));
    window->resize(1366, 768);
    Settle();
  }

  void PressInTour(int button) {
    auto* tour = window->findChild<Tour*>();
    ASSERT_NE(tour, nullptr);
    tour->findChildren<QPushButton*>().at(button)->click();
    QTest::qWait(kLongerThanKeysRest);
  }
  // The offer on the start page, and the steps in the class that it opens.
  void KeepTour(const QString& look) {
    constexpr int kNext = 2;
    window->activateWindow();  // again, after the boxes
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    window->OfferTour();
    Settle();
    Keep(*window, look, QStringLiteral("tour-offer"));
    PressInTour(kNext);
    Keep(*window, look, QStringLiteral("tour-1"));
    PressInTour(kNext);
    Keep(*window, look, QStringLiteral("tour-2"));
    delete window->findChild<Tour*>();
    for (auto* mark : window->findChildren<QWidget*>(QStringLiteral("TourMark"))) delete mark;
    CloseSample();
  }

  void KeepProgress(const QString& look) {
    ProgressWindow progress(QStringLiteral("Looking for unusual marks"), window.get());
    progress.Show(7, 20);
    Keep(progress, look, QStringLiteral("progress"));
  }

  void KeepHelp(const QString& look) {
    HelpWindow help(window.get());
    help.ShowTopic(0);
    help.show();
    Settle();
    Keep(help, look, QStringLiteral("help"));
  }

  // A box runs until it is answered: it is looked at from within.
  static void KeepBox(const QString& look, const QString& name, const std::function<void()>& show) {
    QTimer::singleShot(50, qApp, [&] {
      QWidget* box = QApplication::activeModalWidget();
      ASSERT_NE(box, nullptr);
      Keep(*box, look, name);
      qobject_cast<QDialog*>(box)->done(QMessageBox::Ok);
    });
    show();
  }

  void KeepMenus(const QString& look) {
    for (const QAction* heading : window->menuBar()->actions()) {
      QMenu* menu = heading->menu();
      if (!menu || !heading->isVisible()) continue;
      menu->popup(window->mapToGlobal(QPoint(0, 40)));
      Settle();
      Keep(*menu, look, QStringLiteral("menu-") + heading->text().remove(u'&').remove(u' '));
      menu->close();
    }
  }

  void KeepBoxes(const QString& look) {
    const std::pair<const char*, MessageRequest> boxes[] = {
        {"box-question",
         {"Do you want to save the changes to SAMPLE8.TYR?", "SAVE", BoxButtons::kYesNoCancel,
          BoxIcon::kQuestion}},
        {"box-information",
         {"The report was saved.", "Saved", BoxButtons::kOk, BoxIcon::kInformation}},
        {"box-warning",
         {"A name with \"<\" in it, and a sentence which is longer than a line of this box can "
          "be, so that it wraps.",
          "CANCEL", BoxButtons::kOkCancel, BoxIcon::kExclamation}},
        {"box-error", {"File Error: 61", "ERROR", BoxButtons::kOk, BoxIcon::kCritical}}};
    for (const auto& [name, request] : boxes)
      KeepBox(look, QLatin1String(name),
              [&, &asked = request] { ShowMessageBox(asked, window.get()); });
    KeepBox(look, QStringLiteral("box-about"), [&] { ShowAboutBox(window.get()); });
  }
};

TEST_F(FramePictures, OfTheFrameInEveryLook) {
  if (PictureFolder().isEmpty()) GTEST_SKIP() << "TALLYROLL_PICTURES is not set";
  window->resize(1366, 768);
  auto* page = window->findChild<StartPage*>();  // it looks for the sample as it is shown
  page->hide();
  page->show();
  Settle();
  if (!PictureClass().empty()) {
    OpenSample();
    CloseSample();
  }
  ForEachLook([&](const QString& look) {
    window->Sync();
    Settle();
    Keep(*window, look, QStringLiteral("start"));
    KeepProgress(look);
    KeepHelp(look);
    KeepBoxes(look);
    if (PictureClass().empty()) return;
    KeepTour(look);
    OpenSample();
    KeepClass(look);
    KeepMenus(look);
    CloseSample();
  });
}

}  // namespace
}  // namespace tallyroll
