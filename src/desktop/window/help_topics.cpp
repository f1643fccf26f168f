// SPDX-License-Identifier: GPL-3.0-or-later
// The topics of the help by their context numbers.
#include "desktop/window/help_topics.h"

#include <QFile>
#include <algorithm>
#include <array>

namespace tallyroll {

namespace {

constexpr std::array kContexts = {
    0,    // contents
    110,  // opening a class
    120,  // saving a class
    130,  // backups and files of older versions
    140,  // recent classes, several classes at a time
    150,  // starting the program: frmstartup
    160,  // text files: frmtxt
    165,  // other school systems: frmexchange
    200,  // the class window: Form1
    210,  // all keys
    215,  // finding students, grades, commands and classes: frmfind
    218,  // the side panel and the status bar
    220,  // sorting by name or by ID
    230,  // the new class wizard: frmWizard
    240,  // class information: frmclassinfo
    250,  // adding students: frmAdd
    260,  // editing students: frmEdit
    270,  // passwords: frmpassword
    280,  // deleting students: frmdelete
    290,  // choosing students: frmstudents
    300,  // entering grades: frmMarks
    310,  // editing a grade: frmEmarks
    320,  // editing the grades of a student: frmEMarksS
    330,  // deleting, transferring and ordering grades: frmdGrade
    340,  // naming grade types: frmcategories
    350,  // what letters count: frmletter
    360,  // missing grades: frmMgrade
    370,  // daily attendance: frmAtt
    375,  // its months: frmatset
    380,  // summary attendance: frmAtsum
    390,  // editing it: frmEatt
    400,  // deleting it: frmDatt
    410,  // printing: frmprintall
    420,  // margins: frmmargins
    430,  // title and progress of a printout: printmsg
    440,  // preview: frmprintpre
    470,  // sending a report by mail: frmSendMail
    475,  // sending to several: frmSendMany
    500,  // weights of grades: frmweights, frmdropgrade, frmtotals
    510,  // weights of types: frmpercents
    520,  // points: frmpoints
    530,  // rounding: frmroundoff
    540,  // saving final grades: frmgradesave
    550,  // summary of settings: frmoptions
    560,  // averages: frmscrnavg
    570,  // all information: frminfo
    580,  // seating charts: frmseating
    600,  // statistics of a grade: frmstatistic
    610,  // its graph: frmgraph
    620,  // a student's progress: frmgrone
    630,  // comparing classes: frmcompare
    640,  // the roll book: FRMROLLBOOK
    650,  // one grade of all students: frmsingles
    700,  // letters: frmwrdproc
    710,  // find and replace: frmreplace
    810,  // explaining an average: frmexplain
    820,  // unusual marks: frmunusual
    830,  // undo and redo
    840,  // the history of a class: frmhistory
    870,  // work that was not saved: frmrecover
    860,  // the class of an earlier day: frmsnapshots, frmsnapshot
    850,  // what a change of weights would do: frmchange
};

}  // namespace

std::span<const int> HelpContexts() {
  return kContexts;
}

QString HelpTitle(int context) {
  QFile page(QStringLiteral(":/help/topic_%1.html").arg(context));
  if (!page.open(QIODevice::ReadOnly)) return {};
  const QString text = QString::fromUtf8(page.readAll());
  const QString begin = QStringLiteral("<title>");
  const qsizetype at = text.indexOf(begin) + begin.size();
  return text.mid(at, text.indexOf(QLatin1Char('<'), at) - at);
}

QUrl HelpPage(int context) {
  const bool known = std::ranges::find(kContexts, context) != kContexts.end();
  return QUrl(QStringLiteral("qrc:/help/topic_%1.html").arg(known ? context : 0));
}

}  // namespace tallyroll
