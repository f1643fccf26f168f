// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of a file dialog: places at hand, columns as wide as what they hold, names for those
// who hear them.
#pragma once

#include <QByteArray>

class QFileDialog;

namespace tallyroll {

class FileLists {
 public:
  explicit FileLists(QFileDialog& dialog);
  // The toolkit keeps the columns for the dialogs of every program: it gets them back as they were.
  ~FileLists();
  FileLists(const FileLists&) = delete;
  FileLists& operator=(const FileLists&) = delete;

 private:
  QFileDialog& dialog_;
  QByteArray columns_;
};

}  // namespace tallyroll
