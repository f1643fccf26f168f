// SPDX-License-Identifier: GPL-3.0-or-later
// The difference of two states of a class: only what differs is kept, and either state comes back
// from the other.
#pragma once

#include <cstdint>

#include "store/change/class_image.h"

namespace tallyroll {

// One stretch of a block: `removed` stands in the state before, `added` in the one after.
struct BlockSplice {
  std::uint32_t block = 0;  // by its place after
  std::uint32_t at = 0;
  std::string removed, added;
};

// A section of an image.
struct SectionChange {
  static constexpr std::int32_t kAdded = -1;
  // By the place after: the place before, or kAdded. Empty where every block kept its place.
  std::vector<std::int32_t> source;
  std::uint32_t count_before = 0;
  std::vector<std::string> added;                              // in the order of their places after
  std::vector<std::pair<std::uint32_t, std::string>> removed;  // by the place before
  std::vector<BlockSplice> splices;

  bool empty() const {
    return source.empty() && added.empty() && removed.empty() && splices.empty();
  }
};

struct ClassChange {
  std::array<SectionChange, ClassImage::kSections> sections;

  // Bytes that it holds, about.
  std::size_t Size() const;
};

ClassChange DifferenceOf(const ClassImage& before, const ClassImage& after);

// Turns the state before into the one after, and back. The image must be that state.
void Redo(const ClassChange& change, ClassImage& image);
void Undo(const ClassChange& change, ClassImage& image);

}  // namespace tallyroll
