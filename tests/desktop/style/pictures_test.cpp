// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of every window, for the eye: TALLYROLL_PICTURES names the folder they go to, and
// TALLYROLL_PICTURE_CLASS the class they show. TALLYROLL_PICTURE_LOOK takes one look alone,
// TALLYROLL_PICTURE_FORMS forms that are not built in yet. Without a folder there is nothing to do.
#include <QAbstractButton>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>

#include "desktop/platform/message_box.h"
#include "desktop/style/appearance.h"
#include "desktop/window/about_box.h"
#include "desktop/window/class_window_view.h"
#include "desktop/window/help_window.h"
#include "shell/opened_class.h"
#include "tests/desktop/every_window.h"
#include "tests/desktop/style/looks.h"
#include "tests/desktop/window/frame_fixture.h"

namespace tallyroll {
namespace {

QString PictureFolder() {
  return qEnvironmentVariable("TALLYROLL_PICTURES");
}

std::string PictureClass() {
  return qEnvironmentVariable("TALLYROLL_PICTURE_CLASS").toStdString();
}

void Keep(QWidget& window, const QString& look, const QString& name) {
  const QString folder = PictureFolder();
  QDir(folder).mkpath(look);
  EXPECT_TRUE(window.grab().save(QStringLiteral("%1/%2/%3.png").arg(folder, look, name)));
}

// In each look that is wanted, with its name.
void ForEachLook(const std::function<void(const QString&)>& take) {
  const QString only = qEnvironmentVariable("TALLYROLL_PICTURE_LOOK");
  for (const Look& look : kLooks) {
    const QString name = QString::fromLatin1(look.name);
    if (!only.isEmpty() && only != name) continue;
    const WornLook worn(look);
    take(name);
  }
}

class Pictures : public EveryWindow {
 protected:
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
  ForEachLook([&](const QString& look) {
    ForEach([&](const std::string& name, PortalDialog& window) {
      if (!only.isEmpty() && !only.split(u',').contains(QString::fromStdString(name))) return;
      Keep(window, look, QString::fromStdString(name));
      for (auto* tabs : window.findChildren<QTabWidget*>())
        for (int i = 1; i < tabs->count(); ++i) {
          tabs->setCurrentIndex(i);
          Keep(window, look, QStringLiteral("%1-page%2").arg(QString::fromStdString(name)).arg(i));
        }
      Further(name, look);
    });
    QCalendarWidget calendar;
    calendar.show();
    Keep(calendar, look, QStringLiteral("calendar"));
  });
}

class FramePictures : public FrameTest {
 protected:
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
  const std::string file = PictureClass();
  window->resize(1366, 768);
  ForEachLook([&](const QString& look) {
    Settle();
    Keep(*window, look, QStringLiteral("start"));
    if (file.empty()) return;
    FrameForm->OpenRecent(file);
    window->Sync();
    Settle();
    ASSERT_NE(window->Current(), nullptr);
    Keep(*window, look, QStringLiteral("class"));
    KeepMenus(look);
    KeepBoxes(look);
    window->resize(1000, 500);
    Settle();
    Keep(*window, look, QStringLiteral("class-small"));
    window->resize(1366, 768);
    HelpWindow help(window.get());
    help.ShowTopic(0);
    help.show();
    Settle();
    Keep(help, look, QStringLiteral("help"));
    EXPECT_TRUE(FrameForm->CloseWindow(*ClassWindows[1]));
    Settle();
  });
}

}  // namespace
}  // namespace tallyroll
