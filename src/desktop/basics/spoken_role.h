// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader takes a widget for that the toolkit knows only as an area.
#pragma once

#include <QAccessible>

namespace tallyroll {

// A widget that is derived from this as well is a chart, a picture, ...; its name and description
// stay those that it was given.
class SpokenAs {
 public:
  explicit SpokenAs(QAccessible::Role role);
  virtual ~SpokenAs() = default;
  SpokenAs(const SpokenAs&) = delete;
  SpokenAs& operator=(const SpokenAs&) = delete;

  QAccessible::Role SpokenRole() const { return role_; }

 private:
  QAccessible::Role role_;
};

}  // namespace tallyroll
