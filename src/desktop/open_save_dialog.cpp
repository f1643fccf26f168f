// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/open_save_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QShortcut>

#include "desktop/text_conversion.h"

namespace tallyroll {
namespace {

void SetUp(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.file_must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (!request.overwrite_prompt) dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!request.title.empty()) dialog.setWindowTitle(FromText(request.title));
  if (!request.folder.empty()) dialog.setDirectory(FromPath(request.folder));
  const QStringList filters = FiltersOf(FromText(request.filter));
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(FromText(request.default_extension));
  if (!request.filename.empty()) dialog.selectFile(FromPath(request.filename));
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
  QFileDialog dialog(parent);
  SetUp(dialog, request);
  const QComboBox* encodings = request.encoding ? AddEncodings(dialog, *request.encoding) : nullptr;
  QObject::connect(new QShortcut(Qt::Key_F1, &dialog), &QShortcut::activated, &dialog,
                   [&request] { Platform().ShowHelp(request.help_context); });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  if (encodings)
    *request.encoding =
        encodings->currentIndex() == 0 ? TextEncoding::kUtf8 : TextEncoding::kWindows1252;
  return ToPath(dialog.selectedFiles().front());
}

}  // namespace tallyroll
