// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the colours of a palette, drawn when and as large as they are needed.
#include "desktop/basics/palette_icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

// The two colours in which every icon is drawn.
constexpr char kLine[] = "#000000";
constexpr char kAccent[] = "#1f6fbf";

QPixmap DrawIcon(QByteArray svg, const QColor& line, const QColor& accent, const QSize& size) {
  svg.replace(kLine, line.name().toLatin1());
  svg.replace(kAccent, accent.name().toLatin1());
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(svg).render(&painter);
  return pixmap;
}

// Sixteen icons in every size that any screen could ask for would be half of a program's start.
class PaletteIconEngine : public QIconEngine {
 public:
  PaletteIconEngine(QByteArray svg, const QPalette& palette)
      : svg_(std::move(svg)),
        line_(palette.color(QPalette::Active, QPalette::ButtonText)),
        off_(palette.color(QPalette::Disabled, QPalette::ButtonText)),
        accent_(TokensOf(palette).focus) {}

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const bool off = mode == QIcon::Disabled;
    QPixmap& drawn = drawn_[{size.width(), size.height(), off}];
    if (drawn.isNull()) drawn = DrawIcon(svg_, off ? off_ : line_, off ? off_ : accent_, size);
    return drawn;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const QSize size = (QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize();
    painter->drawPixmap(rect, pixmap(size, mode, state));
  }

  QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

 private:
  QByteArray svg_;
  QColor line_, off_, accent_;
  std::map<std::tuple<int, int, bool>, QPixmap> drawn_;
};

}  // namespace

QIcon PaletteIcon(const QString& name, const QPalette& palette) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PaletteIconEngine(file.readAll(), palette));
}

}  // namespace tallyroll
