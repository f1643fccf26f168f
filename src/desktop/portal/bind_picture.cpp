// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures: ornaments, and sheets of paper that scroll.
#include <QScrollArea>

#include "desktop/portal/control_binding.h"
#include "desktop/portal/sheet_view.h"

namespace tallyroll {
namespace {

using OrnamentBinding = Binding<PictureBox, QWidget>;

class SheetBinding : public Binding<PictureBox, QScrollArea> {
 public:
  SheetBinding(PictureBox& control, ControlRow& row, QScrollArea& area, BindingOwner& owner)
      : Binding(control, row, area, owner), view_(new SheetView) {
    // What the form puts there stays its own.
    if (QWidget* old = area.takeWidget()) {
      old->setParent(&area);
      old->hide();
    }
    area.setBackgroundRole(QPalette::Dark);
    area.setAlignment(Qt::AlignCenter);
    area.setWidgetResizable(false);
    area.setWidget(view_);
  }

 protected:
  void ShowValue() override { view_->ShowSheet(control_); }

 private:
  SheetView* view_;  // the area's
};

}  // namespace

// A form shows a sheet in a scroll area.
BoundControl BindControl(PictureBox& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  if (IsInput(target)) return nullptr;
  if (auto sheet = BindAs<SheetBinding, QScrollArea>(control, row, target, owner)) return sheet;
  return BindAs<OrnamentBinding, QWidget>(control, row, target, owner);
}

}  // namespace tallyroll
