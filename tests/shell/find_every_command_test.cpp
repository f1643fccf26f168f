// SPDX-License-Identifier: GPL-3.0-or-later
// Every entry of every menu is found in the small window, however it is typed, and runs once. What
// the entries then do stands in commands_test.cpp.
#include <algorithm>

#include "find/find_match.h"
#include "find/frmfind.h"
#include "shell/find_sources.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

using Texts = std::vector<std::string>;

Texts ran;  // the entries whose action ran

// What happens in a class decides which entries are on; here all of them are.
void NoteEveryEntry(Menu& menu) {
  Texts names;
  for (const MenuEntry& entry : menu.entries())
    if (!entry.name.empty()) names.push_back(entry.name);
  for (const std::string& name : names) {
    menu.Enable(name, true);
    if (menu[name].click) menu[name].click = [name] { ran.push_back(name); };
  }
}

// With one letter wrong, missing, too many, and two that changed places.
Texts SlipsOf(const std::string& word) {
  Texts slips;
  for (std::size_t at = 1; at < word.size(); ++at) {
    std::string wrong = word, twice = word, missing = word, swapped = word;
    wrong[at] = word[at] == 'q' ? 'z' : 'q';
    twice.insert(at, 1, word[at]);
    missing.erase(at, 1);
    std::swap(swapped[at - 1], swapped[at]);
    slips.insert(slips.end(), {wrong, twice, swapped});
    // Three letters are a slip of nearly every word.
    if (missing.size() > 3) slips.push_back(missing);
  }
  return slips;
}

class FindEveryCommandTest : public ShellTest {
 protected:
  FindEveryCommandTest() { ran.clear(); }

  static std::vector<FindEntry> Commands() {
    std::vector<FindEntry> commands;
    for (FindEntry& entry : ProgramFindEntries())
      if (entry.kind == FindKind::kCommand) commands.push_back(std::move(entry));
    return commands;
  }
  static bool IsFound(const FindEntry& wanted, const std::string& typed,
                      const std::vector<FindEntry>& entries) {
    return std::ranges::any_of(Find(typed, entries, FindFirst::kCommands), [&](std::size_t i) {
      return entries[i].name == wanted.name && entries[i].kind == FindKind::kCommand;
    });
  }
  static void ExpectAllFound() {
    const std::vector<FindEntry> all = ProgramFindEntries();
    for (const FindEntry& entry : Commands()) {
      EXPECT_EQ(entry.reason, "") << entry.name;
      const Texts words = MakeFindText(entry.text).words;
      ASSERT_FALSE(words.empty()) << entry.name;
      std::string initials;
      for (const std::string& word : words) initials += word.substr(0, 2);
      EXPECT_TRUE(IsFound(entry, entry.text, all)) << entry.name;
      EXPECT_TRUE(IsFound(entry, words.front(), all)) << entry.name;
      EXPECT_TRUE(IsFound(entry, initials, all)) << entry.name << " by " << initials;
      const std::string& longest = *std::ranges::max_element(words, {}, &std::string::size);
      if (longest.size() < 4) continue;
      for (const std::string& slip : SlipsOf(longest))
        EXPECT_TRUE(IsFound(entry, slip, all)) << entry.name << " by " << slip;
    }
  }

  // Typed whole into the window, chosen by its place and key, as others may bear the same words.
  void RunByTyping(const FindEntry& entry) {
    const std::string wanted = entry.text + "\t" + entry.place + "\t" + entry.key;
    screen.ExpectPortal("frmfind", [&](PortalDriver& find) {
      find.Type("typed", entry.text);
      const Texts& lines = dynamic_cast<frmfind&>(find.portal()).found.List;
      const auto line = std::ranges::find(lines, wanted);
      if (line == lines.end()) {
        ADD_FAILURE() << wanted << " is not listed";
        return find.CloseWindow();
      }
      for (auto at = lines.begin(); at != line; ++at) find.PressKey("typed", Key::kDown);
      find.Press("go");
    });
    RunFind(FindFirst::kCommands);
  }
  void ExpectEachRunsOnce() {
    for (const FindEntry& entry : Commands()) {
      ran.clear();
      RunByTyping(entry);
      EXPECT_EQ(ran, Texts{entry.name}) << entry.text;
    }
  }
  // Those that are no holders of deeper ones, and are listed as no class or as the window itself.
  static std::size_t CommandsOf(const Menu& menu) {
    return static_cast<std::size_t>(
        std::ranges::count_if(menu.entries(), [](const MenuEntry& entry) {
          return entry.click && entry.visible && !entry.name.starts_with("mnuFileList") &&
                 !entry.name.starts_with("mnuWindowList") && entry.name != "mnuFind" &&
                 entry.name != "mnuCommand";
        }));
  }
};

TEST_F(FindEveryCommandTest, OfAClassIsFoundByWordInitialsAndSlip) {
  Form1& window = Open("c30_12.TYR", Sample(30, 12));
  NoteEveryEntry(window.menu);
  EXPECT_EQ(Commands().size(), CommandsOf(window.menu));
  EXPECT_GT(Commands().size(), 70U);
  ExpectAllFound();
}

TEST_F(FindEveryCommandTest, OfAClassRunsOnce) {
  Form1& window = Open("c30_12.TYR", Sample(30, 12));
  NoteEveryEntry(window.menu);
  ExpectEachRunsOnce();
}

TEST_F(FindEveryCommandTest, OfTheFrameIsFoundAndRunsOnce) {
  NoteEveryEntry(FrameForm->menu);
  EXPECT_EQ(Commands().size(), CommandsOf(FrameForm->menu));
  EXPECT_GE(Commands().size(), 6U);
  ExpectAllFound();
  ExpectEachRunsOnce();
}

}  // namespace
}  // namespace tallyroll
