// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/class_image.h"

#include <algorithm>
#include <stdexcept>

#include "base/run_time_error.h"
#include "store/class_format.h"
#include "store/fields.h"
#include "store/record_bytes.h"

namespace tallyroll {
namespace {

constexpr std::size_t kProbableBlock = 512;

template <typename Write>
std::string BlockBy(Write&& write) {
  std::string bytes;
  FieldWriter writer(bytes, kProbableBlock);
  write(writer);
  writer.Finish();
  bytes.shrink_to_fit();
  return bytes;
}

template <typename Record>
std::string BlockOfRecord(const Record& record) {
  return BlockBy([&](FieldWriter& writer) { ForEachField(record, writer); });
}

template <typename Record>
std::vector<std::string> BlocksOfList(const List<Record>& list, i16 count) {
  if (count > UpperBound(list)) throw RunTimeError{kErrorOverflow};
  std::vector<std::string> blocks;
  blocks.reserve(static_cast<std::size_t>(std::max<i16>(count, 0)));
  for (int i = 1; i <= count; ++i)
    blocks.push_back(BlockOfRecord(list[static_cast<std::size_t>(i)]));
  return blocks;
}

// What stands in a slot and in no file, as visit(field); the drop flags aside.
template <typename C, typename Visit>
void ForEachSetting(C& c, Visit&& visit) {
  visit(c.Weights);
  visit(c.InstrumentUse);
  visit(c.TypePercents);
  visit(c.AverageFlag1);
  visit(c.AverageFlag2);
  visit(c.AverageFlag3);
  visit(c.AverageFlag4);
  visit(c.AverageWork1);
  visit(c.AverageWork2);
  visit(c.Method);
}

std::string HeaderBlock(const Class& c) {
  return BlockBy([&](FieldWriter& writer) {
    ForEachField(c, [&](const char* name, const auto& field) {
      if (std::string_view(name) != "Magic") writer(name, field);
    });
  });
}

std::string DropFlags(const Class& c) {
  return BlockBy([&](FieldWriter& writer) { writer.Write(c.TypeWeights); });
}

void AddStudents(const Class& c, ClassImage& image) {
  if (c.NumStudents > UpperBound(c.Students)) throw RunTimeError{kErrorOverflow};
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    std::string look;
    if (student.Marks.empty() || student.Marks[0].empty()) {
      image.blocks[ClassImage::kStudents].push_back(BlockOfRecord(student));
    } else {
      Student plain = student;
      look = plain.Marks[0].str();
      plain.Marks[0] = ShortText();
      image.blocks[ClassImage::kStudents].push_back(BlockOfRecord(plain));
    }
    image.blocks[ClassImage::kLooks].push_back(std::move(look));
  }
}

// Order apart.
bool SameBlocks(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  if (a.size() != b.size()) return false;
  if (a == b) return true;
  const auto sorted = [](const std::vector<std::string>& blocks) {
    std::vector<const std::string*> order;
    order.reserve(blocks.size());
    for (const std::string& block : blocks) order.push_back(&block);
    std::sort(order.begin(), order.end(),
              [](const std::string* x, const std::string* y) { return *x < *y; });
    return order;
  };
  const auto x = sorted(a), y = sorted(b);
  return std::equal(x.begin(), x.end(), y.begin(),
                    [](const std::string* p, const std::string* q) { return *p == *q; });
}

template <typename Record>
void ReadBlocks(const std::vector<std::string>& blocks, List<Record>& list) {
  ReDim(list, static_cast<int>(blocks.size()));
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    FieldReader read(blocks[i]);
    ForEachField(list[i + 1], read);
  }
}

void ReadStudents(const ClassImage& image, Class& c) {
  ReadBlocks(image.blocks[ClassImage::kStudents], c.Students);
  const auto& looks = image.blocks[ClassImage::kLooks];
  for (std::size_t i = 1; i < c.Students.size(); ++i) {
    List<ShortText>& marks = c.Students[i].Marks;
    if (!marks.empty() && i < looks.size()) marks[0] = looks[i];  // the flags are looks[0]
  }
}

void ReadSettings(const ClassImage& image, Class& c) {
  FieldReader settings(image.blocks[ClassImage::kSettings].at(0));
  ForEachSetting(c, [&](auto& field) { settings.Read(field); });
  const bool looked = c.AverageFlag2 != 0;
  const std::string& flags =
      looked ? image.blocks[ClassImage::kLooks].at(0) : image.blocks[ClassImage::kSettings].at(1);
  FieldReader(flags).Read(c.TypeWeights);
}

}  // namespace

bool ClassImage::IsSameWork(const ClassImage& other) const {
  for (const Section section : {kHeader, kInstruments, kDays, kSummaries, kSettings})
    if (blocks[section] != other.blocks[section]) return false;
  return SameBlocks(blocks[kStudents], other.blocks[kStudents]);
}

bool MakeImage(const Class& c, ClassImage& image) {
  ClassImage made;
  try {
    made.blocks[ClassImage::kHeader].push_back(HeaderBlock(c));
    made.blocks[ClassImage::kInstruments] = BlocksOfList(c.Instruments, c.NumInstruments);
    made.blocks[ClassImage::kDays] = BlocksOfList(c.AttendanceDays, c.NumDays);
    made.blocks[ClassImage::kSummaries] = BlocksOfList(c.Summaries, c.NumSummaries);
    auto& settings = made.blocks[ClassImage::kSettings];
    settings.push_back(BlockBy([&](FieldWriter& writer) {
      ForEachSetting(c, [&](const auto& field) { writer.Write(field); });
    }));
    const bool looked = c.AverageFlag2 != 0;
    settings.push_back(looked ? std::string() : DropFlags(c));
    made.blocks[ClassImage::kLooks].push_back(looked ? DropFlags(c) : std::string());
    AddStudents(c, made);
  } catch (const RunTimeError&) {
    return false;
  }
  image = std::move(made);
  return true;
}

bool PutImage(const ClassImage& image, Class& c) {
  Class read;
  read.FileName = c.FileName;
  read.Changed = c.Changed;
  read.SlotState = c.SlotState;
  read.Magic = c.Magic;
  try {
    FieldReader header(image.blocks[ClassImage::kHeader].at(0));
    ForEachField(read, [&](const char* name, auto& field) {
      if (std::string_view(name) != "Magic") header(name, field);
    });
    ReadBlocks(image.blocks[ClassImage::kInstruments], read.Instruments);
    ReadBlocks(image.blocks[ClassImage::kDays], read.AttendanceDays);
    ReadBlocks(image.blocks[ClassImage::kSummaries], read.Summaries);
    ReadStudents(image, read);
    ReadSettings(image, read);
  } catch (const RunTimeError&) {
    return false;
  } catch (const std::out_of_range&) {
    return false;
  }
  c = std::move(read);
  return true;
}

}  // namespace tallyroll
