// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/file_lists.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <utility>

namespace tallyroll {
namespace {

// In characters and lines of the dialog's font, so that larger type has as much room.
constexpr int kWidth = 104, kHeight = 30, kPlaces = 22;

QTreeView* FilesOf(const QFileDialog& dialog) {
  return dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
}

// The toolkit leaves its lists without a name.
void NameLists(const QFileDialog& dialog) {
  constexpr std::pair<const char*, const char*> kNames[] = {{"lookInCombo", "Look in"},
                                                            {"sidebar", "Places"},
                                                            {"listView", "Files"},
                                                            {"treeView", "Files"},
                                                            {"fileTypeCombo", "Files of type"}};
  for (const auto& [list, name] : kNames)
    if (auto* found = dialog.findChild<QWidget*>(QString::fromLatin1(list))) {
      found->setAccessibleName(QString::fromLatin1(name));
      // A choice is called by what is chosen.
      if (qobject_cast<QComboBox*>(found)) found->setAccessibleDescription(found->accessibleName());
    }
}

// Beside what the teacher has put there.
void AddPlaces(QFileDialog& dialog) {
  QList<QUrl> places = dialog.sidebarUrls();
  for (const auto each : {QStandardPaths::DocumentsLocation, QStandardPaths::DesktopLocation}) {
    const QString path = QStandardPaths::writableLocation(each);
    const QUrl place = QUrl::fromLocalFile(path);
    if (QFileInfo(path).isDir() && !places.contains(place)) places << place;
  }
  dialog.setSidebarUrls(places);
}

void FitColumns(QHeaderView& columns) {
  columns.setStretchLastSection(false);
  columns.setSectionResizeMode(QHeaderView::ResizeToContents);
  columns.setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

FileLists::FileLists(QFileDialog& dialog) : dialog_(dialog) {
  NameLists(dialog);
  AddPlaces(dialog);
  const QFontMetrics font = dialog.fontMetrics();
  const int letter = font.averageCharWidth();
  dialog.resize(dialog.sizeHint().expandedTo(QSize(kWidth * letter, kHeight * font.height())));
  if (auto* halves = dialog.findChild<QSplitter*>(QStringLiteral("splitter")))
    halves->setSizes({kPlaces * letter, (kWidth - kPlaces) * letter});
  if (const QTreeView* files = FilesOf(dialog)) {
    columns_ = files->header()->saveState();
    FitColumns(*files->header());
  }
}

FileLists::~FileLists() {
  if (const QTreeView* files = FilesOf(dialog_)) files->header()->restoreState(columns_);
}

}  // namespace tallyroll
