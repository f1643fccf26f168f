// SPDX-License-Identifier: GPL-3.0-or-later
// The edges that the eye runs down: where fields begin, and where their words do.
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

#include "desktop/portal/date_field.h"
#include "desktop/portal/list_columns.h"
#include "desktop/style/appearance.h"
#include "desktop/style/program_style.h"
#include "grades/frmMarks.h"
#include "roster/frmAdd.h"
#include "roster/frmEdit.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class FieldEdges : public ClassDialogs {
 protected:
  ~FieldEdges() override { dialog.reset(); }

  // Where the first letter stands in the window.
  int WordsOf(const QLineEdit& field) {
    const QVariant cursor = field.inputMethodQuery(Qt::ImCursorRectangle);
    return field.mapTo(dialog.get(), cursor.toRectF().center().toPoint()).x();
  }
  int EdgeOf(const char* name) { return Find<QWidget>(name).mapTo(dialog.get(), QPoint(0, 0)).x(); }
  // The left edges of a field of each page.
  void ExpectOneEdge(Portal& portal, std::initializer_list<const char*> fields) {
    Open(portal);
    auto* tabs = dialog->findChild<QTabWidget*>();
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), static_cast<int>(fields.size()));
    const int edge = EdgeOf(*fields.begin());
    int page = 0;
    for (const char* field : fields) {
      tabs->setCurrentIndex(page++);
      QCoreApplication::processEvents();
      EXPECT_EQ(EdgeOf(field), edge) << field;
    }
    dialog.reset();
  }
};

TEST_F(FieldEdges, ADateBeginsWhereATextDoes) {
  frmMarks portal;
  Open(portal);
  auto& code = Find<QLineEdit>("code");
  auto* day = Find<QDateEdit>("testdate").findChild<QLineEdit*>();
  ASSERT_NE(day, nullptr);
  code.setCursorPosition(0);
  day->setCursorPosition(0);
  EXPECT_EQ(WordsOf(*day), WordsOf(code));
}

// From its left edge, behind its frame and its ground.
int InkWithin(QWidget& field) {
  const QImage picture = field.grab().toImage();
  const int top = picture.height() / 2 - 3;
  for (int x = 4; x < picture.width(); ++x)
    for (int y = top; y < top + 6; ++y)
      if (picture.pixelColor(x, y).lightness() < 160) return x;
  return -1;
}

TEST_F(FieldEdges, AChoiceAndAFigureBeginWhereATextDoesAtEveryDensity) {
  const QString words = QStringLiteral("HHH");
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    Appearance::Instance()->SetDensity(density);
    QWidget window;
    QLineEdit text(words, &window);
    QComboBox choice(&window), typed(&window);
    QLabel figure(words, &window);
    choice.addItem(words);
    typed.setEditable(true);
    typed.addItem(words);
    figure.setFrameShape(QFrame::StyledPanel);
    for (QWidget* each : std::initializer_list<QWidget*>{&text, &choice, &typed, &figure})
      each->resize(120, each->sizeHint().height());
    QPushButton other(&window);
    window.show();
    other.setFocus();
    QCoreApplication::processEvents();
    const int edge = InkWithin(text);
    EXPECT_GT(edge, 0);
    EXPECT_EQ(InkWithin(choice), edge) << static_cast<int>(density);
    EXPECT_EQ(InkWithin(typed), edge) << static_cast<int>(density);
    EXPECT_EQ(InkWithin(figure), edge) << static_cast<int>(density);
  }
  Appearance::Instance()->SetDensity(Density::kNormal);
}

TEST_F(FieldEdges, ATextOfSeveralLinesBeginsWhereOneOfOneLineDoes) {
  CurrentStudent = 1;
  frmEdit portal;
  Open(portal);
  auto& id = Find<QLineEdit>("id");
  id.setCursorPosition(0);
  const auto& comment = Find<QPlainTextEdit>("comment");
  const QPoint words = comment.cursorRect().topLeft();
  EXPECT_EQ(comment.viewport()->mapTo(dialog.get(), words).x(), WordsOf(id));
}

TEST_F(FieldEdges, FieldsBeginAtOneEdgeWhicheverPageIsInFront) {
  CurrentStudent = 1;
  frmEdit edit;
  ExpectOneEdge(edit, {"lastname", "email", "address"});
  frmAdd add;
  ExpectOneEdge(add, {"lastname", "email", "address"});
}

// A sign of 16 in a button as high as its field: 24 by 30 in the usual font, and never a sliver.
TEST_F(FieldEdges, TheArrowOfADateGrowsWithItsHeight) {
  const auto size = [](Density density) {
    Appearance::Instance()->SetDensity(density);
    DateArrow arrow;
    arrow.setCalendarPopup(true);
    return arrow.sizeHint();
  };
  const QSize usual = size(Density::kNormal), roomy = size(Density::kRoomy);
  Appearance::Instance()->SetDensity(Density::kNormal);
  const auto* style = qobject_cast<const ProgramStyle*>(QApplication::style());
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(usual, QSize(24, style->measures().Control()));
  EXPECT_GT(roomy.width(), usual.width());
}

// What stands in that line from there on.
QImage Behind(int left, QListWidget& list, int line) {
  QRect place = list.visualItemRect(list.item(line));
  place.setLeft(left);
  return list.viewport()->grab(place).toImage();
}

TEST_F(FieldEdges, WhatCodesStandForBeginsAtOneEdge) {
  QListWidget list;
  ListColumns columns;
  list.setItemDelegate(&columns);
  list.addItems({QStringLiteral("L    -  Lab"), QStringLiteral("HW  - Lab")});
  columns.Measure(list);
  list.show();
  const int names = columns.Start(1);
  EXPECT_GT(names, list.fontMetrics().horizontalAdvance(QStringLiteral("HW")));
  EXPECT_EQ(Behind(names, list, 0), Behind(names, list, 1));
  EXPECT_EQ(list.item(1)->text(), QStringLiteral("HW  - Lab"));
  // One line of words, and all are words.
  list.addItem(QStringLiteral("Unit 1 - Lab"));
  columns.Measure(list);
  EXPECT_NE(Behind(names, list, 0), Behind(names, list, 1));
}

TEST_F(FieldEdges, ANameWithoutACodeStandsBelowTheOthers) {
  QListWidget list;
  ListColumns columns;
  list.setItemDelegate(&columns);
  list.addItems({QStringLiteral("L    -  Lab"), QStringLiteral("      -  Lab")});
  columns.Measure(list);
  list.show();
  EXPECT_EQ(Behind(columns.Start(1), list, 0), Behind(columns.Start(1), list, 1));
}

// Left of there, where the line says something last.
int EndOfWords(int right, QListWidget& list, int line) {
  QRect place = list.visualItemRect(list.item(line));
  place.setRight(right - 1);
  const QImage picture = list.viewport()->grab(place).toImage();
  const QRgb ground = picture.pixel(picture.width() - 1, 0);
  for (int x = picture.width() - 1; x >= 0; --x)
    for (int y = 0; y < picture.height(); ++y)
      if (picture.pixel(x, y) != ground) return x;
  return -1;
}

TEST_F(FieldEdges, NumbersEndAtOneEdge) {
  QListWidget list;
  ListColumns columns;
  list.setItemDelegate(&columns);
  list.addItems({QStringLiteral("  1  - One"), QStringLiteral("11  - Eleven")});
  columns.Measure(list);
  list.show();
  const int end = EndOfWords(columns.Start(1), list, 0);
  EXPECT_GT(end, 0);
  EXPECT_EQ(end, EndOfWords(columns.Start(1), list, 1));
}

}  // namespace
}  // namespace tallyroll
