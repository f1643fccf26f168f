// SPDX-License-Identifier: GPL-3.0-or-later
// memory_of [CLASS.TYR]: the whole program, which prints how many kilobytes it holds in memory once
// its window stands, with the class open or with none.
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTimer>
#include <cstdio>

#include "desktop/program.h"

namespace {

void PrintResident() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) std::puts(line.simplified().split(' ').at(1).constData());
  QCoreApplication::exit();
}

// The greeting of a start without a class.
void LeaveGreeting() {
  if (auto* greeting = qobject_cast<QDialog*>(QApplication::activeModalWidget())) greeting->reject();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QTimer::singleShot(1000, &application, LeaveGreeting);
  QTimer::singleShot(2500, &application, PrintResident);
  return tallyroll::RunProgram(application, false, argc > 1 ? argv[1] : "");
}
