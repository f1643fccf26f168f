// SPDX-License-Identifier: GPL-3.0-or-later
// A bare Qt Widgets window that ends after its first paint: what any such program costs to start.
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>

class Bare : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).drawText(20, 40, "bare");
    QMetaObject::invokeMethod(qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
  }
};

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  Bare window;
  window.resize(1200, 800);
  window.show();
  return QApplication::exec();
}
