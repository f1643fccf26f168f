// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_range.h"

#include <QMimeData>
#include <algorithm>

#include "desktop/basics/text_conversion.h"

namespace tallyroll {

CellRange RangeBetween(int row, int col, int other_row, int other_col) {
  return {std::min(row, other_row), std::min(col, other_col), std::max(row, other_row),
          std::max(col, other_col)};
}

QMimeData* TableOf(const Grid& grid, const CellRange& range) {
  QString text, html = QStringLiteral("<table>");
  bool first_row = true;
  for (int row = range.top; row <= range.bottom; ++row) {
    if (grid.RowHeight(row) == 0) continue;
    if (!first_row) text += QLatin1Char('\n');
    first_row = false;
    html += QStringLiteral("<tr>");
    bool first = true;
    for (int col = range.left; col <= range.right; ++col) {
      if (grid.ColWidth(col) == 0) continue;
      const QString cell = FromText(grid.TextMatrix(row, col)).trimmed();
      if (!first) text += QLatin1Char('\t');
      first = false;
      text += cell;
      html += QStringLiteral("<td>%1</td>").arg(cell.toHtmlEscaped());
    }
    html += QStringLiteral("</tr>");
  }
  html += QStringLiteral("</table>");
  auto* data = new QMimeData;
  data->setText(text);
  data->setHtml(html);
  return data;
}

}  // namespace tallyroll
