// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/open_save_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

#include "desktop/basics/text_conversion.h"
#include "desktop/platform/file_lists.h"

namespace tallyroll {
namespace {

// A file whose name differs in nothing but case: for a class it is the same file, so it is the one
// that is opened, and the one that must not be replaced without a question. Empty when there is
// none.
QString FileOfOtherCase(const QString& path) {
  const QFileInfo wanted(path);
  if (path.isEmpty() || wanted.exists()) return {};
  for (const QString& name : wanted.dir().entryList(QDir::Files | QDir::Hidden | QDir::System))
    if (name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0)
      return wanted.dir().filePath(name);
  return {};
}

class CaseBlindDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

 protected:
  void accept() override {
    const QStringList files = selectedFiles();
    auto* typed = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString there = files.isEmpty() ? QString() : FileOfOtherCase(files.front());
    if (!there.isEmpty() && typed != nullptr)
      typed->setText(typed->text().contains(QLatin1Char('/')) ? there
                                                              : QFileInfo(there).fileName());
    QFileDialog::accept();
  }
};

// The folder of the last dialog may be away since; the working directory is that of the classes.
void SetFolder(QFileDialog& dialog, const QString& folder) {
  if (folder.isEmpty()) return;
  dialog.setDirectory(QFileInfo(folder).isDir() ? folder : QDir::currentPath());
}

// A file whose folder is away is offered by its name, for the folder that the dialog stands in.
void SetName(QFileDialog& dialog, const QString& path) {
  if (path.isEmpty()) return;
  const QFileInfo file(path);
  dialog.selectFile(file.dir().exists() ? path : file.fileName());
}

void SetUp(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.file_must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (!request.overwrite_prompt) dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!request.title.empty()) dialog.setWindowTitle(FromText(request.title));
  SetFolder(dialog, FromPath(request.folder));
  const QStringList filters = FiltersOf(FromText(request.filter));
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(FromText(request.default_extension));
  SetName(dialog, FromPath(request.filename));
}

// Below the dialog's own fields, whose names stand in the first column.
QComboBox* AddEncodings(QFileDialog& dialog, TextEncoding offered) {
  auto* encodings = new QComboBox(&dialog);
  encodings->setObjectName(QStringLiteral("encoding"));
  encodings->addItems({QStringLiteral("UTF-8"), QStringLiteral("Windows-1252")});
  encodings->setCurrentIndex(offered == TextEncoding::kUtf8 ? 0 : 1);
  auto* label = new QLabel(QStringLiteral("&Encoding:"), &dialog);
  label->setBuddy(encodings);
  encodings->setAccessibleName(QStringLiteral("Encoding"));
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(encodings, row, 1);
  }
  return encodings;
}

}  // namespace

QStringList FiltersOf(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString words = parts[i].left(parts[i].indexOf(QLatin1Char('('))).trimmed();
    QStringList patterns;
    for (const QString& each : parts[i + 1].split(QLatin1Char(';')))
      patterns << each.trimmed().toLower() << each.trimmed().toUpper();
    patterns.removeDuplicates();
    filters << QStringLiteral("%1 (%2)").arg(words, patterns.join(QLatin1Char(' ')));
  }
  return filters;
}

std::optional<std::string> ShowFileDialog(const FileDialogRequest& request, QWidget* parent) {
  CaseBlindDialog dialog(parent);
  SetUp(dialog, request);
  const FileLists lists(dialog);
  const QComboBox* encodings = request.encoding ? AddEncodings(dialog, *request.encoding) : nullptr;
  QObject::connect(new QShortcut(Qt::Key_F1, &dialog), &QShortcut::activated, &dialog,
                   [&request] { Platform().ShowHelp(request.help_context); });
  const bool accepted = dialog.exec() == QDialog::Accepted;
  // A window manager may lose the focus when the question of a file to replace and the dialog below
  // it go at the same moment.
  if (parent != nullptr) parent->activateWindow();
  if (!accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  if (encodings)
    *request.encoding =
        encodings->currentIndex() == 0 ? TextEncoding::kUtf8 : TextEncoding::kWindows1252;
  return ToPath(dialog.selectedFiles().front());
}

}  // namespace tallyroll
