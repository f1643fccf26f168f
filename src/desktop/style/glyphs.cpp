// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/glyphs.h"

#include <QPainter>
#include <QPainterPath>
#include <initializer_list>

#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

using Line = std::initializer_list<QPointF>;

void Add(QPainterPath& path, Line line) {
  path.moveTo(*line.begin());
  for (const QPointF& point : line) path.lineTo(point);
}

void AddClosed(QPainterPath& path, Line line) {
  Add(path, line);
  path.closeSubpath();
}

QPainterPath TitleGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  switch (icon) {
    case QStyle::SP_TitleBarMinButton:
      Add(path, {{4, 11}, {12, 11}});
      break;
    case QStyle::SP_TitleBarMaxButton:
      path.addRoundedRect(QRectF(3.5, 3.5, 9, 9), 1, 1);
      break;
    case QStyle::SP_TitleBarNormalButton:
      path.addRoundedRect(QRectF(3.5, 6, 6.5, 6.5), 1, 1);
      Add(path, {{6.5, 6}, {6.5, 3.5}, {12.5, 3.5}, {12.5, 9.5}, {10, 9.5}});
      break;
    case QStyle::SP_TitleBarCloseButton:
      Add(path, {{4, 4}, {12, 12}});
      Add(path, {{12, 4}, {4, 12}});
      break;
    default:
      break;
  }
  return path;
}

// What a bar without room has more.
QPainterPath MoreGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  if (icon == QStyle::SP_ToolBarHorizontalExtensionButton)
    for (const double x : {4.0, 8.5}) Add(path, {{x, 4.5}, {x + 3.5, 8}, {x, 11.5}});
  if (icon == QStyle::SP_ToolBarVerticalExtensionButton)
    for (const double y : {4.0, 8.5}) Add(path, {{4.5, y}, {8, y + 3.5}, {11.5, y}});
  return path;
}

// The ways through folders, and how they are shown.
QPainterPath WayGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  switch (icon) {
    case QStyle::SP_ArrowBack:
      Add(path, {{13, 8}, {3, 8}});
      Add(path, {{7, 4}, {3, 8}, {7, 12}});
      break;
    case QStyle::SP_ArrowForward:
      Add(path, {{3, 8}, {13, 8}});
      Add(path, {{9, 4}, {13, 8}, {9, 12}});
      break;
    case QStyle::SP_FileDialogToParent:
      Add(path, {{8, 13}, {8, 3}});
      Add(path, {{4, 7}, {8, 3}, {12, 7}});
      break;
    case QStyle::SP_FileDialogListView:
      for (const double x : {2.5, 9.5})
        for (const double y : {2.5, 9.5}) path.addRoundedRect(QRectF(x, y, 4, 4), 0.8, 0.8);
      break;
    case QStyle::SP_FileDialogDetailedView:
      for (const double y : {3.5, 8.0, 12.5}) {
        Add(path, {{2.5, y}, {3, y}});
        Add(path, {{6, y}, {13.5, y}});
      }
      break;
    default:
      break;
  }
  return path;
}

// Where files lie. A new folder leaves the corner where its plus stands.
QPainterPath PlaceGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  switch (icon) {
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirLinkIcon:
      AddClosed(path, {{1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {14.5, 5}, {14.5, 13}});
      break;
    case QStyle::SP_FileDialogNewFolder:
      Add(path, {{8, 13}, {1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {14.5, 5}, {14.5, 8}});
      Add(path, {{12.5, 10}, {12.5, 15}});
      Add(path, {{10, 12.5}, {15, 12.5}});
      break;
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
      AddClosed(path, {{3.5, 14.5}, {3.5, 1.5}, {9, 1.5}, {12.5, 5}, {12.5, 14.5}});
      Add(path, {{9, 1.5}, {9, 5}, {12.5, 5}});
      break;
    case QStyle::SP_DirHomeIcon:
      AddClosed(path, {{3, 13.5}, {3, 7}, {8, 2.5}, {13, 7}, {13, 13.5}});
      Add(path, {{6.5, 13.5}, {6.5, 9.5}, {9.5, 9.5}, {9.5, 13.5}});
      break;
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DesktopIcon:
      path.addRoundedRect(QRectF(1.5, 2.5, 13, 8.5), 1, 1);
      Add(path, {{8, 11}, {8, 13.5}});
      Add(path, {{5, 13.5}, {11, 13.5}});
      break;
    case QStyle::SP_DriveHDIcon:
    case QStyle::SP_DriveNetIcon:
    case QStyle::SP_DriveCDIcon:
    case QStyle::SP_DriveDVDIcon:
    case QStyle::SP_DriveFDIcon:
      path.addRoundedRect(QRectF(1.5, 5, 13, 6.5), 1.5, 1.5);
      Add(path, {{11.5, 8.25}, {11.6, 8.25}});
      break;
    default:
      break;
  }
  return path;
}

QPainterPath GlyphOf(QStyle::StandardPixmap icon) {
  for (const auto find : {TitleGlyph, MoreGlyph, WayGlyph, PlaceGlyph}) {
    const QPainterPath path = find(icon);
    if (!path.isEmpty()) return path;
  }
  return {};
}

}  // namespace

bool HasGlyph(QStyle::StandardPixmap icon) {
  return !GlyphOf(icon).isEmpty();
}

void DrawGlyph(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon,
               const QColor& color, const QColor& ground) {
  const SmoothEdges smooth(painter);
  painter.translate(box.topLeft());
  painter.scale(box.width() / 16, box.height() / 16);
  painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(ground.isValid() ? QBrush(ground) : QBrush(Qt::NoBrush));
  painter.drawPath(GlyphOf(icon));
}

}  // namespace tallyroll
