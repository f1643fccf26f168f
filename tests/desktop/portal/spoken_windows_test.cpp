// SPDX-License-Identifier: GPL-3.0-or-later
// Every Portal as a screen reader, the Tab key and the letters of its captions meet it, on each of
// its pages.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/letter/rich_text_edit.h"
#include "desktop/style/appearance.h"
#include "find/frmfind.h"
#include "tests/desktop/every_window.h"
#include "tests/desktop/keyboard_round.h"
#include "tests/desktop/spoken_window.h"

namespace tallyroll {
namespace {

class SpokenWindows : public EveryWindow {
 protected:
  ~SpokenWindows() override { Appearance::Instance()->SetDensity(Density::kNormal); }

  // Pages that a Portal shows one after the other; while one is shown out of turn no key may come.
  enum class Steps { kOnlyTheFirst, kToo };

  // Each page of each Portal; the faults stand together, with the window's name before them.
  void ForEachPage(const std::function<QStringList(const std::string&, PortalDialog&)>& look,
                   Steps steps = Steps::kOnlyTheFirst) {
    QStringList all;
    ForEach([&](const std::string& name, PortalDialog& window) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << name;
      const auto add = [&] {
        for (const QString& fault : look(name, window)) {
          const QString line = QString::fromStdString(name) + QLatin1String(": ") + fault;
          if (!all.contains(line)) all << line;
        }
      };
      add();
      for (auto* tabs : window.findChildren<QTabWidget*>())
        for (int page = 1; page < tabs->count(); ++page) {
          tabs->setCurrentIndex(page);
          QCoreApplication::processEvents();
          add();
        }
      if (steps == Steps::kToo) {
        for (auto* pages : window.findChildren<QStackedWidget*>()) {
          if (pages->parentWidget()->inherits("QTabWidget")) continue;
          for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            QCoreApplication::processEvents();
            add();
          }
        }
      }
    });
    EXPECT_EQ(all.join(u'\n').toStdString(), "");
    EXPECT_GE(walked, 35);
  }
};

TEST_F(SpokenWindows, ASpeakerFindsANameAndAKindForEverything) {
  ForEachPage([](const std::string&, PortalDialog& window) { return SpokenFaults(window); },
              Steps::kToo);
}

TEST_F(SpokenWindows, EachOpensOnAControlThatHasAName) {
  ForEach([](const std::string& name, PortalDialog& window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << name;
    EXPECT_EQ(FocusFaults(window).join(u'\n').toStdString(), "") << name;
  });
}

TEST_F(SpokenWindows, TabReachesEverythingOnceAsItIsReadAtEveryDensity) {
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    Appearance::Instance()->SetDensity(density);
    ForEachPage([](const std::string& name, PortalDialog& window) {
      // Its fields ask for a type first.
      if (name == "frmcategories") QTest::keyClick(window.focusWidget(), Qt::Key_Down);
      return TabFaults(window);
    });
  }
}

// Captions that teachers know by heart and that share a letter; Alt with it then goes from one to
// the other. This list only shrinks.
bool IsKnownClash(const std::string& name, const QString& fault) {
  return name.starts_with("frmprintall") &&
         fault == QStringLiteral("Preview and Class Roster/Supp. Info. share Alt+R");
}

TEST_F(SpokenWindows, NoTwoCaptionsShareALetter) {
  ForEachPage([](const std::string& name, PortalDialog& window) {
    QStringList faults = MnemonicFaults(window);
    faults.removeIf([&name](const QString& each) { return IsKnownClash(name, each); });
    return faults;
  });
}

// Font, size and codes stand above the letter, in which Tab is a tab.
TEST_F(SpokenWindows, ALetterIsLeftByTabWithCtrlAndWithShift) {
  ForEach([](const std::string& name, PortalDialog& window) {
    if (name != "frmwrdproc") return;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* letter = window.findChild<RichTextEdit*>(QStringLiteral("RichTextBox1"));
    letter->setFocus();
    QTest::keyClick(letter, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), letter);
    EXPECT_EQ(letter->toPlainText(), QStringLiteral("\t"));
    QTest::keyClick(letter, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(window.focusWidget()->objectName(), QStringLiteral("zoom"));
    for (const Qt::KeyboardModifiers back : {Qt::NoModifier, Qt::ShiftModifier}) {
      letter->setFocus();
      QTest::keyClick(letter, back ? Qt::Key_Backtab : Qt::Key_Tab, Qt::ControlModifier | back);
      EXPECT_NE(window.focusWidget(), letter);
    }
    EXPECT_EQ(letter->toPlainText(), QStringLiteral("\t"));
  });
}

// The keys stay in the field; what they choose is heard there.
TEST_F(SpokenWindows, TheLineThatIsWalkedToIsToldInTheFieldOfTheCommandWindow) {
  FindStarts = FindFirst::kCommands;
  MakeFindEntries = [] {
    std::vector<FindEntry> entries(3);
    entries[0].text = "Seating Chart";
    entries[0].place = "Tools";
    entries[0].key = "Ctrl+L";
    entries[1].text = "Seat Order";
    entries[1].place = "Display";
    entries[2].text = "Seats of Old";
    entries[2].place = "Tools";
    entries[2].reason = "The class has no students yet.";
    return entries;
  };
  frmfind portal;
  Open(portal);
  auto& list = Find<QListWidget>("found");
  ASSERT_EQ(Focused(), "typed");
  const auto told = [this] {
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(dialog->focusWidget());
    return field->text(QAccessible::Description).toStdString();
  };
  QTest::keyClicks(dialog->focusWidget(), QStringLiteral("seat"));
  std::vector<std::string> heard;
  for (int i = 0; i < list.count(); ++i) {
    heard.push_back(told());
    const QAccessibleInterface* line = QAccessible::queryAccessibleInterface(&list)->child(i);
    EXPECT_TRUE(line->state().selected) << i;
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
  }
  EXPECT_THAT(heard, testing::UnorderedElementsAre(
                         testing::StartsWith("Seating Chart, Tools, Ctrl+L, "),
                         testing::StartsWith("Seat Order, Display, "),
                         testing::StartsWith("Seats of Old, The class has no students yet., ")));
  EXPECT_THAT(heard.front(), testing::EndsWith(", 1 of 3"));
  EXPECT_THAT(heard.back(), testing::EndsWith(", 3 of 3"));
  QTest::keyClicks(dialog->focusWidget(), QStringLiteral("zzz"));
  EXPECT_EQ(told(), "Nothing found");
  dialog.reset();
  MakeFindEntries = nullptr;
}

// What the checks above must notice.
TEST(SpokenFaults, AControlWithoutAWordForANameIsNoticed) {
  QDialog window;
  auto* rows = new QVBoxLayout(&window);
  auto* more = new QPushButton(QStringLiteral("+"));
  more->setObjectName(QStringLiteral("more"));
  auto* good = new QPushButton(QStringLiteral("&Save"));
  auto* other = new QPushButton(QStringLiteral("&Skip"));
  for (QWidget* each : {more, good, other}) rows->addWidget(each);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_EQ(SpokenFaults(window), QStringList{QStringLiteral("more is called \"+\"")});
  EXPECT_EQ(MnemonicFaults(window), QStringList{QStringLiteral("Save and Skip share Alt+S")});
  more->setFocus();
  EXPECT_EQ(FocusFaults(window),
            QStringList{QStringLiteral("the focus is on more, which has no name")});
}

TEST(TabFaults, AnOtherOrderThanThatOfReadingIsNoticed) {
  QDialog window;
  auto* rows = new QVBoxLayout(&window);
  QList<QLineEdit*> fields;
  for (const char* name : {"first", "second", "third"}) {
    fields << new QLineEdit;
    fields.last()->setObjectName(QLatin1String(name));
    rows->addWidget(fields.last());
  }
  QWidget::setTabOrder(fields[0], fields[2]);
  QWidget::setTabOrder(fields[2], fields[1]);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  fields[0]->setFocus();
  EXPECT_EQ(TabFaults(window),
            QStringList{QStringLiteral(
                "Tab goes first, third, second, what is read is first, second, third")});
}

}  // namespace
}  // namespace tallyroll
