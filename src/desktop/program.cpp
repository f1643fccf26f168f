// SPDX-License-Identifier: GPL-3.0-or-later
// The program from its start to its end.
#include "desktop/program.h"

#include <QApplication>
#include <QTimer>
#include <memory>

#include "desktop/basics/palette_icon.h"
#include "desktop/platform/post.h"
#include "desktop/platform/qt_socket.h"
#include "desktop/platform/qt_surroundings.h"
#include "desktop/portal/wheel_guard.h"
#include "desktop/style/appearance.h"
#include "desktop/window/frame_window.h"
#include "desktop/window/help_window.h"
#include "desktop/window/tour.h"
#include "shell/program.h"
#include "shell/shell_state.h"

namespace tallyroll {

int RunProgram(QApplication& application, bool dark, const std::string& file) {
  auto* appearance = new Appearance(application, dark);  // the application's
  WheelGuard::Install();
  application.setWindowIcon(PaletteIcon(QStringLiteral("tallyroll"), QPalette(Qt::white)));
  // The frame ends the program; the greeting, which may be the only window, must not.
  application.setQuitOnLastWindowClosed(false);

  ResetProgram();
  QtSurroundings surroundings;
  SetPlatform(&surroundings);
  MakeSocket = MakeQtSocket;
  PreparePost();
  FrameForm = std::make_unique<MDIForm1>();
  int result = 0;
  {
    FrameWindow window;
    Screen = &window;
    surroundings.help_hook = [&window](int context) { ShowHelpTopic(&window, context); };
    // Within the event loop, so that the greeting can be shown and the program be left from it.
    QTimer::singleShot(0, &window, [&window, file] {
      const bool first = IsFirstStart() && file.empty();
      FrameForm->Load(file);
      window.Sync();
      if (first) window.OfferTour();
    });
    QTimer::singleShot(0, appearance, &Appearance::FollowDesktop);
    result = QApplication::exec();
  }
  ResetProgram();
  SetPlatform(nullptr);
  return result;
}

}  // namespace tallyroll
