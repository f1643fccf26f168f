// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/empty_texts.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <array>

namespace tallyroll {
namespace {

struct EmptyText {
  const char* portal;
  const char* control;
  const char* text;
};

constexpr const char* kNoStudents = "No students yet";
constexpr const char* kNoGrades = "No grades yet";
constexpr const char* kNoSummaries = "No attendance summaries yet";
constexpr const char* kNoTypes = "No grade types yet";

constexpr std::array kEmptyTexts = {
    EmptyText{"FRMROLLBOOK", "Grid1", kNoStudents},
    EmptyText{"frmAdd", "entered", "Students whom you add stand here"},
    EmptyText{"frmAtsum", "Grid1", kNoStudents},
    EmptyText{"frmAtt", "Grid1", kNoStudents},
    EmptyText{"frmDatt", "list1", kNoSummaries},
    EmptyText{"frmEMarksS", "lstName", kNoStudents},
    EmptyText{"frmEMarksS", "grdgrade", kNoGrades},
    EmptyText{"frmEatt", "list1", kNoSummaries},
    EmptyText{"frmEatt", "Grid1", kNoStudents},
    EmptyText{"frmEdit", "List1", kNoStudents},
    EmptyText{"frmEmarks", "list1", kNoGrades},
    EmptyText{"frmEmarks", "Grid1", kNoStudents},
    EmptyText{"frmMarks", "Grid1", kNoStudents},
    EmptyText{"frmMgrade", "list1", kNoStudents},
    EmptyText{"frmMgrade", "grdgrade", "Nothing missing"},
    EmptyText{"frmSendMany", "Grid1", "No letters to send"},
    EmptyText{"frmcategories", "listbasic", kNoTypes},
    EmptyText{"frmcategories", "listcat", kNoTypes},
    EmptyText{"frmchange", "Grid1", kNoStudents},
    EmptyText{"frmcompare", "Listfiles", "Open two classes to compare them"},
    EmptyText{"frmcompare", "panel", "The figures of each grade chosen"},
    EmptyText{"frmcompare", "table", "How many marks lie in each range"},
    EmptyText{"frmdGrade", "List1", kNoGrades},
    EmptyText{"frmdelete", "List1", kNoStudents},
    EmptyText{"frmdropgrade", "grdgrade", "No type has a grade that may be dropped"},
    EmptyText{"frmexchange", "changes", "Nothing would change"},
    EmptyText{"frmexchange", "warnings", "Nothing to look at"},
    EmptyText{"frmexplain", "lstName", kNoStudents},
    EmptyText{"frmexplain", "grdgrade", kNoGrades},
    EmptyText{"frmexplain", "grdtypes", kNoTypes},
    EmptyText{"frmexplain", "lststeps", "Choose a student"},
    EmptyText{"frmexplain", "grdneeds", "Choose a student"},
    EmptyText{"frmfind", "found", "Nothing found"},
    EmptyText{"frmgrone", "ttypelist", kNoTypes},
    EmptyText{"frmhistory", "Grid1", "Nothing has changed yet"},
    EmptyText{"frminfo", "list1", kNoStudents},
    EmptyText{"frminfo", "grdgrade", kNoGrades},
    EmptyText{"frminfo", "grdatt", kNoSummaries},
    EmptyText{"frmletter", "grdletter", "The letters and their values"},
    EmptyText{"frmoptions", "amountgrid", kNoGrades},
    EmptyText{"frmoptions", "typegrid", kNoTypes},
    EmptyText{"frmoptions", "grdgrade", "The rounding scale in force"},
    EmptyText{"frmpercents", "typegrid", kNoTypes},
    EmptyText{"frmpoints", "grdgrade", kNoGrades},
    EmptyText{"frmprintall", "List2", kNoTypes},
    EmptyText{"frmprintall", "List3", "The types to print"},
    EmptyText{"frmprintall", "ttypelist", kNoTypes},
    EmptyText{"frmprintall", "List4", "The types to print"},
    EmptyText{"frmprintall", "lsttitle", kNoGrades},
    EmptyText{"frmprintall", "lstatt", kNoSummaries},
    EmptyText{"frmprintall", "lstName", kNoStudents},
    EmptyText{"frmroundoff", "grdgrade", "The rounding values"},
    EmptyText{"frmscrnavg", "lstName", kNoStudents},
    EmptyText{"frmscrnavg", "grdgrade", kNoGrades},
    EmptyText{"frmscrnavg", "grdatt", kNoSummaries},
    EmptyText{"frmrecover", "Grid1", "Attendance, seats or the order of records"},
    EmptyText{"frmseating", "Listchart", "No charts yet"},
    EmptyText{"frmseating", "Grid1", "The chosen chart"},
    EmptyText{"frmseating", "students", "Everybody has a seat"},
    EmptyText{"frmseating", "unmet", "Every wish is met"},
    EmptyText{"frmseating", "column", "The columns of the room"},
    EmptyText{"frmseating", "seatsrow", "The seats of a column"},
    EmptyText{"frmseating", "wisher", kNoStudents},
    EmptyText{"frmseating", "wishkind", "What may be wished"},
    EmptyText{"frmseating", "wishother", kNoStudents},
    EmptyText{"frmseating", "wishlist", "No wishes yet"},
    EmptyText{"frmseating", "contradictions", "No wish contradicts another"},
    EmptyText{"frmsingles", "lstName", kNoGrades},
    EmptyText{"frmsingles", "grid1", kNoStudents},
    EmptyText{"frmsnapshot", "Grid1", kNoStudents},
    EmptyText{"frmsnapshots", "Grid1", "No snapshot is kept yet"},
    EmptyText{"frmsnapshots", "Grid2", "Nothing differs"},
    EmptyText{"frmstatistic", "lsttitles", kNoGrades},
    EmptyText{"frmstatistic", "distribution", "Choose a title"},
    EmptyText{"frmstudents", "orglist", "All are chosen"},
    EmptyText{"frmstudents", "printlist", "Nobody is chosen yet"},
    EmptyText{"frmtotals", "grdgrade", kNoTypes},
    EmptyText{"frmtxt", "preview", "The first lines of the file"},
    EmptyText{"frmunusual", "Grid1", "Nothing unusual"},
    EmptyText{"frmweights", "grdgrade", kNoGrades},
};

// Stands over the lines that are not there.
class EmptyNotice : public QLabel {
 public:
  EmptyNotice(QListWidget& list, const QString& text) : QLabel(text, list.viewport()), list_(list) {
    setObjectName(QStringLiteral("EmptyNotice"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    list.viewport()->installEventFilter(this);
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
      connect(list.model(), changed, this, [this] { Follow(); });
    connect(list.model(), &QAbstractItemModel::modelReset, this, [this] { Follow(); });
    Follow();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) setGeometry(list_.viewport()->rect());
    return false;
  }

 private:
  void Follow() {
    const bool empty = list_.count() == 0;
    setVisible(empty);
    list_.setAccessibleDescription(empty ? text() : QString());
  }

  QListWidget& list_;
};

}  // namespace

QString EmptyTextOf(const QString& portal, const QString& control) {
  for (const EmptyText& each : kEmptyTexts)
    if (portal == QLatin1String(each.portal) && control == QLatin1String(each.control))
      return QString::fromLatin1(each.text);
  return {};
}

void ShowWhileEmpty(QListWidget& list, const QString& text) {
  if (!text.isEmpty()) new EmptyNotice(list, text);
}

}  // namespace tallyroll
