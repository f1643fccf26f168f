// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/reading_order.h"

#include <QFormLayout>
#include <QGridLayout>
#include <map>
#include <utility>

namespace tallyroll {

std::vector<QLayoutItem*> ItemsInReadingOrder(QLayout& layout) {
  std::map<std::pair<int, int>, QLayoutItem*> items;
  for (int i = 0; i < layout.count(); ++i) {
    std::pair<int, int> place{i, 0};
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
      int rows = 0, columns = 0;
      grid->getItemPosition(i, &place.first, &place.second, &rows, &columns);
    } else if (auto* fields = qobject_cast<QFormLayout*>(&layout)) {
      QFormLayout::ItemRole role = QFormLayout::LabelRole;
      fields->getItemPosition(i, &place.first, &role);
      place.second = role;
    }
    items[place] = layout.itemAt(i);
  }
  std::vector<QLayoutItem*> order;
  for (const auto& [place, item] : items) order.push_back(item);
  return order;
}

}  // namespace tallyroll
