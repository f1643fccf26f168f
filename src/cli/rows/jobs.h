// SPDX-License-Identifier: GPL-3.0-or-later
// Work on many things by several processes, whose output keeps the order of the things.
#pragma once

#include <cstddef>
#include <functional>

namespace tallyroll {

// One process of several. The program's state is one class at a time, so jobs are processes and no
// threads.
class RowsJob {
 public:
  // Whether it has nobody to wait for.
  bool alone() const { return take_ < 0; }
  // Waits until everything before its thing is written; false when that will never be.
  bool WaitForTurn() const;
  // What comes behind `thing` may be written.
  void PassOn(std::size_t thing) const;

 private:
  friend bool RunJobs(int jobs, std::size_t things,
                      const std::function<bool(RowsJob& job, std::size_t thing)>& work);
  std::size_t things_ = 0;
  int take_ = -1;  // where the turn comes from; -1 when there is one job alone
  int give_ = -1;  // where it goes
};

// Calls work(job, thing) for each thing from 0 up, shared out among the jobs; it answers whether
// all went well. Everything it does but writing is lost with its process. Answers whether all of
// them went well.
bool RunJobs(int jobs, std::size_t things,
             const std::function<bool(RowsJob& job, std::size_t thing)>& work);

}  // namespace tallyroll
