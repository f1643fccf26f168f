// SPDX-License-Identifier: GPL-3.0-or-later
// Contrast as the eye meets it: of the pixels of every window's picture, whatever drew them.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTabBar>
#include <algorithm>
#include <vector>

#include "desktop/grid/grid_widget.h"
#include "tests/desktop/every_window.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

// Thin strokes are mixed with their ground: the best pixel of a word stands for it.
constexpr double kReadable = 4.5, kSeen = 3;
constexpr int kSharp = 2;

class PixelContrast : public EveryWindow {
 protected:
  // What stands in that part of the picture against its most frequent colour.
  static double BestIn(const QImage& picture, const QRect& part) {
    const QRect pixels(part.topLeft() * kSharp, part.size() * kSharp);
    std::vector<QRgb> colors;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
      for (int x = pixels.left(); x <= pixels.right(); ++x)
        if (picture.rect().contains(x, y)) colors.push_back(picture.pixel(x, y));
    std::sort(colors.begin(), colors.end());
    return BestBeside(MostFrequent(colors), colors);
  }

  static QRgb MostFrequent(const std::vector<QRgb>& sorted) {
    QRgb most = 0;
    std::ptrdiff_t times = 0;
    for (auto at = sorted.begin(); at != sorted.end();) {
      const auto end = std::upper_bound(at, sorted.end(), *at);
      if (end - at > times) {
        times = end - at;
        most = *at;
      }
      at = end;
    }
    return most;
  }

  static double BestBeside(QRgb ground, const std::vector<QRgb>& sorted) {
    double best = 1;
    for (auto at = sorted.begin(); at != sorted.end(); at = std::upper_bound(at, sorted.end(), *at))
      best = std::max(best, Contrast(QColor(*at), QColor(ground)));
    return best;
  }

  static QImage PictureOf(QWidget& window) {
    QImage picture(window.size() * kSharp, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kSharp);
    window.render(&picture);
    return picture;
  }

  // Whether it is seen where it stands, and can be used.
  static bool Counts(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && !widget.visibleRegion().isEmpty() &&
           widget.visibleRegion().boundingRect() == widget.rect();
  }

  static QRect PlaceIn(const QWidget& window, const QWidget& widget, const QRect& part) {
    return QRect(widget.mapTo(&window, part.topLeft()), part.size());
  }

  void LookAt(const std::string& name, QWidget& window) {
    const QImage picture = PictureOf(window);
    const auto expect = [&](const QWidget& widget, const QRect& part, double least,
                            const QString& what) {
      ++looked;
      EXPECT_GE(BestIn(picture, PlaceIn(window, widget, part)), least)
          << look_name << ", " << name << ": " << widget.objectName().toStdString() << " \""
          << what.toStdString() << '"';
    };
    for (const auto* label : window.findChildren<QLabel*>())
      if (Counts(*label) && !label->text().trimmed().isEmpty())
        expect(*label, label->rect(), kReadable, label->text());
    for (const auto* button : window.findChildren<QAbstractButton*>())
      if (Counts(*button) && !button->text().isEmpty())
        expect(*button, button->rect().adjusted(4, 4, -4, -4), kReadable, button->text());
    for (const auto* edit : window.findChildren<QLineEdit*>())
      if (Counts(*edit) && !edit->text().isEmpty())
        expect(*edit, edit->rect().adjusted(4, 4, -4, -4), kReadable, edit->text());
    for (const auto* combo : window.findChildren<QComboBox*>())
      if (Counts(*combo) && !combo->currentText().isEmpty())
        expect(*combo, combo->rect().adjusted(4, 4, -24, -4), kReadable, combo->currentText());
    LookAtEdges(window, expect);
    LookAtCells(window, expect);
    for (const auto* tabs : window.findChildren<QTabBar*>())
      for (int i = 0; i < tabs->count() && Counts(*tabs); ++i)
        expect(*tabs, tabs->tabRect(i).adjusted(6, 6, -6, -6), kReadable, tabs->tabText(i));
  }

  // What a field begins and ends with. That of a choice or a date stands within an edge.
  template <typename Expect>
  static void LookAtEdges(const QWidget& window, const Expect& expect) {
    const auto look = [&](const QWidget& field) {
      if (Counts(field))
        expect(field, QRect(field.width() / 2, 0, 4, field.height() / 3), kSeen,
               QStringLiteral("edge"));
    };
    for (const auto* edit : window.findChildren<QLineEdit*>()) {
      const QWidget* parent = edit->parentWidget();
      if (!edit->isReadOnly() && !qobject_cast<const QComboBox*>(parent) &&
          !qobject_cast<const QAbstractSpinBox*>(parent))
        look(*edit);
    }
    for (const auto* date : window.findChildren<QAbstractSpinBox*>()) look(*date);
  }

  template <typename Expect>
  static void LookAtCells(const QWidget& window, const Expect& expect) {
    constexpr int kRowsLookedAt = 12;
    for (const auto* grid : window.findChildren<GridWidget*>()) {
      if (!grid->isVisible() || !grid->isEnabled() || !grid->grid()) continue;
      const QWidget& sheet = *grid->viewport();
      if (!Counts(sheet)) continue;
      for (int row = 0; row < std::min(grid->grid()->Rows(), kRowsLookedAt); ++row)
        for (int col = 0; col < grid->grid()->Cols(); ++col) {
          const QRect cell = grid->CellRect(row, col).adjusted(3, 3, -3, -3);
          const auto& text = grid->grid()->TextMatrix(row, col);
          const QString words = QString::fromLatin1(text.data(), static_cast<int>(text.size()));
          if (!cell.isEmpty() && sheet.rect().contains(cell) && !words.trimmed().isEmpty())
            expect(sheet, cell, kReadable, words);
        }
    }
  }

  std::string look_name;
  int looked = 0;
};

TEST_F(PixelContrast, OfEveryWindowInEveryLookIsEnough) {
  for (const Look& look : kLooks) {
    if (look.density != Density::kNormal) continue;
    const WornLook worn(look);
    look_name = look.name;
    ForEach([this](const std::string& name, PortalDialog& window) { LookAt(name, window); });
  }
  EXPECT_GT(looked, 1000);
}

TEST_F(PixelContrast, IsMissedByGreyOnGrey) {
  QLabel label(QStringLiteral("words"));
  QPalette pale;
  pale.setColor(QPalette::WindowText, QColor(0xB0B0B0));
  pale.setColor(QPalette::Window, QColor(0xE0E0E0));
  label.setPalette(pale);
  label.setAutoFillBackground(true);
  label.show();
  EXPECT_LT(BestIn(PictureOf(label), label.rect()), kReadable);
  label.setPalette(QPalette(Qt::black, Qt::white));
  EXPECT_GE(BestIn(PictureOf(label), label.rect()), kReadable);
}

}  // namespace
}  // namespace tallyroll
