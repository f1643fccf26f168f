// SPDX-License-Identifier: GPL-3.0-or-later
// How cells are set off, looked at in what is painted and heard as a screen reader does.
#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QHelpEvent>
#include <QToolTip>

#include "tests/desktop/grid/shown_grid.h"

namespace tallyroll {
namespace {

class GridLook : public ShownGrid {
 protected:
  GridLook() {
    grid.SetMergeRow(0);
    grid.SetTextMatrix(0, 0, "     NAME");
    grid.SetTextMatrix(0, 1, "       ID");
    for (int row = 2; row < 60; ++row) {
      grid.SetTextMatrix(row, 0, " " + std::to_string(row - 1) + " Student, Ann");
      grid.SetTextMatrix(row, 1, "81" + std::to_string(row));
      for (int col = 2; col < 20; ++col) grid.SetColAlignment(col, ColumnAlign::kRight);
    }
    grid.Notes.Of = [this](int row, int col) { return row >= 2 && col == 4 ? note : CellNote(); };
  }
  QImage With(CellMark mark, const char* text = "CUT") {
    note = {mark, "words"};
    for (int row = 2; row < 10; ++row) grid.SetTextMatrix(row, 4, text);
    grid.NotesChanged();
    widget.UpdateFromGrid();
    return Picture();
  }
  QRect Cell(int row, int col) const { return widget.CellRect(row, col).adjusted(2, 2, -3, -3); }
  // Within this cell from the left: the first pixel that is not its ground.
  int InkFrom(const QImage& image, const QRect& cell) {
    const QRgb ground = image.pixel(cell.right(), cell.top());
    for (int x = cell.left(); x <= cell.right(); ++x)
      for (int y = cell.top(); y <= cell.bottom(); ++y)
        if (image.pixel(x, y) != ground) return x;
    return -1;
  }

  CellNote note;
};

TEST_F(GridLook, BeyondTheLastCellIsTheWindow) {
  grid.SetSize(5, 4);
  widget.UpdateFromGrid();
  const QImage picture = Picture();
  const QColor window = Colors().window;
  EXPECT_EQ(picture.pixelColor(picture.width() - 3, 5), window);
  EXPECT_EQ(picture.pixelColor(5, picture.height() - 3), window);
  EXPECT_EQ(picture.pixelColor(widget.CellRect(3, 3).right() + 3, widget.CellRect(3, 3).top() + 4),
            window);
}

// A line between rows is as thick as every other, also where a pixel is no whole number of dots,
// and no ground is seen below the last.
TEST_F(GridLook, ItsRowsEndInOneLineAtEveryScale) {
  grid.SetSize(12, 20);
  widget.UpdateFromGrid();
  const QRect last = widget.CellRect(11, 6);
  const Tokens t = Colors();
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    const int dots = qRound(scale);
    QImage picture((QSizeF(widget.viewport()->size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    widget.viewport()->render(&picture);
    const int x = qRound((last.left() + 4) * scale), end = qRound((last.bottom() + 1) * scale);
    QList<int> runs;
    for (int y = qRound(widget.CellRect(2, 6).top() * scale); y < end; ++y) {
      const QColor color = picture.pixelColor(x, y);
      const bool line = color == t.grid_line || color == t.strong_line;
      if (!line) runs << 0;
      if (line && !runs.isEmpty()) ++runs.last();
    }
    ASSERT_FALSE(runs.isEmpty());
    EXPECT_EQ(runs.last(), dots) << scale << ": the last line ends with the sheet";
    runs.removeAll(0);
    EXPECT_EQ(runs, QList<int>(10, dots)) << scale;
  }
}

TEST_F(GridLook, ItsLinesAreOfOneThicknessAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    QImage picture((QSizeF(widget.viewport()->size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    widget.viewport()->render(&picture);
    // Above the words of a row, past the columns that stay.
    const int y = qRound((widget.CellRect(4, 2).top() + 2) * scale);
    int dots = 0, lines = 0;
    for (int x = qRound(widget.CellRect(4, 2).left() * scale); x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == Colors().grid_line) {
        ++dots;
      } else if (dots > 0) {
        EXPECT_EQ(std::exchange(dots, 0), qRound(scale)) << scale;
        ++lines;
      }
    }
    EXPECT_GE(lines, 4) << scale;
  }
}

TEST_F(GridLook, AColumnThatEndsAtTheFrameHasNoLineBesideIt) {
  const auto ends_in_a_line = [this] {
    const QRect last = widget.CellRect(3, 5);
    const int beside = widget.width() - widget.viewport()->width();
    widget.resize(last.right() + 1 + beside, widget.height());
    Settle();
    const QImage picture = Picture();
    EXPECT_EQ(picture.width(), last.right() + 1);
    const int y = last.center().y();
    return picture.pixel(last.right(), y) != picture.pixel(last.right() - 4, y);
  };
  EXPECT_TRUE(ends_in_a_line());  // beside a bar
  grid.SetSize(10, 6);
  widget.UpdateFromGrid();
  Settle();
  EXPECT_FALSE(ends_in_a_line());
}

TEST_F(GridLook, ARowThatIsPaintedAgainComesOutTheSameAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    QImage whole(widget.viewport()->size() * scale, QImage::Format_RGB32);
    whole.setDevicePixelRatio(scale);
    widget.viewport()->render(&whole);
    for (int row = 2; row < 12; ++row) {
      QImage again = whole;
      const QRect place(0, widget.CellRect(row, 2).top(), widget.viewport()->width(),
                        widget.CellRect(row, 2).height());
      widget.viewport()->render(&again, place.topLeft(), place, {});
      EXPECT_EQ(again, whole) << scale << ", row " << row;
    }
  }
}

// A heading ends where a column does, but neither at the frame nor where it goes on out of view.
TEST_F(GridLook, AHeadingEndsInALineOnlyWhereOneGoesOnBelow) {
  for (const int columns : {6, 20}) {
    grid.SetSize(10, columns);
    for (int col = 2; col < columns; ++col)
      grid.SetTextMatrix(0, col, "HEADING " + std::to_string(col / 3));
    widget.UpdateFromGrid();
    const int beside = widget.width() - widget.viewport()->width();
    if (columns == 6) widget.resize(widget.CellRect(3, 5).right() + 1 + beside, widget.height());
    if (columns == 20) widget.resize(widget.CellRect(3, 7).left() + 20 + beside, widget.height());
    Settle();
    const QImage picture = Picture();
    const auto is_line = [&](int x, int y) {
      const QColor color = picture.pixelColor(x, y);
      return color == Colors().grid_line || color == Colors().strong_line;
    };
    int ends = 0;
    for (int x = widget.CellRect(3, 2).left(); x < picture.width(); ++x) {
      if (!is_line(x, 3)) continue;
      EXPECT_TRUE(is_line(x, widget.CellRect(3, 2).top() + 3)) << columns << ": " << x;
      ++ends;
    }
    EXPECT_GT(ends, 0);
  }
}

TEST_F(GridLook, EveryFifthRowEndsInAStrongerLine) {
  const QImage picture = Picture();
  const auto below = [&](int row) {
    const QRect cell = widget.CellRect(row, 6);
    return picture.pixelColor(cell.center().x(), cell.bottom());
  };
  EXPECT_EQ(below(6), Colors().strong_line);   // the fifth student
  EXPECT_EQ(below(11), Colors().strong_line);  // the tenth
  EXPECT_EQ(below(7), Colors().grid_line);
}

TEST_F(GridLook, AChipStandsOnItsGround) {
  const Tokens t = Colors();
  EXPECT_TRUE(Has(With(CellMark::kAlarm), Cell(5, 4), t.danger_soft));
  EXPECT_TRUE(Has(With(CellMark::kWarning, "ABS"), Cell(5, 4), t.warning_soft));
  EXPECT_TRUE(Has(With(CellMark::kSoft, "EXC"), Cell(5, 4), t.header));
  EXPECT_FALSE(Has(With(CellMark::kMuted, "NEW"), Cell(5, 4), t.header));
  EXPECT_FALSE(Has(With(CellMark::kNone), Cell(5, 4), t.danger_soft));
}

TEST_F(GridLook, AMarkAboveItsMaximumIsUnderlined) {
  const auto lines = [&](const QImage& picture) {
    const QRect cell = Cell(5, 4);
    int most = 0;
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
      int run = 0;
      for (int x = cell.left(); x <= cell.right(); ++x)
        run += picture.pixelColor(x, y) == Colors().text ? 1 : 0;
      most = std::max(most, run);
    }
    return most;
  };
  const int plain = lines(With(CellMark::kNone, "111"));
  const int above = lines(With(CellMark::kAbove, "111"));
  EXPECT_GT(above, plain);
  EXPECT_GT(above, 10);
}

TEST_F(GridLook, NamesBeginAtOneEdgeWhateverTheirNumber) {
  const QImage picture = Picture();
  const auto name_from = [&](int row) {
    QRect cell = Cell(row, 0);
    cell.setLeft(cell.left() + GridFonts(widget.font()).Px(30));
    return InkFrom(picture, cell);
  };
  EXPECT_EQ(name_from(4), name_from(11));
  EXPECT_EQ(name_from(11), name_from(13));  // the tenth and the twelfth
}

TEST_F(GridLook, APinnedColumnIsNamedOnTheLineOfTheCodes) {
  const QImage picture = Picture();
  EXPECT_EQ(InkFrom(picture, Cell(0, 0)), -1);
  EXPECT_GT(InkFrom(picture, Cell(1, 0)), 0);
  EXPECT_EQ(grid.TextMatrix(0, 0), "     NAME");
}

TEST_F(GridLook, RowAndColumnOfTheCellInWorkAreTinted) {
  const QColor plain = Picture().pixelColor(widget.CellRect(7, 7).topLeft() + QPoint(3, 3));
  Click(7, 5);
  QTest::mouseMove(&widget, QPoint(690, 395));
  const QImage picture = Picture();
  const auto corner = [&](int row, int col) {
    return picture.pixelColor(widget.CellRect(row, col).topLeft() + QPoint(3, 3));
  };
  EXPECT_NE(corner(7, 7), plain);
  EXPECT_NE(corner(9, 5), plain);
  EXPECT_EQ(corner(9, 7), plain);
  EXPECT_EQ(corner(7, 0), Colors().selection);
  EXPECT_EQ(corner(1, 5), Colors().selection);
}

TEST_F(GridLook, WithoutTheFocusAllOfItIsGrey) {
  widget.clearFocus();
  const QImage picture = Picture();
  EXPECT_FALSE(Has(picture, widget.CellRect(2, 2), Colors().focus));
  EXPECT_TRUE(Has(picture, widget.CellRect(2, 2), Colors().border));
}

TEST_F(GridLook, FiguresAreEquallyWide) {
  for (const char* family : {"Inter", "DejaVu Sans", "Liberation Sans"}) {
    const CellFont font(QFont(QString::fromLatin1(family), 12));
    EXPECT_EQ(font.WidthOf("11.1"), font.WidthOf("88.8")) << family;
  }
}

TEST_F(GridLook, AScreenReaderHearsTheStateOfACell) {
  note = {CellMark::kFailing, "failing"};
  grid.Notes.Tip = [](int row, int col) {
    return row == 1 && col == 4 ? std::string("Fractions\nMaximum 20") : std::string();
  };
  auto* table = QAccessible::queryAccessibleInterface(&widget)->tableInterface();
  EXPECT_EQ(table->cellAt(5, 4)->text(QAccessible::Description), QStringLiteral("failing"));
  EXPECT_EQ(table->cellAt(5, 4)->text(QAccessible::Name), QStringLiteral("9"));
  EXPECT_EQ(table->cellAt(5, 5)->text(QAccessible::Description), QString());
  EXPECT_EQ(table->cellAt(1, 4)->text(QAccessible::Description),
            QStringLiteral("Fractions, Maximum 20"));
  grid.SetStyle(5, 5, CellStyle::kFailing);
  EXPECT_EQ(table->cellAt(5, 5)->text(QAccessible::Description), QStringLiteral("failing"));
}

TEST_F(GridLook, AHeadTellsItsGradeWhereThePointerRests) {
  grid.Notes.Tip = [](int row, int col) {
    return row == 1 && col == 4 ? std::string("Fractions & more\nMaximum 20") : std::string();
  };
  const QPoint place = widget.CellRect(1, 4).center();
  QHelpEvent help(QEvent::ToolTip, place, widget.viewport()->mapToGlobal(place));
  QApplication::sendEvent(widget.viewport(), &help);
  EXPECT_EQ(QToolTip::text(), QStringLiteral("Fractions &amp; more<br>Maximum 20"));
  QToolTip::hideText();
}

TEST_F(GridLook, AnEmptyGridSaysWhatWillStandThere) {
  widget.SetEmptyText(QStringLiteral("Nothing missing"));
  EXPECT_EQ(widget.NoticeShown(), QString());
  grid.SetSize(2, 20);
  widget.UpdateFromGrid();
  EXPECT_EQ(widget.NoticeShown(), QStringLiteral("Nothing missing"));
  const QRect below(0, widget.CellRect(1, 2).bottom() + 2, widget.viewport()->width(), 300);
  EXPECT_TRUE(Has(Picture(), below, Colors().muted));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description),
            QStringLiteral("Nothing missing"));
  grid.SetSize(3, 20);
  widget.UpdateFromGrid();
  EXPECT_FALSE(Has(Picture(), below.adjusted(0, 60, 0, 0), Colors().muted));
}

}  // namespace
}  // namespace tallyroll
