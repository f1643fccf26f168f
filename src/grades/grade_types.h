// SPDX-License-Identifier: GPL-3.0-or-later
// The 26 grade types: index 1 to 26 means the same type everywhere in one class.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/list.h"

namespace tallyroll {

inline constexpr std::size_t kGradeTypes = 26;
inline constexpr std::size_t kExtraCreditType = 13;
inline constexpr std::string_view kExtraCreditCode = "X";
inline constexpr std::size_t kFirstModifiableType = 14;
inline constexpr std::size_t kNoType = 26;

// By type; [0] is not used.
using TypeCodes = std::array<FixedText<2>, kGradeTypes + 1>;
using TypeTexts = std::array<std::string, kGradeTypes + 1>;

// Each fills the caller's array with the program's own texts and lays the modifications of the
// current class over types 14 to 26. Trimmed, a name is what the teacher sees.
void MakeTypeCodes(TypeCodes& codes);
void MakeTypeNames(TypeTexts& names);
void MakeTypeLabels(TypeTexts& labels);

// The label of a type before any modification.
std::string_view DefaultTypeLabel(std::size_t type);

// A set of types: bit t stands for type t. A loop over it runs from the lowest type up.
class TypeSet {
 public:
  class Iterator {
   public:
    explicit Iterator(std::uint32_t rest) : rest_(rest) {}
    std::size_t operator*() const { return static_cast<std::size_t>(std::countr_zero(rest_)); }
    Iterator& operator++() {
      rest_ &= rest_ - 1;
      return *this;
    }
    bool operator!=(const Iterator& other) const { return rest_ != other.rest_; }

   private:
    std::uint32_t rest_;
  };

  constexpr explicit TypeSet(std::uint32_t bits = 0) : bits_(bits) {}
  bool empty() const { return bits_ == 0; }
  bool Contains(std::size_t type) const { return (bits_ >> type & 1) != 0; }
  Iterator begin() const { return Iterator(bits_); }
  Iterator end() const { return Iterator(0); }

 private:
  std::uint32_t bits_;
};

// Finds the types of a typecode by two look-ups. A typecode belongs to one type or to none; only a
// file made elsewhere may give two types the same code.
class TypesByCode {
 public:
  explicit TypesByCode(const TypeCodes& codes);
  // Blanks around the typecode do not count; capitals and small letters differ.
  TypeSet Of(std::string_view typecode) const;

 private:
  // For each character the types whose code has it in the first or second place; a blank stands
  // where a code has no character.
  std::array<std::uint32_t, 256> first_{};
  std::array<std::uint32_t, 256> second_{};
};

}  // namespace tallyroll
