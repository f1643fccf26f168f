// SPDX-License-Identifier: GPL-3.0-or-later
// The program from its start to its end.
#include "desktop/program.h"

#include <QApplication>
#include <QTimer>
#include <memory>

#include "desktop/appearance.h"
#include "desktop/frame_window.h"
#include "desktop/help_window.h"
#include "desktop/palette_icon.h"
#include "desktop/qt_surroundings.h"
#include "desktop/wheel_guard.h"
#include "shell/program.h"
#include "shell/shell_state.h"

namespace tallyroll {

int RunProgram(QApplication& application, bool dark, const std::string& file) {
  SetAppearance(application, dark);
  WheelGuard::Install();
  application.setWindowIcon(PaletteIcon(QStringLiteral("tallyroll"), QPalette(Qt::white)));
  // The frame ends the program; the greeting, which may be the only window, must not.
  application.setQuitOnLastWindowClosed(false);

  ResetProgram();
  QtSurroundings surroundings;
  SetPlatform(&surroundings);
  FrameForm = std::make_unique<MDIForm1>();
  int result = 0;
  {
    FrameWindow window;
    Screen = &window;
    surroundings.help_hook = [&window](int context) { ShowHelpTopic(&window, context); };
    // Within the event loop, so that the greeting can be shown and the program be left from it.
    QTimer::singleShot(0, &window, [&window, file] {
      FrameForm->Load(file);
      window.Sync();
    });
    result = QApplication::exec();
  }
  ResetProgram();
  SetPlatform(nullptr);
  return result;
}

}  // namespace tallyroll
