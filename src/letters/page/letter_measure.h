// SPDX-License-Identifier: GPL-3.0-or-later
// How wide and high the words of a letter are. Letters to a whole class are mostly the same words,
// so each is measured once a run.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/print_target.h"
#include "platform/rich_text.h"

namespace tallyroll {

class LetterMeasure {
 public:
  struct Face {
    TextStyle style;
    LetterFont font;
    double above = 0;  // of the line that it stands on, raised as it is
    double below = 0;
    double raised = 0;

    double WidthOf(std::u16string_view text, const PrintTarget& target);

   private:
    struct Hash {
      using is_transparent = void;
      std::size_t operator()(std::u16string_view text) const {
        return std::hash<std::u16string_view>()(text);
      }
    };
    std::unordered_map<std::u16string, double, Hash, std::equal_to<>> widths_;
  };

  explicit LetterMeasure(const PrintTarget& target) : target_(target) {}

  Face& FaceOf(const TextStyle& style);
  double WidthOf(Face& face, std::u16string_view text) { return face.WidthOf(text, target_); }
  const PrintTarget& Target() const { return target_; }

 private:
  const PrintTarget& target_;
  std::deque<Face> faces_;  // a letter has few; who holds one keeps it
};

}  // namespace tallyroll
