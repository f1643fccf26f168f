// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the colours of a palette, drawn when and as large as they are needed.
#include "desktop/basics/palette_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <optional>

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
  // Without a palette it takes the program's.
  PaletteIconEngine(QByteArray svg, std::optional<QPalette> palette)
      : svg_(std::move(svg)), palette_(std::move(palette)) {}

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = palette_ ? *palette_ : QGuiApplication::palette();
    const bool off = mode == QIcon::Disabled;
    const auto group = off ? QPalette::Disabled : QPalette::Active;
    const QColor line = palette.color(group, QPalette::ButtonText);
    const QColor accent = off ? line : TokensOf(palette).focus;
    QPixmap& drawn = drawn_[{size.width(), size.height(), line.rgb(), accent.rgb()}];
    if (drawn.isNull()) drawn = DrawIcon(svg_, line, accent, size);
    return drawn;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const QSize size = (QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize();
    painter->drawPixmap(rect, pixmap(size, mode, state));
  }

  QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

 private:
  QByteArray svg_;
  std::optional<QPalette> palette_;
  std::map<std::tuple<int, int, QRgb, QRgb>, QPixmap> drawn_;
};

QIcon IconOf(const QString& name, const std::optional<QPalette>& palette) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PaletteIconEngine(file.readAll(), palette));
}

}  // namespace

QIcon PaletteIcon(const QString& name, const QPalette& palette) {
  return IconOf(name, palette);
}

QIcon ThemeIcon(const QString& name) {
  return IconOf(name, std::nullopt);
}

}  // namespace tallyroll
