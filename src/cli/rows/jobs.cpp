// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/rows/jobs.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

namespace tallyroll {
namespace {

constexpr int kTakenOver = 0;
constexpr int kFailed = 1;

// A turn goes around the jobs as one byte, from each to the next.
using Pipe = std::array<int, 2>;

std::vector<Pipe> MakePipes(std::size_t count) {
  std::vector<Pipe> pipes;
  Pipe made{};
  while (pipes.size() < count && pipe(made.data()) == 0) pipes.push_back(made);
  return pipes;
}

void CloseBut(const std::vector<Pipe>& pipes, int take, int give) {
  for (const Pipe& ends : pipes)
    for (const int end : ends)
      if (end != take && end != give) close(end);
}

bool WriteTurn(int end) {
  constexpr char kTurn = '.';
  ssize_t written = 0;
  do written = write(end, &kTurn, 1);
  while (written < 0 && errno == EINTR);
  return written == 1;
}

bool AllWentWell(const std::vector<pid_t>& processes) {
  bool well = true;
  for (const pid_t process : processes) {
    int status = 0;
    pid_t ended = 0;
    do ended = waitpid(process, &status, 0);
    while (ended < 0 && errno == EINTR);
    well = well && ended == process && WIFEXITED(status) && WEXITSTATUS(status) == kTakenOver;
  }
  return well;
}

}  // namespace

bool RowsJob::WaitForTurn() const {
  char turn = 0;
  ssize_t got = 0;
  do got = read(take_, &turn, 1);
  while (got < 0 && errno == EINTR);
  return got == 1;
}

// Behind the last thing nobody waits.
void RowsJob::PassOn(std::size_t thing) const {
  if (give_ >= 0 && thing + 1 < things_) WriteTurn(give_);
}

bool RunJobs(int jobs, std::size_t things,
             const std::function<bool(RowsJob& job, std::size_t thing)>& work) {
  const std::size_t wanted = std::min(static_cast<std::size_t>(jobs), things);
  const std::vector<Pipe> pipes = wanted > 1 ? MakePipes(wanted) : std::vector<Pipe>();
  const auto share = [&](RowsJob& job, std::size_t from, std::size_t step) {
    bool well = true;
    job.things_ = things;
    for (std::size_t thing = from; thing < things; thing += step) well = work(job, thing) && well;
    return well;
  };
  if (pipes.size() < 2) {
    RowsJob alone;
    return share(alone, 0, 1);
  }
  const std::size_t count = pipes.size();
  std::vector<pid_t> processes;
  bool well = WriteTurn(pipes[0][1]);
  for (std::size_t k = 0; k < count && well; ++k) {
    const pid_t process = fork();
    well = process >= 0;
    if (process > 0) processes.push_back(process);
    if (process != 0) continue;
    RowsJob job;
    job.take_ = pipes[k][0];
    job.give_ = pipes[(k + 1) % count][1];
    CloseBut(pipes, job.take_, job.give_);
    _exit(share(job, k, count) ? kTakenOver : kFailed);
  }
  CloseBut(pipes, -1, -1);
  return AllWentWell(processes) && well;
}

}  // namespace tallyroll
