// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel/side_panel.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/basics/text_conversion.h"
#include "desktop/panel/missing_line.h"
#include "desktop/panel/panel_pictures.h"
#include "desktop/panel/panel_words.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr double kPanelWidth = 296, kPanelMargin = 16, kPanelGap = 12, kBetweenParts = 24;

QString RankKey() {
  return QStringLiteral("Panel/Rank");
}

PanelWords* NamedWords(const char* use, const char* name) {
  auto* words = new PanelWords(use);
  words->setObjectName(QString::fromLatin1(name));
  return words;
}

QWidget* InRow(std::initializer_list<QWidget*> figures) {
  auto* row = new QWidget;
  auto* columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(8);
  for (QWidget* figure : figures) columns->addWidget(figure, 1);
  return row;
}

QVBoxLayout* RowsOf(QWidget& part, int spacing) {
  auto* rows = new QVBoxLayout(&part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(spacing);
  return rows;
}

QString Joined(const QStringList& facts) {
  return facts.join(QStringLiteral("  \u00b7  "));
}

QString OrDash(const std::string& text) {
  return text.empty() ? QStringLiteral("\u2013") : FromText(text);
}

}  // namespace

SidePanel::SidePanel(QWidget* parent) : QScrollArea(parent) {
  setObjectName(QStringLiteral("SidePanel"));
  setAccessibleName(tr("Side panel"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  auto* page = new QWidget;
  auto* rows = new QVBoxLayout(page);
  const int margin = PanelPx(*this, kPanelMargin);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(PanelPx(*this, kBetweenParts));
  nothing_ = NamedWords("muted", "nothing");
  rows->addWidget(nothing_);
  rows->addWidget(MakeStudent());
  rule_ = new QFrame;
  rule_->setFrameShape(QFrame::HLine);
  rows->addWidget(rule_);
  rows->addWidget(MakeGrade());
  rows->addStretch(1);
  setWidget(page);
  page->setAutoFillBackground(false);  // the line at the left stands behind it
  setFixedWidth(sizeHint().width());
  Show({}, {}, {});
}

QSize SidePanel::sizeHint() const {
  return {PanelPx(*this, kPanelWidth), PanelPx(*this, 2 * kPanelWidth)};
}

QWidget* SidePanel::MakeStudent() {
  student_ = new QWidget;
  auto* rows = RowsOf(*student_, PanelPx(*this, kPanelGap));
  disc_ = new PanelDisc;
  name_ = NamedWords("name", "name");
  id_ = NamedWords("small", "id");
  auto* head = new QHBoxLayout;
  head->setSpacing(10);
  head->addWidget(disc_);
  auto* names = new QVBoxLayout;
  names->setSpacing(1);
  names->addWidget(name_);
  names->addWidget(id_);
  head->addLayout(names, 1);
  rows->addLayout(head);

  average_ = new PanelFigure(QStringLiteral("average"), tr("Average"), new PanelWords("display"));
  final_chip_ = new PanelChip;
  final_ = new PanelFigure(QStringLiteral("final"), tr("Final grade"), final_chip_);
  rank_ = new PanelFigure(QStringLiteral("rank"), tr("Rank"), new PanelWords("name"));
  averages_ = InRow({average_, final_, rank_});
  rows->addWidget(averages_);
  error_ = NamedWords("muted", "error");
  error_->setWordWrap(true);
  rows->addWidget(error_);
  no_method_ = NamedWords("muted", "no_method");
  no_method_->setText(tr("No method chosen yet"));
  rows->addWidget(no_method_);
  make_up_ = new QToolButton;
  make_up_->setObjectName(QStringLiteral("make_up"));
  make_up_->setText(tr("Make Up Grades..."));
  make_up_->setFocusPolicy(Qt::TabFocus);
  connect(make_up_, &QToolButton::clicked, this, &SidePanel::MethodAsked, Qt::QueuedConnection);
  rows->addWidget(make_up_);
  percents_ = new PercentLine;
  rows->addWidget(percents_);
  rows->addWidget(MakeMissing());
  attendance_ = NamedWords("small", "attendance");
  rows->addWidget(attendance_);
  return student_;
}

QWidget* SidePanel::MakeMissing() {
  missing_ = new QWidget;
  auto* rows = RowsOf(*missing_, 2);
  auto* heading = new PanelWords("heading");
  heading->setText(tr("Missing"));
  missing_count_ = NamedWords("small", "missing_count");
  auto* head = new QHBoxLayout;
  head->addWidget(heading, 1);
  head->addWidget(missing_count_);
  rows->addLayout(head);
  for (MissingLine*& line : missing_lines_) {
    line = new MissingLine;
    connect(line, &QAbstractButton::clicked, this,
            [this, line] { Q_EMIT GradePointed(line->grade()); });
    // Queued: a Portal must not run inside the mouse event.
    connect(
        line, &MissingLine::Chosen, this, [this, line] { Q_EMIT GradeChosen(line->grade()); },
        Qt::QueuedConnection);
    rows->addWidget(line);
  }
  more_missing_ = NamedWords("small", "more_missing");
  rows->addWidget(more_missing_);
  return missing_;
}

QWidget* SidePanel::MakeGrade() {
  grade_ = new QWidget;
  auto* rows = RowsOf(*grade_, PanelPx(*this, kPanelGap));
  title_ = NamedWords("name", "title");
  facts_ = NamedWords("small", "facts");
  auto* head = new QVBoxLayout;
  head->setSpacing(1);
  head->addWidget(title_);
  head->addWidget(facts_);
  rows->addLayout(head);
  const auto figure = [](const char* name, const QString& heading) {
    return new PanelFigure(QString::fromLatin1(name), heading, new PanelWords("name"));
  };
  mark_ = figure("mark", tr("This mark"));
  class_average_ = figure("class_average", tr("Class"));
  median_ = figure("median", tr("Median"));
  to_pass_ = figure("to_pass", tr("To pass"));
  rows->addWidget(InRow({mark_, class_average_, median_, to_pass_}));
  bars_ = new TenBars;
  rows->addWidget(bars_);
  counts_ = NamedWords("small", "counts");
  rows->addWidget(counts_);
  return grade_;
}

void SidePanel::Show(const StudentGlance& student, const GradeGlance& grade,
                     const RankInClass& rank) {
  nothing_->setText(student.student == 0 && grade.grade == 0
                        ? tr("Choose a mark to see more of it here")
                        : tr("No student stands in this row"));
  nothing_->setVisible(student.student == 0);
  student_->setVisible(student.student > 0);
  grade_->setVisible(grade.grade > 0);
  rule_->setVisible(student.student > 0 && grade.grade > 0);
  if (student.student > 0) ShowStudent(student, grade.grade, rank);
  if (grade.grade > 0) ShowGrade(grade);
}

void SidePanel::ShowStudent(const StudentGlance& student, int grade, const RankInClass& rank) {
  disc_->setText(FromText(student.initials));
  name_->setText(FromText(student.name));
  id_->setText(tr("ID %1").arg(FromText(student.id)));
  ShowAverage(student, rank);
  percents_->Show(student, grade);
  percents_->setVisible(!student.line.empty());
  ShowMissing(student);
  attendance_->setText(
      Joined({tr("Absent %1").arg(student.absent), tr("Late %1").arg(student.late)}));
  attendance_->setVisible(student.has_attendance);
}

void SidePanel::ShowAverage(const StudentGlance& student, const RankInClass& rank) {
  averages_->setVisible(student.has_method && student.error.empty());
  error_->setText(FromText(student.error));
  error_->setVisible(!student.error.empty());
  no_method_->setVisible(!student.has_method);
  make_up_->setVisible(!student.has_method);
  average_->Show(FromText(student.average));
  final_chip_->Show(FromText(student.final_grade),
                    student.failing ? CellMark::kAlarm : CellMark::kNone, true);
  final_->Show(FromText(student.final_grade));
  final_chip_->setToolTip(FromText(student.final_words));
  rank_->Show(tr("%1 / %2").arg(rank.place).arg(rank.of));
  rank_->setVisible(TellsRank() && rank.place > 0);
}

void SidePanel::ShowMissing(const StudentGlance& student) {
  const std::size_t count = student.missing.size();
  missing_->setVisible(count > 0);
  missing_count_->setText(QString::number(count));
  for (std::size_t i = 0; i < kMissingLines; ++i) {
    if (i < count) missing_lines_[i]->Show(student.missing[i]);
    missing_lines_[i]->setVisible(i < count);
  }
  more_missing_->setVisible(count > kMissingLines);
  if (count > kMissingLines) more_missing_->setText(tr("and %1 more").arg(count - kMissingLines));
}

void SidePanel::ShowGrade(const GradeGlance& grade) {
  title_->setText(FromText(grade.title));
  QStringList facts{FromText(grade.code), tr("of %1").arg(grade.maximum)};
  if (!grade.date.empty()) facts << FromText(grade.date);
  facts_->setText(Joined(facts));
  mark_->Show(OrDash(grade.mark));
  class_average_->Show(OrDash(grade.average));
  median_->Show(OrDash(grade.median));
  to_pass_->Show(FromText(grade.to_pass));
  bars_->Show(grade);
  counts_->setText(Joined({tr("%1 counted").arg(grade.counted), tr("%1 missing").arg(grade.missing),
                           tr("%1 failing").arg(grade.failed)}));
}

bool SidePanel::TellsRank() {
  return QSettings().value(RankKey(), false).toBool();
}

void SidePanel::FocusFirst() {
  for (QWidget* each : {static_cast<QWidget*>(make_up_), static_cast<QWidget*>(missing_lines_[0])})
    if (each->isVisible()) return each->setFocus(Qt::TabFocusReason);
}

void SidePanel::paintEvent(QPaintEvent* event) {
  QScrollArea::paintEvent(event);
  QPainter painter(viewport());
  DrawRule(painter, QRect(0, 0, 1, viewport()->height()), TokensOf(palette()).line);
}

void SidePanel::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();  // what lies behind has a menu of its own
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("panel_menu"));
  QAction* rank = menu.addAction(tr("Show the &Rank"));
  rank->setCheckable(true);
  rank->setChecked(TellsRank());
  if (menu.exec(event->globalPos()) != rank) return;
  QSettings().setValue(RankKey(), rank->isChecked());
  Q_EMIT RankSwitched();
}

}  // namespace tallyroll
