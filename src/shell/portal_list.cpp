// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/portal_list.h"

#include <array>

#include "analysis/FRMROLLBOOK.h"
#include "analysis/frmcompare.h"
#include "analysis/frmgraph.h"
#include "analysis/frmgrone.h"
#include "analysis/frmsingles.h"
#include "analysis/frmstatistic.h"
#include "attendance/frmAtsum.h"
#include "attendance/frmAtt.h"
#include "attendance/frmDatt.h"
#include "attendance/frmEatt.h"
#include "attendance/frmatset.h"
#include "averages/portals/frmchange.h"
#include "averages/portals/frmgradesave.h"
#include "averages/portals/frminfo.h"
#include "averages/portals/frmoptions.h"
#include "averages/portals/frmpercents.h"
#include "averages/portals/frmpoints.h"
#include "averages/portals/frmroundoff.h"
#include "averages/portals/frmscrnavg.h"
#include "averages/portals/frmweights.h"
#include "exchange/frmexchange.h"
#include "find/frmfind.h"
#include "grades/frmEMarksS.h"
#include "grades/frmEmarks.h"
#include "grades/frmMarks.h"
#include "grades/frmMgrade.h"
#include "grades/frmcategories.h"
#include "grades/frmdGrade.h"
#include "grades/frmletter.h"
#include "insight/frmexplain.h"
#include "insight/frmhistory.h"
#include "insight/frmrecover.h"
#include "insight/frmsnapshot.h"
#include "insight/frmsnapshots.h"
#include "insight/frmunusual.h"
#include "letters/mail/frmSendMail.h"
#include "letters/mail/frmSendMany.h"
#include "letters/writer/frmreplace.h"
#include "letters/writer/frmwrdproc.h"
#include "printing/frmmargins.h"
#include "printing/frmprintall.h"
#include "printing/frmprintpre.h"
#include "printing/printmsg.h"
#include "roster/frmAdd.h"
#include "roster/frmEdit.h"
#include "roster/frmdelete.h"
#include "roster/frmstudents.h"
#include "seating/frmseating.h"
#include "shell/frmWizard.h"
#include "shell/frmclassinfo.h"
#include "shell/frmstartup.h"
#include "store/frmpassword.h"
#include "store/text/frmtxt.h"

namespace tallyroll {
namespace {

struct PortalRow {
  std::string_view name;
  std::unique_ptr<Portal> (*make)() = nullptr;
};

template <typename P>
std::unique_ptr<Portal> Make() {
  return std::make_unique<P>();
}

// clang-format off
constexpr std::array kPortals{
    PortalRow{"frmpassword", Make<frmpassword>},
    PortalRow{"frmWizard", Make<frmWizard>},
    PortalRow{"frmclassinfo", Make<frmclassinfo>},
    PortalRow{"frmAdd", Make<frmAdd>},
    PortalRow{"frmEdit", Make<frmEdit>},
    PortalRow{"frmstartup", Make<frmstartup>},
    PortalRow{"frmdelete", Make<frmdelete>},
    PortalRow{"frmstudents", Make<frmstudents>},
    PortalRow{"frmMarks", Make<frmMarks>},
    PortalRow{"frmAtt", Make<frmAtt>},
    PortalRow{"frmatset", Make<frmatset>},
    PortalRow{"frmAtsum", Make<frmAtsum>},
    PortalRow{"frmdGrade", Make<frmdGrade>},
    PortalRow{"frmEmarks", Make<frmEmarks>},
    PortalRow{"frmEMarksS", Make<frmEMarksS>},
    PortalRow{"frmcategories", Make<frmcategories>},
    PortalRow{"frmletter", Make<frmletter>},
    PortalRow{"frmEatt", Make<frmEatt>},
    PortalRow{"frmDatt", Make<frmDatt>},
    PortalRow{"frmsingles", Make<frmsingles>},
    PortalRow{"frminfo", Make<frminfo>},
    PortalRow{"FRMROLLBOOK", Make<FRMROLLBOOK>},
    PortalRow{"frmMgrade", Make<frmMgrade>},
    PortalRow{"frmweights", Make<frmweights>},
    PortalRow{"frmdropgrade", Make<frmdropgrade>},
    PortalRow{"frmtotals", Make<frmtotals>},
    PortalRow{"frmpercents", Make<frmpercents>},
    PortalRow{"frmroundoff", Make<frmroundoff>},
    PortalRow{"frmscrnavg", Make<frmscrnavg>},
    PortalRow{"frmgradesave", Make<frmgradesave>},
    PortalRow{"frmpoints", Make<frmpoints>},
    PortalRow{"frmoptions", Make<frmoptions>},
    PortalRow{"frmprintall", Make<frmprintall>},
    PortalRow{"frmprintpre", Make<frmprintpre>},
    PortalRow{"printmsg", Make<printmsg>},
    PortalRow{"frmmargins", Make<frmmargins>},
    PortalRow{"frmstatistic", Make<frmstatistic>},
    PortalRow{"frmgraph", Make<frmgraph>},
    PortalRow{"frmgrone", Make<frmgrone>},
    PortalRow{"frmcompare", Make<frmcompare>},
    PortalRow{"frmexchange", Make<frmexchange>},
    PortalRow{"frmwrdproc", Make<frmwrdproc>},
    PortalRow{"frmreplace", Make<frmreplace>},
    PortalRow{"frmseating", Make<frmseating>},
    PortalRow{"frmtxt", Make<frmtxt>},
    PortalRow{"frmexplain", Make<frmexplain>},
    PortalRow{"frmunusual", Make<frmunusual>},
    PortalRow{"frmhistory", Make<frmhistory>},
    PortalRow{"frmrecover", Make<frmrecover>},
    PortalRow{"frmsnapshots", Make<frmsnapshots>},
    PortalRow{"frmsnapshot", Make<frmsnapshot>},
    PortalRow{"frmchange", Make<frmchange>},
    PortalRow{"frmfind", Make<frmfind>},
    PortalRow{"frmSendMail", Make<frmSendMail>},
    PortalRow{"frmSendMany", Make<frmSendMany>},
};
// clang-format on

std::vector<std::string_view> AllNames() {
  std::vector<std::string_view> names;
  names.reserve(kPortals.size());
  for (const PortalRow& row : kPortals) names.push_back(row.name);
  return names;
}

const std::vector<std::string_view> portal_names = AllNames();

}  // namespace

const std::vector<std::string_view>& PortalNames() {
  return portal_names;
}

std::unique_ptr<Portal> MakePortalByName(std::string_view name) {
  for (const PortalRow& row : kPortals)
    if (row.name == name) return row.make();
  return nullptr;
}

}  // namespace tallyroll
