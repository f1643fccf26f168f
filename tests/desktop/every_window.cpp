// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/every_window.h"

#include <QCoreApplication>

#include "desktop/portal/form_loader.h"
#include "shell/portal_list.h"

namespace tallyroll {
namespace {

constexpr int kUsualMode = 15;

std::vector<int> ModesOf(std::string_view name) {
  if (name == "frmdGrade") return {121, 157, 269};
  if (name == "frmprintall") return {1, 2, 3};
  if (name == "frmoptions") return {69, 82};
  return {kUsualMode};
}

}  // namespace

EveryWindow::EveryWindow() {
  MakePortal = MakePortalByName;
  Class& c = Current();
  for (int i = 1; i <= 14; ++i)
    AddGrade("The causes of the war, chapter " + std::to_string(i), i % 2 ? "T" : "Q");
  c.NumSummaries = 1;
  ReDim(c.Summaries, 1);
  c.Summaries[1] = {"First Quarter", "Q1", 1, 0, "", ""};
}

void EveryWindow::ForEach(const std::function<void(const std::string&, PortalDialog&)>& look) {
  walked = 0;
  for (const std::string_view name : PortalNames())
    for (const int mode : ModesOf(name)) ShowOne(name, mode, look);
}

void EveryWindow::ShowOne(std::string_view name, int mode,
                          const std::function<void(const std::string&, PortalDialog&)>& look) {
  CurrentStudent = 1;
  OpenState = mode;
  const std::unique_ptr<Portal> portal = MakePortalByName(name);
  portal->Load();
  if (portal->Unloaded()) return;
  const QString form = FormFile(name);
  dialog = std::make_unique<PortalDialog>(
      *portal, forms_folder.isEmpty() ? form : forms_folder + form.mid(form.lastIndexOf(u'/')));
  ASSERT_EQ(dialog->Complaints().join(u'\n').toStdString(), "");
  dialog->show();
  QCoreApplication::processEvents();
  const bool usual = ModesOf(name).size() == 1;
  look(std::string(name) + (usual ? "" : "-" + std::to_string(mode)), *dialog);
  dialog.reset();
  ++walked;
}

}  // namespace tallyroll
