// SPDX-License-Identifier: GPL-3.0-or-later
// Walks every Portal of the list, and every form.
#include <gtest/gtest.h>

#include <QDir>

#include "desktop/basics/text_conversion.h"
#include "desktop/portal/form_loader.h"
#include "shell/portal_list.h"
#include "tests/desktop/portal/everything_portal.h"
#include "tests/desktop/portal/form_checks.h"

namespace tallyroll {
namespace {

// Captions that teachers know by heart and that share a letter; Alt+S then goes from one button to
// the other. This list only shrinks.
const QStringList kKnownClashes = {QStringLiteral("skip and continue share Alt+S"),
                                   QStringLiteral("TabStrip1 and preview share Alt+R"),
                                   // One is disabled while the frame of the other is shown.
                                   QStringLiteral("graph and data share Alt+G")};

QStringList Complaints(Portal& portal) {
  QStringList complaints = CheckPortalForm(portal, FormFile(portal.Name()));
  complaints.removeIf([](const QString& each) { return kKnownClashes.contains(each); });
  return complaints;
}

TEST(WalkPortals, EveryPortalFitsItsForm) {
  HeadlessSurroundings surroundings;
  SetPlatform(&surroundings);
  for (const std::string_view name : PortalNames()) {
    const std::unique_ptr<Portal> portal = MakePortalByName(name);
    ASSERT_NE(portal, nullptr) << name;
    EXPECT_EQ(portal->Name(), name);
    EXPECT_EQ(Complaints(*portal).join(u'\n').toStdString(), "") << name;
  }
  SetPlatform(nullptr);
}

TEST(WalkPortals, EveryFormBelongsToAPortal) {
  QStringList known;
  for (const std::string_view name : PortalNames()) known << FromText(name) + QStringLiteral(".ui");
  for (const QString& file : QDir(QStringLiteral(":/forms")).entryList())
    EXPECT_TRUE(known.contains(file)) << file.toStdString();
  EXPECT_FALSE(known.isEmpty());
}

TEST(FormChecks, AFormThatIsInOrderRaisesNoComplaint) {
  EverythingPortal portal;
  portal.ok.Caption = "O&K";
  EXPECT_EQ(CheckPortalForm(portal, EverythingForm()).join(u'\n').toStdString(), "");
}

TEST(FormChecks, EachFaultIsNamed) {
  EverythingPortal portal;
  portal.ok.Caption = "Go";
  EXPECT_EQ(
      CheckPortalForm(portal, QStringLiteral(":/test/forms/faults.ui")).join(u'\n').toStdString(),
      QStringList({QStringLiteral("ok: the form says \"O&K\", the struct \"Go\""),
                   QStringLiteral("tab comes to second where first is read next"),
                   QStringLiteral("second has no accessible name"),
                   QStringLiteral("other and cancel share Alt+C"),
                   QStringLiteral("choice has no layout")})
          .join(u'\n')
          .toStdString());
}

}  // namespace
}  // namespace tallyroll
