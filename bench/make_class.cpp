// SPDX-License-Identifier: GPL-3.0-or-later
// make_class STUDENTS GRADES DAYS FILE
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "bench/big_class.h"
#include "store/class_file.h"

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "make_class STUDENTS GRADES DAYS FILE\n";
    return 2;
  }
  std::string bytes;
  tallyroll::SerializeClass(
      tallyroll::BigClass(std::atoi(argv[1]), std::atoi(argv[2]), std::atoi(argv[3])), bytes);
  return std::ofstream(argv[4], std::ios::binary)
                 .write(bytes.data(), static_cast<std::streamsize>(bytes.size()))
             ? 0
             : 1;
}
