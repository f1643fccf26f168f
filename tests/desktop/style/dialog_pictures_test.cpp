// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the toolkit's own dialogs as the program shows them: files, printer, page, font.
#include <QDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "desktop/platform/open_save_dialog.h"
#include "desktop/platform/print_dialogs.h"
#include "tests/desktop/style/pictures.h"

namespace tallyroll {
namespace {

class DialogPictures : public testing::Test {
 protected:
  DialogPictures() {
    parent.resize(900, 600);
    parent.show();
    std::filesystem::create_directories(InFolder("Last year"));
    for (const char* file : {"Algebra I.TYR", "Algebra II.TYR", "History 8.TYR"})
      std::ofstream(InFolder(file)) << file;
  }

  std::string InFolder(const char* name) const {
    return folder.filePath(QString::fromLatin1(name)).toStdString();
  }

  // A dialog runs until it is answered: it is looked at from within.
  static void Take(const QString& look, const QString& name, const std::function<void()>& show) {
    constexpr int kLongerThanReadingAFolder = 400;
    QTimer::singleShot(kLongerThanReadingAFolder, qApp, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr) << name.toStdString();
      Keep(*dialog, look, name);
      dialog->reject();
    });
    show();
  }

  FileDialogRequest Request(bool save) const {
    FileDialogRequest request;
    request.save = save;
    request.title = save ? "Save As" : "Open a Class";
    request.folder = folder.path().toStdString();
    request.filter = "Class Files (*.TYR)|*.TYR|All Files (*.*)|*";
    return request;
  }

  QTemporaryDir folder;
  QWidget parent;
};

TEST_F(DialogPictures, OfTheToolkitInEveryLook) {
  if (PictureFolder().isEmpty()) GTEST_SKIP() << "TALLYROLL_PICTURES is not set";
  ForEachLook([&](const QString& look) {
    Take(look, QStringLiteral("dialog-open"), [&] { ShowFileDialog(Request(false), &parent); });
    Take(look, QStringLiteral("dialog-save"), [&] {
      TextEncoding encoding = TextEncoding::kUtf8;
      FileDialogRequest request = Request(true);
      request.filename = InFolder("Algebra III.TYR");
      request.encoding = &encoding;
      ShowFileDialog(request, &parent);
    });
    QPrinter printer;
    Take(look, QStringLiteral("dialog-print"), [&] {
      ShowPrintDialog(printer, {1, 12, 1}, &parent);
    });
    Take(look, QStringLiteral("dialog-page"), [&] { ShowPrinterSetUpDialog(printer, &parent); });
    Take(look, QStringLiteral("dialog-font"), [&] {
      std::string name = "Liberation Sans";
      float points = 12;
      ShowFontDialog(name, points, &parent);
    });
  });
}

}  // namespace
}  // namespace tallyroll
