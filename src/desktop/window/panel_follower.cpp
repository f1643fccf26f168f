// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/panel_follower.h"

#include <QApplication>

#include "analysis/open_classes.h"
#include "base/number_text.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/panel/side_panel.h"
#include "desktop/panel/status_line.h"
#include "shell/form1.h"

namespace tallyroll {
namespace {

constexpr int kRestOfKeys = 40;  // milliseconds; a key that is held down comes more often

}  // namespace

PanelFollower::PanelFollower(Form1& form, SidePanel& panel, StatusLine& line, QObject* parent)
    : QObject(parent), form_(&form), panel_(panel), line_(line) {
  rest_.setSingleShot(true);
  rest_.setInterval(kRestOfKeys);
  rest_.callOnTimeout(this, [this] { Refresh(); });
  connect(&panel_, &SidePanel::RankSwitched, this, [this] {
    seen_ = {};
    Follow();
  });
}

void PanelFollower::LetGo() {
  form_ = nullptr;
  rest_.stop();
}

PanelFollower::State PanelFollower::Now() const {
  return {form_->Refills, form_->Grid1.Row, form_->Grid1.Col, panel_.isVisible(), form_->Caption};
}

// While a Portal is open the class is half changed; what it leaves behind is shown afterwards.
void PanelFollower::Follow() {
  if (form_ == nullptr || form_->Tag.empty() || QApplication::activeModalWidget() != nullptr)
    return;
  const State now = Now();
  if (now == seen_ || (rest_.isActive() && now == awaited_)) return;
  awaited_ = now;
  rest_.start();
}

void PanelFollower::Refresh() {
  if (form_ == nullptr || form_->Tag.empty() || QApplication::activeModalWidget() != nullptr)
    return;
  const State now = Now();
  const InClass work(static_cast<int>(LeadingNumber(form_->Tag)));
  if (now.refills != seen_.refills) class_ = LookAtClass();
  if (now.refills != seen_.refills || now.caption != seen_.caption)
    line_.ShowClass(class_, FromText(form_->Caption));
  seen_ = now;
  if (!now.panel) return;
  const int student = now.row - form_->Grid1.FixedRows + 1;
  const int grade = now.col - form_->Grid1.FixedCols + 1;
  panel_.Show(LookAtStudent(student), LookAtGrade(grade, student), RankOf(class_, student));
}

}  // namespace tallyroll
