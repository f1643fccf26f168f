// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/behind.h"

#include <map>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tallyroll {
namespace {

struct Behind {
  ~Behind() { Await(); }
  void Await() {
    if (thread.joinable()) thread.join();
  }

  std::thread thread;  // of the last piece, which waits for those before it
  std::mutex mutex;
  std::map<std::string, std::string> faults;  // by class file; under the mutex
};

// Of the whole program; set by RunBehind.
Behind behind;

}  // namespace

void RunBehind(const std::string& class_path, std::function<std::string()> work) {
  auto before = std::make_shared<std::thread>(std::move(behind.thread));
  auto run = [class_path, before, work = std::move(work)] {
    if (before->joinable()) before->join();
    std::string fault = work();
    const std::lock_guard lock(behind.mutex);
    behind.faults[class_path] = std::move(fault);
  };
  try {
    behind.thread = std::thread(run);
  } catch (const std::system_error&) {
    run();
  }
}

void AwaitBehind() {
  behind.Await();
}

std::string FaultBehind(const std::string& class_path) {
  const std::lock_guard lock(behind.mutex);
  return std::exchange(behind.faults[class_path], {});
}

}  // namespace tallyroll
