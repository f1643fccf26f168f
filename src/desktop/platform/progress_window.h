// SPDX-License-Identifier: GPL-3.0-or-later
// How far a long work has come, with a way to cancel it.
#pragma once

#include <QDialog>
#include <memory>
#include <string_view>

#include "platform/long_work.h"

class QProgressBar;

namespace tallyroll {

// Nothing else takes keys or clicks while it stands.
class ProgressWindow : public QDialog, public ProgressScreen {
  Q_OBJECT

 public:
  ProgressWindow(const QString& what, QWidget* parent);
  ~ProgressWindow() override;

  bool Show(int done, int all) override;
  void reject() override { cancelled_ = true; }

 private:
  QProgressBar* bar_;
  bool cancelled_ = false;
};

std::unique_ptr<ProgressScreen> MakeProgressWindow(std::string_view what);

}  // namespace tallyroll
