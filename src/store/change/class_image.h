// SPDX-License-Identifier: GPL-3.0-or-later
// A class as blocks of bytes, a record a block: what tells two states of a class apart, and what
// brings either of them back byte for byte.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct ClassImage {
  enum Section : std::size_t {
    kHeader,       // the fields of the class file's header but Magic
    kInstruments,  // a block each, as the three that follow
    kDays,
    kSummaries,
    kStudents,  // without Marks[0]
    kSettings,  // what the slot holds beside the file: the weights in force
    kLooks,  // what merely looking at averages moves: Marks[0] and, where one lowest grade of all
             // is dropped, the drop flags
    kSections
  };
  std::array<std::vector<std::string>, kSections> blocks;

  // Whether the other one is the same class, whatever the order of its students and however often
  // its averages were looked at since.
  bool IsSameWork(const ClassImage& other) const;

  friend bool operator==(const ClassImage&, const ClassImage&) = default;
};

// False for a class that no class file could hold.
bool MakeImage(const Class& c, ClassImage& image);

// Puts the records and settings of the image into the class. Its file name, its slot and its Magic
// stay, and so does Changed. False, with nothing changed, for an image of no class.
bool PutImage(const ClassImage& image, Class& c);

}  // namespace tallyroll
