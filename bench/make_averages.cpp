// SPDX-License-Identifier: GPL-3.0-or-later
// make_averages STUDENTS GRADES FILE CSV: a class averaged by types with one drop a type, and its
// grades and marks once more as comma-separated values: a line of types, a line of maximums, and a
// line a student.
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "bench/big_class.h"
#include "store/class_file.h"

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "make_averages STUDENTS GRADES FILE CSV\n";
    return 2;
  }
  const tallyroll::Class c = tallyroll::BigAveragedClass(std::atoi(argv[1]), std::atoi(argv[2]), 1);
  std::string bytes;
  tallyroll::SerializeClass(c, bytes);
  std::ofstream(argv[3], std::ios::binary) << bytes;
  std::ofstream csv(argv[4]);
  csv << "type";
  for (std::size_t i = 1; i < c.Instruments.size(); ++i)
    csv << ',' << c.Instruments[i].typecode.substr(0, c.Instruments[i].typecode.find(' '));
  csv << "\nmax";
  for (std::size_t i = 1; i < c.Instruments.size(); ++i) csv << ',' << c.Instruments[i].mvalue;
  for (std::size_t s = 1; s < c.Students.size(); ++s) {
    csv << '\n' << c.Students[s].id;
    for (std::size_t i = 1; i < c.Instruments.size(); ++i)
      csv << ',' << c.Students[s].Marks[i].view();
  }
  csv << '\n';
  return csv ? 0 : 1;
}
