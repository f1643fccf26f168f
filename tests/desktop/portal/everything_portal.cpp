// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/portal/everything_portal.h"

#include <utility>

namespace tallyroll {

EverythingPortal::EverythingPortal() : Portal("frmEverything") {
  pick.List = {"red", "green", "blue"};
  typed.List = {"ten", "twenty"};
  list.List = {"Anna\tA1", "Bertha\tB2", "Carl\tC3"};
  day.Value = 46266;  // 1 September 2026
  grid.SetSize(5, 4);
}

void EverythingPortal::Log(const std::string& line) {
  log.push_back(line);
  when(line);
}

void EverythingPortal::Declare(ControlTable& table) {
  const auto with_events = [this](ControlRow& row) {
    const std::string name = row.name;
    row.Change([this, name] { Log(name + " change"); })
        .Click([this, name] { Log(name + " click"); })
        .DblClick([this, name] { Log(name + " dblclick"); })
        .GotFocus([this, name] { Log(name + " got"); })
        .LostFocus([this, name] { Log(name + " lost"); });
  };
  table.Add("note", note);
  with_events(table.Add("first", first));
  with_events(table.Add("second", second));
  table.Find("second")->KeyDown([this](Key key) {
    Log("second key " + std::string(1, static_cast<char>('0' + static_cast<int>(key))));
    return use_up_keys;
  });
  table.Find("second")->KeyPress([this](unsigned char character) {
    Log("second press " +
        (character == 8 ? std::string("back") : std::string(1, static_cast<char>(character))));
    return use_up_keys;
  });
  with_events(table.Add("lines", lines));
  with_events(table.Add("pick", pick));
  with_events(table.Add("typed", typed));
  with_events(table.Add("day", day));
  with_events(table.Add("list", list));
  with_events(table.Add("grid", grid));
  with_events(table.Add("tick", tick));
  table.Add("choice", choice);
  with_events(table.Add("one", one));
  with_events(table.Add("two", two));
  with_events(table.Add("tabs", tabs));
  table.Add("pages", pages);
  table.Add("picture", picture);
  with_events(table.Add("ok", ok));
  with_events(table.Add("other", other));
  with_events(table.Add("cancel", cancel));
}

void EverythingPortal::QueryUnload() {
  Log("query unload");
  if (!refuse_to_go) Unload();
}

void EverythingTest::SetUp() {
  SetPlatform(&surroundings);
}

void EverythingTest::TearDown() {
  dialog.reset();
  SetPlatform(nullptr);
}

void EverythingTest::Open() {
  dialog = std::make_unique<PortalDialog>(portal, EverythingForm());
  ASSERT_TRUE(dialog->Complaints().isEmpty()) << dialog->Complaints().join(u'\n').toStdString();
  dialog->show();
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
}

std::vector<std::string> EverythingTest::Events() {
  return std::exchange(portal.log, {});
}

void EverythingTest::Focus(const char* name) {
  Find<QWidget>(name).setFocus(Qt::TabFocusReason);
  Events();
}

}  // namespace tallyroll
