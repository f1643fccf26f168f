// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/progress_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/basics/text_conversion.h"

namespace tallyroll {

ProgressWindow::ProgressWindow(const QString& what, QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar) {
  setObjectName(QStringLiteral("ProgressWindow"));
  setWindowTitle(QStringLiteral("Tallyroll"));
  setWindowModality(Qt::ApplicationModal);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(new QLabel(what));
  bar_->setMinimumWidth(320);
  bar_->setAccessibleName(what);
  rows->addWidget(bar_);
  auto* buttons = new QDialogButtonBox;
  QPushButton* cancel = buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
  cancel->setAutoDefault(false);  // nothing here is what one goes on with
  connect(cancel, &QPushButton::clicked, this, &ProgressWindow::reject);
  rows->addWidget(buttons);
}

ProgressWindow::~ProgressWindow() {
  hide();
  if (parentWidget()) parentWidget()->activateWindow();
}

bool ProgressWindow::Show(int done, int all) {
  bar_->setMaximum(all);
  bar_->setValue(done);
  if (!isVisible() && !cancelled_) show();
  QApplication::processEvents();
  return !cancelled_;
}

std::unique_ptr<ProgressScreen> MakeProgressWindow(std::string_view what) {
  return std::make_unique<ProgressWindow>(FromText(what), QApplication::activeWindow());
}

}  // namespace tallyroll
