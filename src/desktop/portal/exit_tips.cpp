// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/exit_tips.h"

#include <QAbstractButton>
#include <QDialog>
#include <array>

namespace tallyroll {
namespace {

struct ExitTip {
  const char* portal;
  const char* control;
  const char* tip;
};

constexpr const char* kKeepsChanges = "Keeps your changes";
constexpr const char* kKeepsEntered = "Keeps what you entered";
constexpr const char* kDeletesNoMore = "Deletes nothing more";
constexpr const char* kChangesNothing = "Changes nothing";

constexpr std::array kExitTips = {
    ExitTip{"frmAdd", "Exitt", kKeepsEntered},
    ExitTip{"frmAtsum", "Exits", kKeepsEntered},
    ExitTip{"frmDatt", "exitbt", kDeletesNoMore},
    ExitTip{"frmEMarksS", "Exitt", kKeepsChanges},
    ExitTip{"frmEatt", "exit", kKeepsChanges},
    ExitTip{"frmEdit", "exit", kKeepsChanges},
    ExitTip{"frmEmarks", "Exitt", kKeepsChanges},
    ExitTip{"frmMarks", "exit", "Keeps the grade and its marks"},
    ExitTip{"frmSendMany", "cmdClose", "Stops a run, which can be taken up later"},
    ExitTip{"frmcategories", "exit", kKeepsChanges},
    ExitTip{"frmchange", "exit", kChangesNothing},
    ExitTip{"frmclassinfo", "exit", kKeepsEntered},
    ExitTip{"frmcompare", "Continue", kChangesNothing},
    ExitTip{"frmdGrade", "exitbt", "What was done here stays"},
    ExitTip{"frmdelete", "exit", kDeletesNoMore},
    ExitTip{"frmexplain", "exit", kChangesNothing},
    ExitTip{"frmfind", "exit", kChangesNothing},
    ExitTip{"frmgraph", "Continue", kChangesNothing},
    ExitTip{"frmhistory", "exit", kChangesNothing},
    ExitTip{"frminfo", "exit", "Keeps the comment"},
    ExitTip{"frmletter", "EXIT", "Keeps the values"},
    ExitTip{"frmprintall", "cancel", "Prints nothing more"},
    ExitTip{"frmprintpre", "twelve", "Back to the choice of reports"},
    ExitTip{"frmreplace", "exit", "Replaces nothing more"},
    ExitTip{"frmscrnavg", "exit", "Keeps the comment"},
    ExitTip{"frmseating", "exit", "Asks whether to keep your changes"},
    ExitTip{"frmsnapshot", "exit", kChangesNothing},
    ExitTip{"frmsnapshots", "exit", "What you took back stays"},
    ExitTip{"frmunusual", "exit", kChangesNothing},
    ExitTip{"printmsg", "exit", "Prints nothing"},
};

}  // namespace

QString ExitTipOf(const QString& portal, const QString& control) {
  for (const ExitTip& each : kExitTips)
    if (portal == QLatin1String(each.portal) && control == QLatin1String(each.control))
      return QString::fromLatin1(each.tip);
  return {};
}

void TellWhatExitDoes(QDialog& dialog, const QString& portal) {
  for (auto* button : dialog.findChildren<QAbstractButton*>())
    if (const QString tip = ExitTipOf(portal, button->objectName()); !tip.isEmpty())
      button->setToolTip(tip);
}

}  // namespace tallyroll
