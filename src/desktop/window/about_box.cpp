// SPDX-License-Identifier: GPL-3.0-or-later
// What this program is.
#include "desktop/window/about_box.h"

#include <QGridLayout>
#include <QMessageBox>

#include "desktop/basics/palette_icon.h"

namespace tallyroll {

void ShowAboutBox(QWidget* parent) {
  QMessageBox box(parent);
  box.setWindowTitle(QObject::tr("About Tallyroll"));
  box.setTextFormat(Qt::RichText);
  box.setText(QObject::tr("<h2>Tallyroll %1</h2><p>A teacher's desktop grade book.</p>")
                  .arg(QStringLiteral(TALLYROLL_VERSION)));
  box.setInformativeText(QObject::tr(
      "<p>It keeps each class in one file on your own computer: the students, their grades and "
      "attendance, and the averages that come of them. Nothing leaves the computer unless you "
      "send it.</p>"
      "<p>Tallyroll is free software under the GNU General Public License, version 3 or any later "
      "version. It comes with no warranty.</p>"));
  box.setIconPixmap(PaletteIcon(QStringLiteral("tallyroll"), QPalette(Qt::white)).pixmap(64, 64));
  box.setStandardButtons(QMessageBox::Close);
  box.setDefaultButton(QMessageBox::Close);
  box.setEscapeButton(QMessageBox::Close);
  // The words beside their picture, as in the other boxes: the toolkit leaves twice the gap.
  if (auto* rows = qobject_cast<QGridLayout*>(box.layout()))
    rows->setHorizontalSpacing(box.fontMetrics().averageCharWidth());
  box.exec();
}

}  // namespace tallyroll
