// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes, file dialogs and the window of long work as a screen reader and the keyboard meet them.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include "desktop/platform/message_box.h"
#include "desktop/platform/open_save_dialog.h"
#include "desktop/platform/progress_window.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"

namespace tallyroll {
namespace {

std::string LinesOf(const QStringList& faults) {
  return faults.join(u'\n').toStdString();
}

// Runs what shows a modal window, and tells all faults of that.
QStringList FaultsWhile(const std::function<void()>& show) {
  QStringList faults{QStringLiteral("no window came up")};
  QTimer::singleShot(50, qApp, [&faults] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!box) return;
    faults = SpokenFaults(*box) + FocusFaults(*box) + MnemonicFaults(*box) + TabFaults(*box);
    box->done(0);
  });
  show();
  return faults;
}

TEST(SpokenBoxes, EachMessageBoxIsToldAndReachedByTab) {
  for (const BoxButtons buttons :
       {BoxButtons::kOk, BoxButtons::kOkCancel, BoxButtons::kYesNo, BoxButtons::kYesNoCancel})
    EXPECT_EQ(LinesOf(FaultsWhile([buttons] {
                ShowMessageBox(
                    {"Do you wish to save?", "Note to the Teacher", buttons, BoxIcon::kQuestion},
                    nullptr);
              })),
              "")
        << static_cast<int>(buttons);
}

// Its words are the box's own, told with its first button.
TEST(SpokenBoxes, ABoxIsAnAlertWithItsWords) {
  QString words;
  QAccessible::Role role = QAccessible::NoRole;
  QTimer::singleShot(50, qApp, [&] {
    QWidget* box = QApplication::activeModalWidget();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(box);
    role = spoken->role();
    for (int i = 0; i < spoken->childCount(); ++i)
      if (spoken->child(i)->role() == QAccessible::StaticText)
        words += spoken->child(i)->text(QAccessible::Name);
    box->close();
  });
  ShowMessageBox({"File Error: 61", "Note to the Teacher", BoxButtons::kOk, BoxIcon::kExclamation},
                 nullptr);
  EXPECT_EQ(words, QStringLiteral("File Error: 61"));
  EXPECT_EQ(role, QAccessible::AlertMessage);
}

TEST(SpokenBoxes, TheDialogsForFilesAreTold) {
  for (const bool save : {false, true}) {
    FileDialogRequest request;
    request.save = save;
    request.filter = "Class Files (*.TYR)|*.TYR";
    QStringList faults = FaultsWhile([&request] { ShowFileDialog(request, nullptr); });
    // The toolkit comes to the kinds of files before the buttons above them.
    faults.removeIf([](const QString& each) { return each.startsWith(QLatin1String("Tab goes")); });
    EXPECT_EQ(LinesOf(faults), "") << save;
  }
}

TEST(SpokenBoxes, TheWindowOfLongWorkIsTold) {
  ProgressWindow window(QStringLiteral("Looking for unusual marks"), nullptr);
  ASSERT_TRUE(window.Show(3, 12));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_EQ(LinesOf(SpokenFaults(window)), "");
  EXPECT_EQ(LinesOf(FocusFaults(window)), "");
}

}  // namespace
}  // namespace tallyroll
