// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/class_change.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tallyroll {
namespace {

using Blocks = std::vector<std::string>;
constexpr std::int32_t kUnmatched = -2;

// Finds for each block after where it stood before: at its own place, or as the same bytes
// elsewhere. What is left over stands for one another in order, as long as there is any.
class Matching {
 public:
  Matching(const Blocks& before, const Blocks& after)
      : before_(before), after_(after), source_(after.size(), kUnmatched), used_(before.size()) {
    MatchPlaces();
    MatchBytes();
    MatchRest();
  }

  std::vector<std::int32_t> TakeSource() { return std::move(source_); }

 private:
  void Use(std::size_t to, std::size_t from) {
    source_[to] = static_cast<std::int32_t>(from);
    used_[from] = true;
  }
  void MatchPlaces() {
    for (std::size_t i = 0; i < after_.size() && i < before_.size(); ++i)
      if (after_[i] == before_[i]) Use(i, i);
  }
  void MatchBytes() {
    std::unordered_multimap<std::string_view, std::size_t> places;
    for (std::size_t i = 0; i < before_.size(); ++i)
      if (!used_[i]) places.emplace(before_[i], i);
    for (std::size_t i = 0; i < after_.size(); ++i) {
      if (source_[i] != kUnmatched) continue;
      const auto found = places.find(after_[i]);
      if (found == places.end()) continue;
      Use(i, found->second);
      places.erase(found);
    }
  }
  // A changed record mostly kept its place.
  void MatchRest() {
    for (std::size_t i = 0; i < after_.size() && i < before_.size(); ++i)
      if (source_[i] == kUnmatched && !used_[i]) Use(i, i);
    std::size_t from = 0;
    for (std::size_t i = 0; i < after_.size(); ++i) {
      if (source_[i] != kUnmatched) continue;
      while (from < before_.size() && used_[from]) ++from;
      if (from == before_.size())
        source_[i] = SectionChange::kAdded;
      else
        Use(i, from);
    }
  }

  const Blocks& before_;
  const Blocks& after_;
  std::vector<std::int32_t> source_;
  std::vector<bool> used_;
};

BlockSplice MakeSplice(std::size_t block, std::size_t at, std::string_view removed,
                       std::string_view added) {
  BlockSplice splice;
  splice.block = static_cast<std::uint32_t>(block);
  splice.at = static_cast<std::uint32_t>(at);
  splice.removed = removed;
  splice.added = added;
  return splice;
}

std::size_t EqualHead(std::string_view a, std::string_view b) {
  const auto end = std::min(a.size(), b.size());
  std::size_t head = 0;
  while (head < end && a[head] == b[head]) ++head;
  return head;
}

// A list that grew differs in its count and at its end: stretches of the same length go by
// themselves as long as what follows them lies at the same place, and the last takes the rest.
void AddSplices(std::vector<BlockSplice>& splices, std::string_view before, std::string_view after,
                std::size_t block) {
  constexpr std::size_t kWorthwhile = 32, kShort = 8;
  std::size_t at = EqualHead(before, after);
  std::size_t tail = 0;
  while (tail < std::min(before.size(), after.size()) - at &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  before.remove_suffix(tail);
  after.remove_suffix(tail);
  for (std::size_t length = 1; length <= kShort; ++length) {
    if (at + length >= std::min(before.size(), after.size())) break;
    const std::size_t equal = EqualHead(before.substr(at + length), after.substr(at + length));
    if (equal < kWorthwhile) continue;
    splices.push_back(MakeSplice(block, at, before.substr(at, length), after.substr(at, length)));
    at += length + equal;
    length = 0;
  }
  if (at < before.size() || at < after.size())
    splices.push_back(MakeSplice(block, at, before.substr(at), after.substr(at)));
}

SectionChange ChangeOf(const Blocks& before, const Blocks& after) {
  SectionChange change;
  if (before == after) return change;
  change.count_before = static_cast<std::uint32_t>(before.size());
  change.source = Matching(before, after).TakeSource();
  std::vector<bool> kept(before.size());
  bool in_place = before.size() == after.size();
  for (std::size_t i = 0; i < after.size(); ++i) {
    const std::int32_t from = change.source[i];
    in_place = in_place && from == static_cast<std::int32_t>(i);
    if (from == SectionChange::kAdded) {
      change.added.push_back(after[i]);
      continue;
    }
    const auto place = static_cast<std::size_t>(from);
    kept[place] = true;
    if (before[place] != after[i]) AddSplices(change.splices, before[place], after[i], i);
  }
  for (std::size_t i = 0; i < before.size(); ++i)
    if (!kept[i]) change.removed.emplace_back(static_cast<std::uint32_t>(i), before[i]);
  if (in_place) change.source.clear();
  change.splices.shrink_to_fit();
  return change;
}

void RedoSection(const SectionChange& change, Blocks& blocks) {
  if (!change.source.empty() || !change.removed.empty()) {
    Blocks after(change.source.size());
    std::size_t added = 0;
    for (std::size_t i = 0; i < after.size(); ++i) {
      const std::int32_t from = change.source[i];
      if (from == SectionChange::kAdded)
        after[i] = change.added[added++];
      else
        after[i] = std::move(blocks[static_cast<std::size_t>(from)]);
    }
    blocks = std::move(after);
  }
  for (const BlockSplice& splice : change.splices)
    blocks[splice.block].replace(splice.at, splice.removed.size(), splice.added);
}

void UndoSection(const SectionChange& change, Blocks& blocks) {
  for (const BlockSplice& splice : change.splices)
    blocks[splice.block].replace(splice.at, splice.added.size(), splice.removed);
  if (change.source.empty() && change.removed.empty()) return;
  Blocks before(change.count_before);
  for (std::size_t i = 0; i < change.source.size(); ++i) {
    const std::int32_t from = change.source[i];
    if (from != SectionChange::kAdded)
      before[static_cast<std::size_t>(from)] = std::move(blocks[i]);
  }
  for (const auto& [place, bytes] : change.removed) before[place] = bytes;
  blocks = std::move(before);
}

// What a string takes beyond itself.
std::size_t OnHeap(const std::string& text) {
  constexpr std::size_t kInPlace = 15;
  return text.capacity() > kInPlace ? text.capacity() + 1 : 0;
}

std::size_t SizeOfSection(const SectionChange& change) {
  std::size_t size = change.source.capacity() * sizeof(std::int32_t) +
                     change.splices.capacity() * sizeof(BlockSplice) +
                     change.added.capacity() * sizeof(std::string) +
                     change.removed.capacity() * sizeof(change.removed[0]);
  for (const BlockSplice& splice : change.splices)
    size += OnHeap(splice.removed) + OnHeap(splice.added);
  for (const std::string& block : change.added) size += OnHeap(block);
  for (const auto& [place, block] : change.removed) size += OnHeap(block);
  return size;
}

}  // namespace

std::size_t ClassChange::Size() const {
  std::size_t size = sizeof(*this);
  for (const SectionChange& section : sections) size += SizeOfSection(section);
  return size;
}

ClassChange DifferenceOf(const ClassImage& before, const ClassImage& after) {
  ClassChange change;
  for (std::size_t s = 0; s < ClassImage::kSections; ++s)
    change.sections[s] = ChangeOf(before.blocks[s], after.blocks[s]);
  return change;
}

void Redo(const ClassChange& change, ClassImage& image) {
  for (std::size_t s = 0; s < ClassImage::kSections; ++s)
    RedoSection(change.sections[s], image.blocks[s]);
}

void Undo(const ClassChange& change, ClassImage& image) {
  for (std::size_t s = 0; s < ClassImage::kSections; ++s)
    UndoSection(change.sections[s], image.blocks[s]);
}

}  // namespace tallyroll
