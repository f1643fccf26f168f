// SPDX-License-Identifier: GPL-3.0-or-later
// start_sample CLASS.TYR: the whole program, which ends once the class's grid was painted.
#include <QApplication>
#include <QTimer>

#include "desktop/grid/grid_widget.h"
#include "desktop/program.h"

namespace {

class EndAfterFirstPaint : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool painted = event->type() == QEvent::Paint &&
                         qobject_cast<tallyroll::GridWidget*>(watched->parent()) != nullptr;
    if (painted) QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    return false;
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  EndAfterFirstPaint end;
  application.installEventFilter(&end);
  return tallyroll::RunProgram(application, false, argc > 1 ? argv[1] : "");
}
