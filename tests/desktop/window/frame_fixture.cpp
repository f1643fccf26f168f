// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/window/frame_fixture.h"

#include <QCoreApplication>
#include <QMenuBar>

#include "platform/portal.h"
#include "store/class_defaults.h"
#include "store/class_file.h"

namespace tallyroll {

std::vector<std::string> portals_asked_for;

void RecordPortals() {
  portals_asked_for.clear();
  MakePortal = [](std::string_view name) {
    portals_asked_for.emplace_back(name);
    return std::unique_ptr<Portal>();
  };
}

void Settle() {
  // What a handler posts is handled too.
  for (int round = 0; round < 5; ++round) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void Press(const MenuView& menu, const char* entry) {
  QAction* action = menu.Action(QString::fromLatin1(entry));
  ASSERT_NE(action, nullptr) << entry;
  ASSERT_TRUE(action->isVisible()) << entry;
  ASSERT_TRUE(action->isEnabled()) << entry;
  action->trigger();
  Settle();
}

FrameTest::FrameTest() {
  FrameForm = std::make_unique<MDIForm1>();
  window = std::make_unique<FrameWindow>();
  Screen = window.get();
  window->resize(900, 600);
  window->ShowFrame();
  Settle();
}

FrameTest::~FrameTest() {
  window.reset();
  Settle();
}

std::string FrameTest::WriteClass(std::string_view name) {
  const i16 before = CurrentClass;
  CurrentClass = 6;  // never handed out
  ResetClassSlot();
  Class& c = Current();
  c.Magic = "ty8";
  c.FileName = Path(name);
  c.NumInstruments = 1;
  ReDim(c.Instruments, 1);
  c.Instruments[1].title = "First Quiz";
  c.Instruments[1].code = "Q1";
  c.Instruments[1].mvalue = 10;
  c.NumStudents = 2;
  ReDim(c.Students, 2);
  c.Students[1].lastname = "Brown";
  c.Students[1].firstname = "Bea";
  c.Students[1].id = "22";
  c.Students[2].lastname = "Adams";
  c.Students[2].firstname = "Al";
  c.Students[2].id = "11";
  for (int i : {1, 2}) ReDim(c.Students[static_cast<std::size_t>(i)].Marks, 1, ShortText("7"));
  WriteClassFile();
  EXPECT_EQ(FileErrorCode, 0);
  c.FileName.clear();
  CurrentClass = before;
  return Path(name);
}

Form1& FrameTest::OpenClass(std::string_view name) {
  FrameForm->OpenRecent(WriteClass(name));
  window->Sync();
  Settle();
  return *ClassWindows[static_cast<std::size_t>(CurrentClass)];
}

std::vector<std::string> FrameTest::Headings() const {
  std::vector<std::string> headings;
  for (const QAction* action : window->menuBar()->actions()) {
    headings.push_back(action->text().toStdString());
  }
  return headings;
}

}  // namespace tallyroll
