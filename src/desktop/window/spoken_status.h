// SPDX-License-Identifier: GPL-3.0-or-later
// The message of a status bar for those who hear the screen.
#pragma once

#include <QString>

namespace tallyroll {

class GridWidget;

// Nobody's focus ever comes to a status bar, so its message is told at the cell in work as long as
// it stands.
class SpokenStatus {
 public:
  // `told` counts the messages, of which `text` may be the last one or a hint that came after it.
  void Follow(GridWidget& grid, int told, const QString& text);

 private:
  int told_ = 0;
  QString standing_;
};

}  // namespace tallyroll
