// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/find_entries.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

#include "find/find_match.h"
#include "platform/surroundings.h"
#include "store/settings.h"

namespace tallyroll {

std::function<std::vector<FindEntry>()> MakeFindEntries;

namespace {

constexpr std::size_t kMostRecent = 8;
constexpr std::string_view kFindSection = "Find";
constexpr std::string_view kRecentKey = "Recent";
constexpr char kBetweenNames = ' ';  // no entry's name holds one
constexpr int kByPlace = 10;         // an answer of the text comes before one of its place
constexpr int kOfHelp = 10;          // and what does it before what explains it

bool IsRemembered(FindKind kind) {
  return kind == FindKind::kCommand || kind == FindKind::kHelp;
}

// 0 for the kinds that the teacher asked for, 2 for the help, which explains what the others do.
int OrderOf(FindKind kind, FindFirst first) {
  if (kind == FindKind::kHelp) return 2;
  return (kind == FindKind::kCommand) == (first == FindFirst::kCommands) ? 0 : 1;
}

std::size_t PlaceAmongRecent(const FindEntry& entry, const std::vector<std::string>& recent) {
  if (!IsRemembered(entry.kind)) return kMostRecent;
  const auto found = std::ranges::find(recent, entry.name);
  return found == recent.end() ? kMostRecent : static_cast<std::size_t>(found - recent.begin());
}

std::optional<int> RankOf(const FindText& typed, const FindEntry& entry) {
  const int later = entry.kind == FindKind::kHelp ? kOfHelp : 0;
  if (const auto rank = MatchFind(typed, MakeFindText(entry.text)))
    return static_cast<int>(*rank) + later;
  const auto rank = MatchFind(typed, MakeFindText(entry.place + " " + entry.text));
  if (!rank) return std::nullopt;
  return static_cast<int>(*rank) + kByPlace + later;
}

// By which the entries that answer are put in order; the least comes first.
using FindOrder = std::tuple<int, int, std::size_t, std::size_t>;

std::vector<std::size_t> InOrder(std::vector<FindOrder> found) {
  std::ranges::sort(found);
  std::vector<std::size_t> indexes;
  indexes.reserve(found.size());
  for (const FindOrder& one : found) indexes.push_back(std::get<3>(one));
  return indexes;
}

}  // namespace

std::vector<std::size_t> Find(std::string_view typed, const std::vector<FindEntry>& entries,
                              FindFirst first) {
  const FindText text = MakeFindText(typed);
  const std::vector<std::string> recent = RecentFinds();
  std::vector<FindOrder> found;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const int order = OrderOf(entries[i].kind, first);
    const std::size_t used = PlaceAmongRecent(entries[i], recent);
    if (text.words.empty()) {
      if (used < kMostRecent || order == 0)
        found.emplace_back(used < kMostRecent ? 0 : 1, order, used, i);
    } else if (const auto rank = RankOf(text, entries[i])) {
      found.emplace_back(*rank, order, used, i);
    }
  }
  return InOrder(std::move(found));
}

std::vector<std::string> RecentFinds() {
  const std::string stored = Platform().ReadSetting(kApplicationKey, kFindSection, kRecentKey, "");
  std::vector<std::string> names;
  for (std::size_t at = 0; at < stored.size() && names.size() < kMostRecent;) {
    const std::size_t end = std::min(stored.find(kBetweenNames, at), stored.size());
    if (end > at) names.push_back(stored.substr(at, end - at));
    at = end + 1;
  }
  return names;
}

void RememberFind(const FindEntry& entry) {
  if (!IsRemembered(entry.kind)) return;
  std::string stored = entry.name;
  std::size_t kept = 1;
  for (const std::string& name : RecentFinds())
    if (name != entry.name && kept++ < kMostRecent) stored += kBetweenNames + name;
  Platform().WriteSetting(kApplicationKey, kFindSection, kRecentKey, stored);
}

}  // namespace tallyroll
