// SPDX-License-Identifier: GPL-3.0-or-later
// A record's fields as bytes: one overload for each form that a field takes in a class file.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include "base/run_time_error.h"
#include "store/class_format.h"
#include "store/records.h"

namespace tallyroll {

static_assert(std::endian::native == std::endian::little, "class files are little-endian");

// The fewest bytes that an item of a list takes in the file.
template <typename T>
inline constexpr std::size_t kLeastBytes = sizeof(T);
template <>
inline constexpr std::size_t kLeastBytes<ShortText> = sizeof(std::uint16_t);

// Walks over bytes that may say anything. A step past the end throws 62, a list that contradicts
// itself 57; a field is either read whole or left alone.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : bytes_(bytes) {}

  std::size_t consumed() const { return at_; }
  std::size_t remaining() const { return bytes_.size() - at_; }

  // As a visitor of ForEachField.
  template <typename T>
  void operator()(const char* /*name*/, T& field) {
    Read(field);
  }

  std::string_view Take(std::size_t count) {
    if (count > remaining()) throw RunTimeError{kErrorPastEnd};
    const std::string_view taken(bytes_.data() + at_, count);
    at_ += count;
    return taken;
  }
  std::string_view TakeText() { return Take(TakeNumber<std::uint16_t>()); }

  void Read(i16& field) { field = TakeNumber<i16>(); }
  void Read(float& field) { field = TakeNumber<float>(); }
  void Read(double& field) { field = TakeNumber<double>(); }
  void Read(Currency& field) { field = Currency::FromScaled(TakeNumber<std::int64_t>()); }
  void Read(std::string& field) { field = TakeText(); }
  void Read(ShortText& field) {
    const std::string_view text = TakeText();
    if (!text.empty() || !field.empty()) field = ShortText(text);
  }
  void Read(Bytes8& field) { field = TakeNumber<Bytes8>(); }
  template <std::size_t N>
  void Read(FixedText<N>& field) {
    field = FixedText<N>(Take(N));
  }
  template <typename T, std::size_t N>
  void Read(std::array<T, N>& fields) {
    for (T& field : fields) Read(field);
  }

  template <typename T>
  void Read(List<T>& list) {
    list.clear();
    const std::size_t count = TakeElementCount(kLeastBytes<T>);
    list.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      T item;
      Read(item);
      list.push_back(std::move(item));
    }
  }
  void Read(List<ShortText>& list) {
    list.clear();
    list.resize(TakeElementCount(kLeastBytes<ShortText>));
    const std::size_t whole = ReadTexts(list);
    if (whole == list.size()) return;
    list.resize(whole);
    throw RunTimeError{kErrorPastEnd};
  }
  template <std::size_t N>
  void Read(std::array<ShortText, N>& fields) {
    if (TakeEmptyTexts<N>()) {
      for (ShortText& field : fields)
        if (!field.empty()) field = ShortText();
    } else if (ReadTexts(fields) != N) {
      throw RunTimeError{kErrorPastEnd};
    }
  }
  template <std::size_t N>
  void Read(List<FixedText<N>>& list) {
    static_assert(sizeof(FixedText<N>) == N);
    list.clear();
    const std::size_t count = TakeElementCount(N);
    list.resize(count);
    if (count != 0) std::memcpy(list.data()->data(), Take(count * N).data(), count * N);
  }

 private:
  // Reads texts as far as the bytes go, and returns how many. Marks are most of a class file, so
  // this loop keeps its place in a register.
  std::size_t ReadTexts(std::span<ShortText> texts) {
    constexpr std::size_t kLengthBytes = sizeof(std::uint16_t);
    const char* at = bytes_.data() + at_;
    const char* const end = bytes_.data() + bytes_.size();
    std::size_t whole = 0;
    for (ShortText& text : texts) {
      const auto left = static_cast<std::size_t>(end - at);
      if (left < kLengthBytes) break;
      std::uint16_t length = 0;
      std::memcpy(&length, at, kLengthBytes);
      if (length <= ShortText::kMostInline && left >= kLengthBytes + ShortText::kReadAhead) {
        text.AssignInline(at + kLengthBytes, length);
      } else if (length <= left - kLengthBytes) {
        text = ShortText(std::string_view(at + kLengthBytes, length));
      } else {
        break;
      }
      at += kLengthBytes + length;
      ++whole;
    }
    at_ = static_cast<std::size_t>(at - bytes_.data());
    return whole;
  }

  // Steps over texts of which none holds anything, as in most arrays of a file: one comparison
  // tells.
  template <std::size_t N>
  bool TakeEmptyTexts() {
    static constexpr std::array<char, N * sizeof(std::uint16_t)> kNoLengths{};
    if (remaining() < kNoLengths.size()) return false;
    if (std::memcmp(bytes_.data() + at_, kNoLengths.data(), kNoLengths.size()) != 0) return false;
    at_ += kNoLengths.size();
    return true;
  }

  template <typename T>
  T TakeNumber() {
    T value;
    std::memcpy(&value, Take(sizeof(T)).data(), sizeof(T));
    return value;
  }

  // A list's descriptor. The count is held against the bytes that remain, so that nothing is
  // sized by a number that merely stands in the file. 0 for a list that was never dimensioned.
  std::size_t TakeElementCount(std::size_t least_bytes) {
    const i16 dimensions = TakeNumber<i16>();
    if (dimensions == 0) return 0;
    if (dimensions != 1) throw RunTimeError{kErrorDevice};
    const auto count = TakeNumber<std::int32_t>();
    const auto lower_bound = TakeNumber<std::int32_t>();
    if (count <= 0 || lower_bound != 0) throw RunTimeError{kErrorDevice};
    const auto elements = static_cast<std::size_t>(count);
    if (elements > remaining() / least_bytes) throw RunTimeError{kErrorPastEnd};
    return elements;
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
};

// Appends fields to a buffer. A text or list that its length field cannot hold throws 6.
class FieldWriter {
 public:
  // `bytes` gets its final length by Finish; until then it is longer, since growing it field by
  // field would take most of the time.
  FieldWriter(std::string& bytes, std::size_t probable_size) : bytes_(bytes) {
    bytes_.resize(probable_size);
  }
  void Finish() { bytes_.resize(used_); }

  // As a visitor of ForEachField.
  template <typename T>
  void operator()(const char* /*name*/, const T& field) {
    Write(field);
  }

  void Write(i16 field) { PutNumber(field); }
  void Write(float field) { PutNumber(field); }
  void Write(double field) { PutNumber(field); }
  void Write(Currency field) { PutNumber(field.scaled()); }
  void Write(const std::string& field) { PutText(field); }
  // A short text is copied in one piece of fixed size; what is behind it is written over next.
  void Write(const ShortText& field) {
    const unsigned char* const text = field.InlineBytes();
    if (!text) return PutText(field);
    const auto length = static_cast<std::uint16_t>(field.size());
    char* const at = Room(sizeof length + ShortText::kMostInline);
    std::memcpy(at, &length, sizeof length);
    std::memcpy(at + sizeof length, text, ShortText::kMostInline);
    used_ -= ShortText::kMostInline - length;
  }
  void Write(const Bytes8& field) { PutNumber(field); }
  template <std::size_t N>
  void Write(const FixedText<N>& field) {
    Put(field.view());
  }
  template <typename T, std::size_t N>
  void Write(const std::array<T, N>& fields) {
    for (const T& field : fields) Write(field);
  }
  template <typename T>
  void Write(const List<T>& list) {
    if (!PutDescriptor(list.size())) return;
    for (const T& item : list) Write(item);
  }
  template <std::size_t N>
  void Write(const List<FixedText<N>>& list) {
    if (PutDescriptor(list.size())) Put({list.data()->view().data(), list.size() * N});
  }

 private:
  char* Room(std::size_t count) {
    if (bytes_.size() - used_ < count) bytes_.resize(2 * bytes_.size() + count);
    used_ += count;
    return bytes_.data() + used_ - count;
  }
  void Put(std::string_view raw) {
    if (!raw.empty()) std::memcpy(Room(raw.size()), raw.data(), raw.size());
  }
  template <typename T>
  void PutNumber(const T& value) {
    std::memcpy(Room(sizeof(T)), &value, sizeof(T));
  }

  void PutText(std::string_view text) {
    if (text.size() > kLongestText) throw RunTimeError{kErrorOverflow};
    const auto length = static_cast<std::uint16_t>(text.size());
    char* const at = Room(sizeof length + length);
    std::memcpy(at, &length, sizeof length);
    if (length != 0) std::memcpy(at + sizeof length, text.data(), length);
  }

  bool PutDescriptor(std::size_t size) {
    PutNumber(static_cast<i16>(size == 0 ? 0 : 1));
    if (size == 0) return false;
    if (size > INT32_MAX) throw RunTimeError{kErrorOverflow};
    PutNumber(static_cast<std::int32_t>(size));
    PutNumber(std::int32_t{0});
    return true;
  }

  std::string& bytes_;
  std::size_t used_ = 0;
};

}  // namespace tallyroll
