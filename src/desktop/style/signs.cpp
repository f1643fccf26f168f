// SPDX-License-Identifier: GPL-3.0-or-later
// The signs that the toolkit asks for by what they stand for. What is not drawn here would be
// looked for in the desktop's set of icons, at a cost to each start.
#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/glyphs.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

// A disc in a soft colour with the letter of what the box is about.
void DrawSignOfBox(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon) {
  const Tokens t = TokensOf(QGuiApplication::palette());
  const bool warns = icon == QStyle::SP_MessageBoxWarning;
  const bool fails = icon == QStyle::SP_MessageBoxCritical;
  const QColor ground = fails ? t.danger_soft : warns ? t.warning_soft : t.selection;
  const QColor letter = fails ? t.danger : warns ? t.warning : t.focus;
  const QString sign = icon == QStyle::SP_MessageBoxQuestion      ? QStringLiteral("?")
                       : icon == QStyle::SP_MessageBoxInformation ? QStringLiteral("i")
                                                                  : QStringLiteral("!");
  DrawBox(painter, box, box.width() / 2, ground);
  QFont font = QApplication::font();
  font.setPixelSize(static_cast<int>(box.height() * 0.5));
  font.setWeight(QFont::DemiBold);
  const SmoothEdges smooth(painter);
  painter.setFont(font);
  painter.setPen(letter);
  painter.drawText(box, Qt::AlignCenter, sign);
}

bool IsFolder(QStyle::StandardPixmap icon) {
  return icon == QStyle::SP_DirIcon || icon == QStyle::SP_DirOpenIcon ||
         icon == QStyle::SP_DirClosedIcon || icon == QStyle::SP_DirLinkIcon;
}

// A folder in the ink that leads on, a file in a quieter one than its name.
void DrawLines(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon, bool enabled) {
  const Tokens t = TokensOf(QGuiApplication::palette());
  const bool file = icon == QStyle::SP_FileIcon || icon == QStyle::SP_FileLinkIcon;
  if (!enabled)
    DrawGlyph(painter, box, icon, t.off);
  else if (IsFolder(icon))
    DrawGlyph(painter, box, icon, t.focus, t.accent_soft);
  else
    DrawGlyph(painter, box, icon, file ? t.muted : t.text);
}

// Drawn when it is needed and as large, in the colours of that moment.
class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(QStyle::StandardPixmap icon) : icon_(icon) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    switch (icon_) {
      case QStyle::SP_ArrowLeft:
      case QStyle::SP_ArrowRight:
        DrawArrow(*painter, rect, icon_ == QStyle::SP_ArrowLeft ? Qt::LeftArrow : Qt::RightArrow,
                  TokensOf(QGuiApplication::palette()).text, rect.width() * 0.26);
        break;
      case QStyle::SP_MessageBoxQuestion:
      case QStyle::SP_MessageBoxInformation:
      case QStyle::SP_MessageBoxWarning:
      case QStyle::SP_MessageBoxCritical:
        DrawSignOfBox(*painter, rect, icon_);
        break;
      default:
        DrawLines(*painter, rect, icon_, mode != QIcon::Disabled);
    }
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new SignEngine(*this); }

 private:
  QStyle::StandardPixmap icon_;
};

}  // namespace

QIcon SignFor(QStyle::StandardPixmap icon) {
  switch (icon) {
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowRight:
    case QStyle::SP_MessageBoxQuestion:
    case QStyle::SP_MessageBoxInformation:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
      return QIcon(new SignEngine(icon));
    default:
      return HasGlyph(icon) ? QIcon(new SignEngine(icon)) : QIcon();
  }
}

}  // namespace tallyroll
