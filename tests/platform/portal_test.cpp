// SPDX-License-Identifier: GPL-3.0-or-later
// How one Portal hands over to another, and keeps small ones beside itself.
#include "platform/portal.h"

#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

struct Plain : Portal {
  explicit Plain(std::string_view name) : Portal(name) {}
  void Declare(ControlTable& table) override {
    table.Add("go", go).Click([this] { UnloadAndShow("second"); });
    table.Add("leave", leave).Click([this] { Unload(); });
  }
  CommandButton go, leave;
};

struct Small : Plain {
  Small() : Plain("small") {}
  void Load() override {
    ++loaded;
    if (refuses) Unload();
  }
  static int loaded;
  static bool refuses;
};
int Small::loaded = 0;
bool Small::refuses = false;

class PortalShowing : public PortalTest {
 protected:
  PortalShowing() {
    Small::loaded = 0;
    Small::refuses = false;
    MakePortal = [](std::string_view name) -> std::unique_ptr<Portal> {
      return name == "missing" ? nullptr : std::make_unique<Plain>(name);
    };
  }
};

TEST_F(PortalShowing, APortalHandsOverToTheNextOneOnceItIsGone) {
  screen.ExpectPortal("first", [](PortalDriver& driver) { driver.Press("go"); });
  screen.ExpectPortal("second", [](PortalDriver& driver) { driver.Press("leave"); });
  ShowPortal("first");
  EXPECT_EQ(screen.WindowsShown(), 2);
}

TEST_F(PortalShowing, ANameThatNoPortalBearsShowsNothing) {
  ShowPortal("missing");
  EXPECT_EQ(screen.WindowsShown(), 0);
}

TEST_F(PortalShowing, OneBesideStaysWithItsKeeper) {
  Beside<Small> small;
  EXPECT_EQ(small.get(), nullptr);
  small.Show();
  EXPECT_EQ(screen.PortalBeside("small"), small.get());
  small.Hide();
  EXPECT_EQ(screen.PortalBeside("small"), nullptr);
  EXPECT_NE(small.get(), nullptr);
  small.Show();
  EXPECT_EQ(Small::loaded, 1);
}

TEST_F(PortalShowing, OneBesideThatTheUserClosedShowsAgain) {
  Beside<Small> small;
  small.Show();
  PortalDriver(*small.get()).CloseWindow();
  EXPECT_EQ(screen.PortalBeside("small"), nullptr);
  small.Show();
  EXPECT_EQ(screen.PortalBeside("small"), small.get());
}

TEST_F(PortalShowing, OneBesideThatRefusesToOpenIsClosed) {
  Small::refuses = true;
  Beside<Small> small;
  EXPECT_EQ(small.Open(), nullptr);
  small.Show();
  EXPECT_EQ(screen.PortalBeside("small"), nullptr);
}

TEST_F(PortalShowing, OneBesideGoesWithItsKeeper) {
  {
    Beside<Small> small;
    small.Show();
  }
  EXPECT_EQ(screen.PortalBeside("small"), nullptr);
}

}  // namespace
}  // namespace tallyroll
