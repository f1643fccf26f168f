// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal.h"

#include <utility>

#include "platform/chart.h"
#include "platform/rich_text_box.h"
#include "platform/surroundings.h"

namespace tallyroll {

PortalMaker MakePortal = nullptr;

ControlRow* ControlTable::Find(std::string_view name) const {
  for (const auto& row : rows_)
    if (row->name == name) return row.get();
  return nullptr;
}

ControlRow* ControlTable::Find(const Control& control) const {
  for (const auto& row : rows_) {
    const Control* address = std::visit([](auto* c) -> const Control* { return c; }, row->control);
    if (address == &control) return row.get();
  }
  return nullptr;
}

void Portal::SetFocusAndSelect(TextBox& box) {
  box.SelStart = 0;
  box.SelLength = static_cast<int>(box.Text.size());
  SetFocus(box);
}

const Control* Portal::TakeFocusRequest() {
  return std::exchange(focus_, nullptr);
}

void ShowPortal(std::string_view name) {
  for (std::string next(name); !next.empty();) {
    const std::unique_ptr<Portal> portal = MakePortal ? MakePortal(next) : nullptr;
    if (!portal) return;
    portal->Load();
    if (!portal->Unloaded()) Platform().ShowModal(*portal);
    next = portal->Next();
  }
}

void ShowPortalBeside(Portal& portal) {
  portal.unloaded_ = false;
  Platform().ShowBeside(portal);
}

void HidePortalBeside(Portal& portal) {
  Platform().HideBeside(portal);
}

}  // namespace tallyroll
