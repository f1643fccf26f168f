// SPDX-License-Identifier: GPL-3.0-or-later
// The driver acts as the screen does: the same events, in the same order, stopped by the same.
#include "platform/portal_driver.h"

#include <functional>
#include <utility>

#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using Lines = std::vector<std::string>;

struct LoggingPortal : Portal {
  LoggingPortal() : Portal("frmLogging") {
    list.List = {"Anna", "Bertha"};
    tabs.Tabs = {"One", "Two"};
    grid.SetSize(5, 4);
  }
  void Declare(ControlTable& table) override {
    Watch(table.Add("field", field));
    Watch(table.Add("other", other));
    Watch(table.Add("list", list));
    Watch(table.Add("grid", grid));
    Watch(table.Add("tick", tick));
    Watch(table.Add("tabs", tabs));
    Watch(table.Add("day", day));
    Watch(table.Add("ok", ok));
  }

  TextBox field, other;
  ListBox list;
  Grid grid;
  CheckBox tick;
  TabStrip tabs;
  DTPicker day;
  CommandButton ok;
  Lines log;
  std::function<void(const std::string&)> when = [](const std::string&) {};

 private:
  void Watch(ControlRow& row) {
    const auto note = [this, name = row.name](const char* event) {
      return [this, line = name + event] {
        log.push_back(line);
        when(line);
      };
    };
    row.Change(note(" change"))
        .Click(note(" click"))
        .DblClick(note(" dblclick"))
        .GotFocus(note(" got"))
        .LostFocus(note(" lost"));
  }
};

class PortalDriverTest : public PortalTest {
 protected:
  ~PortalDriverTest() override {
    for (const std::string& complaint : driver.Complaints()) ADD_FAILURE() << complaint;
  }
  void StandIn(std::string_view control) {
    driver.Focus(control);
    portal.log.clear();
  }
  void OnLeavingTheField(std::function<void()> act) {
    portal.when = [act = std::move(act)](const std::string& line) {
      if (line == "field lost") act();
    };
  }
  // Says so, as a field that must be mended does.
  void BoxOnLeavingTheField() {
    screen.ExpectBox("Wrong");
    OnLeavingTheField([] { ShowMessage("Wrong"); });
  }

  LoggingPortal portal;
  PortalDriver driver{portal};
};

TEST(PortalDriverOpening, TheFocusGivenByOpeningRaisesNoEvent) {
  LoggingPortal portal;
  portal.SetFocus(portal.other);
  const PortalDriver driver(portal);
  EXPECT_EQ(driver.Focused(), "other");
  EXPECT_EQ(portal.log, Lines{});
}

TEST_F(PortalDriverTest, APressLeavesTheFieldFirst) {
  StandIn("field");
  driver.Press("ok");
  EXPECT_EQ(portal.log, (Lines{"field lost", "ok got", "ok click"}));
}

TEST_F(PortalDriverTest, APressIsStoppedWhenTheFieldLeftPutsUpABox) {
  StandIn("field");
  BoxOnLeavingTheField();
  driver.Press("ok");
  EXPECT_EQ(portal.log, (Lines{"field lost", "ok got"}));
}

TEST_F(PortalDriverTest, APressIsStoppedWhenTheFieldLeftAsksForTheFocus) {
  StandIn("field");
  OnLeavingTheField([this] { portal.SetFocus(portal.field); });
  driver.Press("ok");
  EXPECT_EQ(portal.log, (Lines{"field lost", "ok lost", "field got"}));
  EXPECT_EQ(driver.Focused(), "field");
}

TEST_F(PortalDriverTest, NothingMoreHappensOnceTheFieldLeftUnloadsThePortal) {
  StandIn("field");
  OnLeavingTheField([this] { portal.Unload(); });
  driver.Press("ok");
  EXPECT_EQ(portal.log, Lines{"field lost"});
}

TEST_F(PortalDriverTest, AStoppedTickChangesNothing) {
  StandIn("field");
  BoxOnLeavingTheField();
  driver.Tick("tick");
  EXPECT_FALSE(portal.tick.Value);
  EXPECT_EQ(portal.log, (Lines{"field lost", "tick got"}));
}

TEST_F(PortalDriverTest, AStoppedChoiceChangesNothing) {
  StandIn("field");
  BoxOnLeavingTheField();
  driver.Choose("list", 1);
  EXPECT_EQ(portal.list.ListIndex, -1);
}

TEST_F(PortalDriverTest, AStoppedCellIsNotPicked) {
  StandIn("field");
  BoxOnLeavingTheField();
  driver.PickCell("grid", 2, 3);
  EXPECT_EQ(portal.grid.Row, 1);
  EXPECT_EQ(portal.log, (Lines{"field lost", "grid got"}));
}

TEST_F(PortalDriverTest, TextGoesNowhereWhenTheFieldLeftKeepsTheFocus) {
  StandIn("field");
  OnLeavingTheField([this] { portal.SetFocus(portal.field); });
  driver.Type("other", "x");
  EXPECT_EQ(portal.other.Text, "");
}

TEST_F(PortalDriverTest, WhatIsDisabledDoesNotGetTheFocus) {
  portal.other.Enabled = false;
  portal.when = [this](const std::string& line) {
    if (line == "ok click") portal.SetFocus(portal.other);
  };
  driver.Press("ok");
  EXPECT_EQ(driver.Focused(), "ok");
}

TEST_F(PortalDriverTest, AnotherCellIsAChangeThenAClick) {
  StandIn("grid");
  driver.PickCell("grid", 2, 3);
  EXPECT_EQ(portal.log, (Lines{"grid change", "grid click"}));
  EXPECT_EQ(portal.grid.Row, 2);
  EXPECT_EQ(portal.grid.Col, 3);
  EXPECT_EQ(portal.grid.MouseRow, 2);
  EXPECT_EQ(portal.grid.MouseCol, 3);
}

TEST_F(PortalDriverTest, TheCurrentCellAndAFixedOneAreOnlyClicked) {
  StandIn("grid");
  driver.PickCell("grid", 1, 1);
  driver.PickCell("grid", 0, 2);
  EXPECT_EQ(portal.log, (Lines{"grid click", "grid click"}));
  EXPECT_EQ(portal.grid.Row, 1);
  EXPECT_EQ(portal.grid.Col, 1);
  EXPECT_EQ(portal.grid.MouseRow, 0);
}

TEST_F(PortalDriverTest, ALineIsAChangeThenAClickAndTheChosenOneAClick) {
  StandIn("list");
  driver.Choose("list", 1);
  EXPECT_EQ(portal.log, (Lines{"list change", "list click"}));
  driver.Choose("list", 1);
  EXPECT_EQ(portal.log, (Lines{"list change", "list click", "list click"}));
}

TEST_F(PortalDriverTest, AClickComesBeforeADoubleClick) {
  StandIn("list");
  driver.DoubleClick("list");
  EXPECT_EQ(portal.log, (Lines{"list click", "list dblclick"}));
}

TEST_F(PortalDriverTest, NoDoubleClickAfterTheClickUnloaded) {
  StandIn("list");
  portal.when = [this](const std::string& line) {
    if (line == "list click") portal.Unload();
  };
  driver.DoubleClick("list");
  EXPECT_EQ(portal.log, Lines{"list click"});
}

TEST_F(PortalDriverTest, AnotherTabIsAChangeThenAClickAndTheSameNothing) {
  StandIn("tabs");
  driver.PickTab("tabs", 0);
  EXPECT_EQ(portal.log, Lines{});
  driver.PickTab("tabs", 1);
  EXPECT_EQ(portal.log, (Lines{"tabs change", "tabs click"}));
}

TEST_F(PortalDriverTest, TheDayShownIsAPickToo) {
  StandIn("day");
  driver.PickDate("day", portal.day.Value);
  EXPECT_EQ(portal.log, Lines{"day change"});
}

class PortalDriverBounds : public PortalTest {};

TEST_F(PortalDriverBounds, ADayOutOfBoundsCannotBePicked) {
  LoggingPortal portal;
  portal.day.MinDate = 10;
  portal.day.MaxDate = 12;
  portal.day.Value = 11;
  PortalDriver driver(portal);
  driver.PickDate("day", 10);
  driver.PickDate("day", 12);
  EXPECT_TRUE(driver.Complaints().empty());
  driver.PickDate("day", 9);
  driver.PickDate("day", 13);
  EXPECT_EQ(portal.day.Value, 12);
  EXPECT_EQ(driver.Complaints(), (Lines{"pick a date in day: it is out of bounds",
                                        "pick a date in day: it is out of bounds"}));
}

}  // namespace
}  // namespace tallyroll
