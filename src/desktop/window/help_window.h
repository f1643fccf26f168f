// SPDX-License-Identifier: GPL-3.0-or-later
// The help: pages to read beside the work.
#pragma once

#include <QMainWindow>

class QLineEdit;
class QTextBrowser;

namespace tallyroll {

// Shows the page of that context beside whatever window is in work. Above a modal Portal the help
// becomes the Portal's own, since the Portal keeps all other windows from answering.
void ShowHelpTopic(QWidget* frame, int context);

class HelpWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent);

  void ShowTopic(int context);
  QTextBrowser* browser() const { return browser_; }
  // Selects the next place of the words in the find field, from the top again after the last.
  // False, and said in the status bar, when the page does not have them.
  bool FindNext();

 private:
  void AddTools();

  QTextBrowser* browser_;
  QLineEdit* find_;
};

}  // namespace tallyroll
